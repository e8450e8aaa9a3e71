#include "configuration.h"
#include "settings/appsettings.h"
#include "tests/support/webserver.h"
#include "update/versioncheck.h"

#include <QApplication>
#include <QDate>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QNetworkProxy>
#include <QProcess>
#include <QPushButton>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <sys/stat.h>

#include <memory>

namespace {

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

const QString webAddress = QString::fromLatin1(Configuration::webAddress);

QStringList debugLines;
QtMessageHandler defaultHandler = nullptr;

void collectDebugLines(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtDebugMsg)
        debugLines << message;
    else
        defaultHandler(type, context, message);
}

// Sends the checks to a server on this machine. They ask it as a proxy, so that the address they ask for stays the
// configured one, host and all.
void askAt(quint16 port)
{
    QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::HttpProxy, str("127.0.0.1"), port));
}

qint64 residentKilobytes()
{
    QFile file(str("/proc/self/status"));
    file.open(QIODevice::ReadOnly);
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).simplified().split(' ').value(0).toLongLong();
    }
    return 0;
}

void resetPeakOfMemory()
{
    QFile file(str("/proc/self/clear_refs"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("5") == 1 && file.flush());
}

/// What a box looked like when it stood.
struct SeenBox
{
    QString title;
    QString text;
    QString informativeText;
    QStringList buttons;
    QString defaultButton;
    QMessageBox::Icon icon;
    Qt::WindowModality modality;
    Qt::WindowFlags flags;
    QWidget *parent;
    QSize size;
};

} // namespace

class TestVersionCheck final : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    std::unique_ptr<QWidget> m_window;
    QList<SeenBox> m_boxes;
    QList<QUrl> m_opened;
    QMessageBox::StandardButton m_answer = QMessageBox::NoButton;
    QTimer m_watch;

    static QString timeStamp() { return AppSettings::instance().value(VersionCheckTimeStamp, QVariant()).toString(); }

    static void setTimeStamp(const QString &text)
    {
        AppSettings::instance().setValue(AppSettings::instance().keyName(VersionCheckTimeStamp), text);
    }

    static QString today() { return QDate::currentDate().toString(str("dd.MM.yyyy")); }

    void lookAtBox()
    {
        const auto box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        QStringList buttons;
        const auto all = box->buttons();
        for (const QAbstractButton *button : all)
            buttons << button->text();
        m_boxes.append({box->windowTitle(), box->text(), box->informativeText(), buttons,
                        box->defaultButton() ? box->defaultButton()->text() : QString(), box->icon(),
                        box->windowModality(), box->windowFlags(), box->parentWidget(), box->size()});
        QAbstractButton *answer = m_answer != QMessageBox::NoButton ? box->button(m_answer) : all.first();
        answer->click();
    }

    VersionCheck *start(bool manual)
    {
        auto *check = new VersionCheck(m_window.get(), manual); // the window owns it
        QTimer::singleShot(0, check, &VersionCheck::check);
        return check;
    }

    // Starts a check and waits for the debug line or the box that ends it.
    void run(bool manual)
    {
        start(manual);
        QTRY_VERIFY_WITH_TIMEOUT(!debugLines.isEmpty() || !m_boxes.isEmpty(), 20000);
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QTest::qWait(20);
    }

    void expectConnectionErrorBox(const SeenBox &box) const
    {
        QCOMPARE(box.title, str("Version check failed"));
        QCOMPARE(box.text, str("Could not connect to server.\nPlease check your internet/firewall settings or look for "
                               "yourself at: ") +
                               webAddress + str(" for a new version."));
        QCOMPARE(box.icon, QMessageBox::Warning);
        QCOMPARE(box.buttons.size(), 1);
        QCOMPARE(box.parent, m_window.get());
    }

