#include "configuration.h"
#include "tests/ui/uitest.h"
#include "ui/dialogstart.h"
#include "ui/faderwidget.h"
#include "ui/mainwindow.h"

#include <QCheckBox>
#include <QLabel>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeWidget>

class TestDialogStart final : public UiTest
{
    Q_OBJECT

    std::unique_ptr<DialogStart> m_dialog;

    template<typename Widget>
    Widget *widget(const char *name) const
    {
        return m_dialog->findChild<Widget *>(str(name));
    }

    void makeDialog()
    {
        m_dialog = std::make_unique<DialogStart>(nullptr, Qt::CustomizeWindowHint | Qt::WindowStaysOnTopHint);
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    int page() const { return widget<QStackedWidget>("stackedWidget")->currentIndex(); }

    // What the welcome must be, rendered with a document of its own.
    QString welcome(const QStringList &texts) const
    {
        const QString web = QString::fromLatin1(Configuration::webAddress);
        const QString bare = web.mid(7);
        QTextDocument document;
        document.setDefaultFont(widget<QTextBrowser>("textBrowser")->document()->defaultFont());
        document.setHtml(str("<span style='font-weight:bold;color:#333;font-size:14px'><h3>") + texts.at(0) +
                         str("</h3><p>") + texts.at(1) + str("<br/><a href='") + web + str("/products'>") + bare +
                         str("/products</a></p><p>") + texts.at(2) + str("<br/>") + texts.at(3) +
                         str("<br/><a href='") + web + str("/contact'>") + bare + str("/contact</a></p></span>"));
        return document.toHtml();
    }

private Q_SLOTS:
    void cleanup() { m_dialog.reset(); }

    void theSlotsHaveTheirOrder()
    {
        const QMetaObject &meta = DialogStart::staticMetaObject;
        const QList<QByteArray> expected{"retranslate()", "buttonNextPressed()", "fadeInWidget(int)"};
        QCOMPARE(meta.methodCount() - meta.methodOffset(), expected.size());
        for (int i = 0; i < expected.size(); ++i)
            QCOMPARE(meta.method(meta.methodOffset() + i).methodSignature(), expected.at(i));
        QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    }

    void itShowsItselfOnTheFirstPageWithTheButtonInFocus()
    {
        makeDialog();
        QVERIFY(m_dialog->isVisible());
        QVERIFY(m_dialog->isModal());
        QCOMPARE(page(), 0);
        QVERIFY(widget<QPushButton>("buttonNext")->hasFocus());
        QVERIFY(widget<QCheckBox>("checkBoxFinal")->isChecked());
        QVERIFY(m_dialog->findChildren<FaderWidget *>().isEmpty());
    }

    void makingItStoresTheSelectedLanguage_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("nothing stored") << QString() << str("en_UK");
        QTest::newRow("German") << str("de_DE") << str("de_DE");
        QTest::newRow("no such catalogue") << str("xx_XX") << str("en_UK");
        QTest::newRow("another case") << str("DE_de") << str("en_UK");
    }

    void makingItStoresTheSelectedLanguage()
    {
        QFETCH(QString, before);
        setSetting(Language, before);
        makeDialog();
        QTEST(setting(Language).toString(), "after");
        QTEST(widget<QTreeWidget>("listLocale")->currentItem()->text(0), "after");
    }

    void theWelcomeIsPutTogetherAsItMustBe()
    {
        makeDialog();
        QCOMPARE(widget<QTextBrowser>("textBrowser")->toHtml(),
                 welcome({str("We would like to thank you for your confidence and hope you'll enjoy our software."),
                          str("Discover more products from us:"),
                          str("We are looking for native speaking translators."), str("Please contact us at: ")}));
    }

