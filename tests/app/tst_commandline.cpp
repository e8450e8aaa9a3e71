#include "app/commandline.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

/// The boxes of a command-line run, looked at from inside. What they lead to is tested on the real executable.
class TestCommandLine final : public QObject
{
    Q_OBJECT

    // Runs the command line and hands the box it shows to `look`, then presses the box's button.
    template<typename Look>
    qint32 runAndLook(const QString &text, Look look)
    {
        int boxes = 0;
        QTimer poll;
        connect(&poll, &QTimer::timeout, this, [&] {
            const auto box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            ++boxes;
            look(*box);
            box->button(QMessageBox::Ok)->click();
        });
        poll.start(10);
        const qint32 code = runCommandLine(text);
        if (boxes != 1)
            QTest::qFail("not exactly one box", __FILE__, __LINE__);
        return code;
    }

private Q_SLOTS:
    void theUsageBoxKeepsItsTextToTheCharacter()
    {
        const QString line = QStringLiteral("/x %1 %2 %n %s");
        const qint32 code = runAndLook(line, [&line](QMessageBox &box) {
            QCOMPARE(box.text(), QStringLiteral("<p>Error in arguments</b>: '") + line +
                                     QStringLiteral("'</p><b>Usage:</b><br/><em>start /wait orv.exe /a ALGORITHM /c "
                                                    "CHECKSUM /f FILE</em><br/>Error Level: Valid=0 | Invalid=1 | "
                                                    "Error=-1"));
            QCOMPARE(box.windowTitle(), QStringLiteral("Command Line Interface"));
            QCOMPARE(box.icon(), QMessageBox::Information);
            QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
            QCOMPARE(box.parent(), nullptr);
        });
        QCOMPARE(code, -1);
    }

    void aLongCommandLineIsThereAsAWhole()
    {
        const QString line = QStringLiteral("/x ") + QStringLiteral("word ").repeated(6000);
        const qint32 code = runAndLook(line, [&line](QMessageBox &box) {
            QVERIFY(box.text().contains(line));
            const QSize screen = box.screen()->availableSize();
            QVERIFY(box.width() <= screen.width() && box.height() < screen.height());
        });
        QCOMPARE(code, -1);
    }

    void theNotFoundBoxShowsTheNameAsData()
    {
        const qint32 code = runAndLook(QStringLiteral("/a md5 /c 1 /f  \"<b>%1 no\" "), [](QMessageBox &box) {
            QCOMPARE(box.text(), QStringLiteral("File '\"<b>%1 no\" ' not found."));
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QCOMPARE(box.windowTitle(), QStringLiteral("Command Line Interface"));
            QCOMPARE(box.icon(), QMessageBox::Warning);
            QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
            QCOMPARE(box.parent(), nullptr);
        });
        QCOMPARE(code, -1);
    }

    void showUsageErrorReturnsTheErrorCode()
    {
        QTimer::singleShot(200, this, [] { QApplication::activeModalWidget()->close(); });
        QCOMPARE(showUsageError(QStringLiteral("anything")), -1);
    }
};

QTEST_MAIN(TestCommandLine)
#include "tst_commandline.moc"
