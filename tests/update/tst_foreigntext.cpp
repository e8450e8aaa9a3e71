#include "update/foreigntext.h"

#include <QTest>
#include <QTextDocument>

/// What is left of a stranger's HTML.
class TestForeignText final : public QObject
{
    Q_OBJECT

    static QString str(const char *text) { return QString::fromUtf8(text); }

private Q_SLOTS:
    void simpleTagsStay_data()
    {
        QTest::addColumn<QString>("html");
        for (const char *html :
             {"Fixes", "a > b & c &lt; d", "<b>bold</b> <I>slanted</I> <em>a</em><strong>b</strong>",
              "<b style=\"color:#444\">grey</b><br/>", "<br><br /><p>next</p>",
              "<u>a</u><s>b</s><code>c</code><tt>d</tt>", "<h1>New</h1><h6>Old</h6>",
              "<ul><li>one</li><li>two</li></ul><ol><li>three</ol>",
              "<ul><li><ul><li><ul><li>three deep</ul></ul></ul>", "<a href=http://log.example/?a=1&b=(2)>log</a>",
              "<a href=\"http://log.example/\">log</a>", "<font color=red face='DejaVu Sans'>red</font>",
              "<span style='font-weight: bold; font-style:italic;text-decoration : underline ;'>a</span>",
              "<span style=\"background-color:rgb\">a</span>"})
            QTest::newRow(html) << str(html);
    }

    void simpleTagsStay()
    {
        QFETCH(QString, html);
        QCOMPARE(harmlessHtml(html), html);
    }

    void everyOtherTagIsText_data()
    {
        QTest::addColumn<QString>("html");
        for (const char *html : {"<img src=/dev/zero>",
                                 "<IMG SRC=\"\\\\server\\share\\a.png\">",
                                 "<table>",
                                 "<table><tr><td>",
                                 "<hr>",
                                 "<body background=a.png>",
                                 "<link rel=stylesheet href=a.css>",
                                 "<style>",
                                 "<script>",
                                 "<div>",
                                 "<blockquote>",
                                 "<big>",
                                 "<!-- -->",
                                 "<!DOCTYPE html>",
                                 "<?xml?>",
                                 "<",
                                 "<<",
                                 "< b>",
                                 "<b",
                                 "<b ",
                                 "<bb>",
                                 "<b title=a>",
                                 "<b style=\"background-image:url(a.png)\">",
                                 "<b style=\"color:red;background:url(a)\">",
                                 "<b style=\"font-size:100000pt\">",
                                 "<b style=\"margin-left:9999px\">",
                                 "<b style=\"color:u\\72l\">",
                                 "<b style=color:red>",
                                 "<font size=7>",
                                 "<a href=>",
                                 "<a href=\"a>",
                                 "<a href='a\">",
                                 "<a href=a style=\"background-image:url(b)\">",
                                 "<a href = a>",
                                 "</b background=a>"})
            QTest::newRow(html) << str(html);
    }

    void everyOtherTagIsText()
    {
        QFETCH(QString, html);
        QCOMPARE(harmlessHtml(html), QString(html).replace(QLatin1Char('<'), str("&lt;")));
        QTextDocument shown;
        shown.setHtml(str("<p>") + harmlessHtml(html));
        QCOMPARE(shown.toPlainText().simplified(), html.simplified());
    }

    void ofTooManyTagsTheRestIsText()
    {
        QCOMPARE(harmlessHtml(str("<br>").repeated(102)), str("<br>").repeated(100) + str("&lt;br>").repeated(2));
    }

    void ofListsInListsThreeAreLists()
    {
        QCOMPARE(harmlessHtml(str("<ul><ol><ul><ul><ol></ul><ol><ul>")),
                 str("<ul><ol><ul>&lt;ul>&lt;ol></ul><ol>&lt;ul>"));
        QCOMPARE(harmlessHtml(str("</ul></ul><ul><ul><ul><ul>")), str("</ul></ul><ul><ul><ul>&lt;ul>"));
    }

    void aTextIsShortenedBehindWholeCharacters()
    {
        QCOMPARE(shortened(str("abc"), 3), str("abc"));
        QCOMPARE(shortened(str("abcd"), 3), str("abc…"));
        QCOMPARE(shortened(str("ab😀"), 3), str("ab…"));
        QCOMPARE(shortened(str("ab😀"), 4), str("ab😀"));
        QCOMPARE(shortened(QString(), 0), QString());
        QCOMPARE(shortened(str("a"), 0), str("…"));
    }
};

QTEST_MAIN(TestForeignText)
#include "tst_foreigntext.moc"