    void anotherLanguageRelabelsEverythingAtOnce()
    {
        makeDialog();
        auto *tree = widget<QTreeWidget>("listLocale");
        tree->setCurrentItem(tree->findItems(str("de_DE"), Qt::MatchExactly, 0).first());
        QCOMPARE(setting(Language).toString(), str("de_DE"));
        QTRY_COMPARE(widget<QPushButton>("buttonNext")->text(), str("&Weiter"));
        QCOMPARE(widget<QCheckBox>("checkBoxFinal")->text(), str("Automatisch nach Aktualisierungen suchen"));
        QCOMPARE(tree->headerItem()->text(2), str("Land"));
        QCOMPARE(
            widget<QTextBrowser>("textBrowser")->toHtml(),
            welcome({str("Wir danken Ihnen für Ihr Vertrauen und wünschen Ihnen viel Freude mit unserer Software."),
                     str("Entdecken Sie weitere Produkte von uns:"),
                     str("Wir suchen Übersetzer, die in ihre Muttersprache übersetzen."),
                     str("Bitte schreiben Sie uns: ")}));
    }

    void everyOpenWindowChangesItsLanguage()
    {
        MainWindow window(nullptr, Qt::WindowFlags());
        window.initWindow();
        window.show();
        makeDialog();
        auto *tree = widget<QTreeWidget>("listLocale");
        tree->setCurrentItem(tree->findItems(str("de_DE"), Qt::MatchExactly, 0).first());
        QTRY_COMPARE(window.findChild<QLabel *>(str("label_2"))->text(), str("Pfad:"));
        QTRY_COMPARE(widget<QPushButton>("buttonNext")->text(), str("&Weiter"));
    }

    void enterLeadsThroughBothPagesToTheEnd()
    {
        makeDialog();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(page(), 1);
        QVERIFY(m_dialog->isVisible());
        const auto faders = m_dialog->findChildren<FaderWidget *>();
        QCOMPARE(faders.size(), 1);
        QCOMPARE(faders.first()->parentWidget(), widget<QStackedWidget>("stackedWidget")->widget(1));
        const QPointer<FaderWidget> fader = faders.first();
        QTRY_VERIFY(!fader);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(m_dialog->isHidden());
    }

    void execEndsWithTheLastPage()
    {
        DialogStart dialog(nullptr, Qt::CustomizeWindowHint | Qt::WindowStaysOnTopHint);
        auto *next = dialog.findChild<QPushButton *>(str("buttonNext"));
        QTimer::singleShot(100, next, &QPushButton::click);
        QTimer::singleShot(200, next, &QPushButton::click);
        dialog.exec();
        QVERIFY(dialog.isHidden());
    }

    void itCannotBeClosedBeforeItsEnd()
    {
        makeDialog();
        for (const int expectedPage : {0, 1}) {
            QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            m_dialog->close();
            QVERIFY(m_dialog->isVisible());
            QCOMPARE(page(), expectedPage);
            m_dialog->buttonNextPressed();
        }
        QVERIFY(m_dialog->isHidden());
    }

    void theDialogItselfActsOnNoKey()
    {
        makeDialog();
        QTest::keyClick(m_dialog.get(), Qt::Key_Return);
        QCOMPARE(page(), 0);
    }

    void theBoxIsWrittenWhenTheDialogGoes_data()
    {
        QTest::addColumn<bool>("isChecked");
        QTest::newRow("checked") << true;
        QTest::newRow("unchecked") << false;
    }

    void theBoxIsWrittenWhenTheDialogGoes()
    {
        QFETCH(bool, isChecked);
        setSetting(VersionCheckAuto, !isChecked);
        makeDialog();
        QVERIFY(widget<QCheckBox>("checkBoxFinal")->isChecked()); // whatever is stored
        widget<QCheckBox>("checkBoxFinal")->setChecked(isChecked);
        QCOMPARE(setting(VersionCheckAuto).toBool(), !isChecked);
        m_dialog.reset();
        QCOMPARE(setting(VersionCheckAuto).toString(), isChecked ? str("true") : str("false"));
    }

    void itIsMovedByItsBody()
    {
        makeDialog();
        const QPoint start = m_dialog->frameGeometry().topLeft();
        auto *label = widget<QLabel>("labelVersion");
        const QPoint global = label->mapToGlobal(QPoint(20, 20));
        QMouseEvent press(QEvent::MouseButtonPress, QPoint(20, 20), global, Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(label, &press);
        QMouseEvent move(QEvent::MouseMove, QPoint(20, 20), global + QPoint(-30, 25), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(label, &move);
        QTRY_COMPARE(m_dialog->frameGeometry().topLeft(), start + QPoint(-30, 25));
    }
};

QTEST_MAIN(TestDialogStart)
#include "tst_dialogstart.moc"