private Q_SLOTS:
    void openUrl(const QUrl &url) { m_opened << url; }

    void initTestCase()
    {
        QVERIFY(QDir::setCurrent(m_folder.path()));
        QCoreApplication::setApplicationVersion(str("1.1.6.2"));
        defaultHandler = qInstallMessageHandler(collectDebugLines);
        connect(&m_watch, &QTimer::timeout, this, &TestVersionCheck::lookAtBox);
        m_watch.start(10);
        QDesktopServices::setUrlHandler(str("http"), this, "openUrl");
        QDesktopServices::setUrlHandler(str("https"), this, "openUrl");
        QDesktopServices::setUrlHandler(str("file"), this, "openUrl");
    }

    void cleanupTestCase()
    {
        qInstallMessageHandler(defaultHandler);
        QDir::setCurrent(str("/"));
    }

    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        m_boxes.clear();
        m_opened.clear();
        m_answer = QMessageBox::NoButton;
        debugLines.clear();
        setTimeStamp(QString());
    }

    void aManualCheckSendsItsWholeQuery()
    {
        WebServer server;
        askAt(server.port());
        server.setBody("version|1.1.6.2");
        AppSettings::instance().setValue(str("IsFirstStart"), false);
        run(true);
        const QByteArray locale = QLocale::system().name().toLatin1();
        QCOMPARE(server.requests(), QList<QByteArray>{QByteArray("GET http://") + Configuration::updateHost +
                                                      "/latest.php?id=orvanta&version=1.1.6.2&fresh=0&lang=" + locale +
                                                      "&beta=1&arch=64 HTTP/1.1|-|200"});
    }

    void anAutomaticCheckSendsItsWholeQuery()
    {
        WebServer server;
        askAt(server.port());
        server.setBody("version|1.1.6.2");
        AppSettings::instance().setValue(str("IsFirstStart"), true);
        run(false);
        QCOMPARE(server.requests().size(), 1);
        QVERIFY(server.requests().at(0).contains("&fresh=1&"));
        QVERIFY(server.requests().at(0).contains("&beta=0&arch=64 HTTP"));
    }

    void whetherItIsTheFirstStartIsReadWhenTheCheckRuns()
    {
        WebServer server;
        askAt(server.port());
        server.setBody("version|1.1.6.2");
        AppSettings::instance().setValue(str("IsFirstStart"), true);
        start(false);
        AppSettings::instance().setValue(str("IsFirstStart"), false);
        QTRY_VERIFY(!debugLines.isEmpty());
        QVERIFY(server.requests().at(0).contains("&fresh=0&"));
    }

    void aNewerVersionIsShownByEitherKindOfCheck_data()
    {
        QTest::addColumn<bool>("manual");
        QTest::newRow("automatic") << false;
        QTest::newRow("manual") << true;
    }

    void aNewerVersionIsShownByEitherKindOfCheck()
    {
        QFETCH(bool, manual);
        WebServer server;
        askAt(server.port());
        server.setBody("version|1.1.6.3#changes|<i>%1</i> fixes#log|http://log.example/%2#url|http://get.example/new");
        m_answer = QMessageBox::Yes;
        run(manual);
        QCOMPARE(m_boxes.size(), 1);
        const SeenBox &box = m_boxes.at(0);
        QCOMPARE(box.title, str("BrimTale 1.1.6.2"));
        QCOMPARE(box.text, str("New version available: <b>Brimtale 1.1.6.3</b>"));
        QCOMPARE(
            box.informativeText,
            str("<b style=\"color:#444\"><i>%1</i> fixes</b><br/><a href=http://log.example/%2>http://log.example/%2"
                "</a><br/><br/>Do you want to download the latest version from our website?"));
        QCOMPARE(box.icon, QMessageBox::Question);
        QCOMPARE(box.buttons, (QStringList{str("Yes"), str("No")}));
        QCOMPARE(box.defaultButton, str("Yes"));
        QCOMPARE(box.modality, Qt::WindowModal);
        QVERIFY(box.flags & Qt::WindowStaysOnTopHint);
        QVERIFY(!(box.flags & Qt::WindowContextHelpButtonHint));
        QCOMPARE(box.parent, m_window.get());
        QCOMPARE(m_opened, QList<QUrl>{QUrl(str("http://get.example/new"))});
        QCOMPARE(timeStamp(), today());
        QCOMPARE(debugLines, QStringList{str("*success*version check successful")});
    }

    void noOpensNothingAndIsRememberedAllTheSame()
    {
        WebServer server;
        askAt(server.port());
        server.setBody("version|2.0.0.0#url|http://get.example/new");
        m_answer = QMessageBox::No;
        run(true);
        QCOMPARE(m_boxes.size(), 1);
        QVERIFY(m_opened.isEmpty());
        QCOMPARE(timeStamp(), today());
    }

    void onlyTheWebIsOpened()
    {
        WebServer server;
        askAt(server.port());
        server.setBody("version|2.0.0.0#url|file:///etc/passwd");
        m_answer = QMessageBox::Yes;
        run(true);
        QVERIFY(m_opened.isEmpty());
        QCOMPARE(debugLines, (QStringList{str("*fail*refused address: file:///etc/passwd"),
                                          str("*success*version check successful")}));
    }

    void aLinkInTheBoxOpensOnlyTheWeb()
    {
        WebServer server;
        askAt(server.port());
        server.setBody("version|2.0.0.0#log|file:///etc/passwd");
        m_answer = QMessageBox::No;
        int labels = 0;
        QTimer clicker;
        connect(&clicker, &QTimer::timeout, this, [&] {
            const auto box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box || labels > 0)
                return;
            const auto all = box->findChildren<QLabel *>();
            for (QLabel *label : all) {
                if (!label->text().contains(str("<a href")))
                    continue;
                ++labels;
                QVERIFY(!label->openExternalLinks());
                Q_EMIT label->linkActivated(str("file:///etc/passwd"));
                Q_EMIT label->linkActivated(str("https://log.example/"));
            }
        });
        clicker.start(0);
        run(true);
        QCOMPARE(labels, 1);
        QCOMPARE(m_opened, QList<QUrl>{QUrl(str("https://log.example/"))});
    }

    void theServersHtmlLoadsNothingAndIsLaidOutAtOnce_data()
    {
        QTest::addColumn<QString>("body");
        const QString pipe = m_folder.filePath(str("pipe")); // whoever opens it waits for ever
        ::mkfifo(QFile::encodeName(pipe).constData(), 0600);
        QTest::newRow("a picture") << str("version|2.0.0.0#changes|<img src='%1'>").arg(pipe);
        QTest::newRow("a picture in the version")
            << str("version|2.0.0.<img src='%1'>").arg(pipe); // there is no dot in its path
        QTest::newRow("a picture in the link") << str("version|2.0.0.0#log|a><img src='%1'>").arg(pipe);
        QTest::newRow("a picture across two values")
            << str("version|2.0.0.0#changes|<img style='#log|%1' src='%1'>").arg(pipe);
        QTest::newRow("a background") << str("version|2.0.0.0#changes|<b style='background-image:url(%1)'>").arg(pipe);
        QTest::newRow("a style sheet") << str("version|2.0.0.0#changes|<link rel='stylesheet' href='%1'>").arg(pipe);
        QTest::newRow("tables in tables") << str("version|2.0.0.0#changes|") + str("<table><tr><td>").repeated(4000);
        QTest::newRow("a very long text") << str("version|2.0.0.0#changes|") + str("<br>x ").repeated(10000);
        QTest::newRow("a very long version") << str("version|2.0.0.") + str("0 ").repeated(30000);
        QTest::newRow("a very long link") << str("version|2.0.0.0#log|") + str("a ").repeated(30000);
    }

    void theServersHtmlLoadsNothingAndIsLaidOutAtOnce()
    {
        QFETCH(QString, body);
        WebServer server;
        askAt(server.port());
        server.setBody(body.toUtf8());
        m_answer = QMessageBox::No;
        run(true);
        QCOMPARE(m_boxes.size(), 1);
        QVERIFY(m_boxes.at(0).size.height() < 5000);
        QCOMPARE(timeStamp(), today());
    }

    void noNewerVersionIsShownByAManualCheckOnly_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("manual");
        QTest::newRow("equal, automatic") << QByteArray("version|1.1.6.2") << false;
        QTest::newRow("equal, manual") << QByteArray("version|1.1.6.2") << true;
        QTest::newRow("older, automatic") << QByteArray("version|1.0.9.9") << false;
        QTest::newRow("older, manual") << QByteArray("version|1.0.9.9") << true;
    }

    void noNewerVersionIsShownByAManualCheckOnly()
    {
        QFETCH(QByteArray, body);
        QFETCH(bool, manual);
        WebServer server;
        askAt(server.port());
        server.setBody(body);
        run(manual);
        QTRY_COMPARE(debugLines, QStringList{str("*success*version check successful")});
        QCOMPARE(timeStamp(), today());
        QCOMPARE(m_boxes.size(), manual ? 1 : 0);
        if (!manual)
            return;
        QCOMPARE(m_boxes.at(0).title, str("BrimTale 1.1.6.2"));
        QCOMPARE(m_boxes.at(0).text, str("No updates are available."));
        QCOMPARE(m_boxes.at(0).informativeText, QString());
        QCOMPARE(m_boxes.at(0).buttons, QStringList{str("Okay")});
        QCOMPARE(m_boxes.at(0).icon, QMessageBox::Information);
        QCOMPARE(m_boxes.at(0).modality, Qt::WindowModal);
        QVERIFY(!(m_boxes.at(0).flags & Qt::WindowContextHelpButtonHint));
    }

    void aReplyThatCannotBeReadIsShownByEitherKindOfCheck_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("manual");
        for (const bool manual : {false, true}) {
            const char *kind = manual ? "manual" : "automatic";
            QTest::addRow("three parts, %s", kind) << QByteArray("version|2.0.0") << manual;
            QTest::addRow("no version, %s", kind) << QByteArray("changes|a") << manual;
            QTest::addRow("empty version, %s", kind) << QByteArray("version|#changes|a") << manual;
            QTest::addRow("empty body, %s", kind) << QByteArray() << manual;
            QTest::addRow("a web page, %s", kind) << QByteArray("<html>Log in to this network</html>") << manual;
        }
    }

    void aReplyThatCannotBeReadIsShownByEitherKindOfCheck()
    {
        QFETCH(QByteArray, body);
        QFETCH(bool, manual);
        WebServer server;
        askAt(server.port());
        server.setBody(body);
        run(manual);
        QCOMPARE(m_boxes.size(), 1);
        expectConnectionErrorBox(m_boxes.at(0));
        QCOMPARE(timeStamp(), QString());
        QCOMPARE(debugLines, QStringList());
    }

    void anErrorOfTheNetworkIsShownByAManualCheckOnly_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<bool>("manual");
        for (const bool manual : {false, true}) {
            const char *kind = manual ? "manual" : "automatic";
            for (const char *way :
                 {"refused", "404", "hangup", "garbage", "cut", "endless", "toolong", "headers", "headerline",
                  "statusline", "bomb", "file:///etc/passwd", "ftp://127.0.0.1/a", "data:text/plain,version|9.9.9.9"})
                QTest::addRow("%s, %s", way, kind) << str(way) << manual;
        }
    }

    void anErrorOfTheNetworkIsShownByAManualCheckOnly()
    {
        QFETCH(QString, way);
        QFETCH(bool, manual);
        std::unique_ptr<WebServer> webServer;
        std::unique_ptr<MisbehavingServer> misbehavingServer;
        if (way == str("404")) {
            webServer = std::make_unique<WebServer>();
            askAt(webServer->port());
        } else if (way == str("refused")) {
            askAt(freePort());
        } else {
            misbehavingServer = std::make_unique<MisbehavingServer>(way);
            askAt(misbehavingServer->port());
        }

        // The servers that send too much have half a gibibyte and more to send.
        resetPeakOfMemory();
        const qint64 before = residentKilobytes();
        run(manual);
        const qint64 growth = residentKilobytes() - before;
        QTRY_COMPARE(debugLines, QStringList{str("*fail*version check failed")});
        QVERIFY2(growth < 200 * 1024, qPrintable(str("memory grew by %1 kB").arg(growth)));
        QCOMPARE(timeStamp(), QString());
        QCOMPARE(m_boxes.size(), manual ? 1 : 0);
        if (manual)
            expectConnectionErrorBox(m_boxes.at(0));
    }

    void sixtyFourKibibytesAreRead()
    {
        const MisbehavingServer server(str("exact"));
        askAt(server.port());
        run(false);
        QCOMPARE(debugLines, QStringList{str("*success*version check successful")});
    }

    void aRedirectInsideTheWebIsFollowed()
    {
        // Every address is asked of the one server, which sends on and on until the check gives up.
        MisbehavingServer server(str("http://other.example/latest.php"));
        askAt(server.port());
        run(false);
        QCOMPARE(debugLines, QStringList{str("*fail*version check failed")});
        QVERIFY(server.nextLine().contains(Configuration::updateHost));
        QByteArray line = server.nextLine();
        while (line.startsWith("closed"))
            line = server.nextLine();
        QCOMPARE(line, QByteArray("request GET http://other.example/latest.php HTTP/1.1"));
    }

    void aTimeStampOfTodaySkipsAnAutomaticCheckOnly()
    {
        WebServer server;
        askAt(server.port());
        server.setBody("version|1.1.6.2");
        setTimeStamp(today());
        start(false);
        QTest::qWait(500);
        QVERIFY(server.requests().isEmpty());
        QVERIFY(debugLines.isEmpty() && m_boxes.isEmpty());
        run(true);
        QCOMPARE(server.requests().size(), 1);
    }

    void aTimeStampOfAnotherDaySkipsNothing_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("tomorrow") << QDate::currentDate().addDays(1).toString(str("dd.MM.yyyy"));
        QTest::newRow("yesterday") << QDate::currentDate().addDays(-1).toString(str("dd.MM.yyyy"));
        QTest::newRow("no date") << str("today");
    }

    void aTimeStampOfAnotherDaySkipsNothing()
    {
        QFETCH(QString, text);
        WebServer server;
        askAt(server.port());
        server.setBody("version|1.1.6.2");
        setTimeStamp(text);
        run(false);
        QCOMPARE(server.requests().size(), 1);
        QCOMPARE(timeStamp(), today());
    }

    void aManualCheckCountsForTheAutomaticOnesOfTheDay()
    {
        WebServer server;
        askAt(server.port());
        server.setBody("version|1.1.6.2");
        run(true);
        debugLines.clear();
        start(false);
        QTest::qWait(300);
        QCOMPARE(server.requests().size(), 1);
    }

    void everyCheckIsIndependent()
    {
        WebServer server;
        askAt(server.port());
        server.setBody("version|1.1.6.2");
        start(true);
        start(true);
        start(true);
        QTRY_COMPARE_WITH_TIMEOUT(m_boxes.size(), 3, 20000);
        QTRY_COMPARE(debugLines.size(), 3);
    }

    void destroyingTheParentCancelsTheCheck_data()
    {
        QTest::addColumn<QString>("way");
        QTest::newRow("silent server") << str("silent");
        QTest::newRow("slow server") << str("slow");
    }

    void destroyingTheParentCancelsTheCheck()
    {
        QFETCH(QString, way);
        MisbehavingServer server(way);
        askAt(server.port());
        start(true);
        QTest::qWait(300);
        QVERIFY(server.nextLine().startsWith("request GET"));
        m_window.reset();
        QVERIFY(server.nextLine().startsWith("closed"));
        QTest::qWait(100);
        QVERIFY(m_boxes.isEmpty());
        QVERIFY(debugLines.isEmpty());
        QCOMPARE(timeStamp(), QString());
    }

    void aBoxMayStandWhenItsParentGoes_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::newRow("new version") << QByteArray("version|2.0.0.0#url|http://get.example/");
        QTest::newRow("malformed") << QByteArray("version|2");
        QTest::newRow("no updates") << QByteArray("version|1.1.6.2");
    }

    void aBoxMayStandWhenItsParentGoes()
    {
        QFETCH(QByteArray, body);
        WebServer server;
        askAt(server.port());
        server.setBody(body);
        m_watch.stop();
        QTimer::singleShot(0, this, [this] { start(true); });
        bool stood = false;
        QTimer destroyer;
        connect(&destroyer, &QTimer::timeout, this, [&] {
            if (!m_window || !QApplication::activeModalWidget())
                return;
            stood = true;
            m_window.reset();
        });
        destroyer.start(10);
        QTRY_VERIFY_WITH_TIMEOUT(stood, 20000);
        QTest::qWait(100);
        m_watch.start(10);
        QVERIFY(!QApplication::activeModalWidget());
        QCOMPARE(timeStamp(), QString());
        QVERIFY(m_opened.isEmpty());
    }

    void theClassHasItsSlotsAndNothingElse()
    {
        const QMetaObject &meta = VersionCheck::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
        QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("check()"));
        QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(),
                 QByteArray("downloadFinished(QNetworkReply*)"));
        QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    }
};

QTEST_MAIN(TestVersionCheck)
#include "tst_versioncheck.moc"
