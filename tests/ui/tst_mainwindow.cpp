#include "configuration.h"
#include "tests/ui/uitest.h"
#include "ui/mainwindow.h"

#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QDrag>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>

namespace {

constexpr Qt::WindowFlags flags =
    Qt::WindowCloseButtonHint | Qt::CustomizeWindowHint | Qt::WindowMaximizeButtonHint | Qt::WindowMinimizeButtonHint;
const QString md5OfAbc = QStringLiteral("900150983cd24fb0d6963f7d28e17f72");
const QString sha1OfAbc = QStringLiteral("A9993E364706816ABA3E25717850C26C9CD0D89D");

} // namespace

/// The checksum panel and the ways a file gets into it.
class TestMainWindow final : public UiTest
{
    Q_OBJECT

    std::unique_ptr<MainWindow> m_window;
    QString m_file;

    template<typename Widget>
    Widget *widget(const char *name) const
    {
        Widget *found = m_window->findChild<Widget *>(str(name));
        if (!found)
            qFatal("no widget %s", name);
        return found;
    }

    QLineEdit *line(const char *name) const { return widget<QLineEdit>(name); }
    QString status() const { return widget<QStatusBar>("statusbar")->currentMessage(); }
    QString statusColor() const { return widget<QStatusBar>("statusbar")->styleSheet(); }

    // "enable", "disable" or nothing.
    QString icon() const
    {
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        const QPixmap shown = widget<QLabel>("labelValid")->pixmap();
#else
        const QPixmap shown = widget<QLabel>("labelValid")->pixmap(Qt::ReturnByValue);
#endif
        for (const char *name : {"enable", "disable"}) {
            if (!shown.isNull() && shown.toImage() == QPixmap(str(":/img/%1.png").arg(str(name))).toImage())
                return str(name);
        }
        return shown.isNull() ? QString() : str("another picture");
    }

    void expectNeedTwo() const
    {
        QCOMPARE(status(), str("Two checksums are needed for verification.."));
        QCOMPARE(statusColor(), str("color:#33a"));
        QCOMPARE(icon(), QString());
    }

    void expectValid() const
    {
        QCOMPARE(status(), str("VALID - Checksums do match"));
        QCOMPARE(statusColor(), str("color:#3a3"));
        QCOMPARE(icon(), str("enable"));
    }

    void expectInvalid() const
    {
        QCOMPARE(status(), str("INVALID - Checksums do not match"));
        QCOMPARE(statusColor(), str("color:#a33"));
        QCOMPARE(icon(), str("disable"));
    }

    void showWindow() const
    {
        QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight()); // over nothing with a tip
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    // A drag that enters, moves and is dropped over a widget, the way the display delivers it.
    struct DragResult
    {
        bool entered;
        bool dropped;
    };

    DragResult drag(QWidget *over, const QMimeData &data) const
    {
        const QPoint position = over->mapTo(m_window.get(), QPoint(4, 4));
        QWindow *window = m_window->windowHandle();
        QDragEnterEvent enter(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &enter);
        QDragMoveEvent move(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        move.setAccepted(enter.isAccepted());
        QCoreApplication::sendEvent(window, &move);
        if (!move.isAccepted()) {
            QDragLeaveEvent leave;
            QCoreApplication::sendEvent(window, &leave);
            return {enter.isAccepted(), false};
        }
        QDropEvent drop(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &drop);
        return {enter.isAccepted(), drop.isAccepted()};
    }

    static void setUrls(QMimeData &data, const QList<QUrl> &urls)
    {
        data.setUrls(urls);
        // The plain-text twin that file managers offer.
        if (!urls.isEmpty())
            data.setText(urls.first().toString());
    }

private Q_SLOTS:
    void init()
    {
        startAfresh();
        m_file = write(str("sample.bin"), "abc");
        m_window = std::make_unique<MainWindow>(nullptr, flags);
        m_window->initWindow();
    }

    void cleanup()
    {
        m_window.reset();
    }

    void theSlotsHaveTheirIndices()
    {
        const QMetaObject &meta = MainWindow::staticMetaObject;
        const QList<QByteArray> expected{"on_toolButtonFolder_clicked()",
                                         "updateChecksumIn(QString)",
                                         "lineEditEnter()",
                                         "comboBoxChanged(int)",
                                         "mousePressEvent(QMouseEvent*)",
                                         "mouseMoveEvent(QMouseEvent*)",
                                         "timerUpdate()",
                                         "on_actionConfig_triggered()",
                                         "on_pushButtonWebsite_clicked()"};
        QCOMPARE(meta.methodCount() - meta.methodOffset(), expected.size());
        for (int i = 0; i < expected.size(); ++i) {
            QCOMPARE(meta.method(meta.methodOffset() + i).methodSignature(), expected.at(i));
            QCOMPARE(meta.method(meta.methodOffset() + i).methodType(), QMetaMethod::Slot);
        }
        QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    }

    void theAlgorithmsAreThereWithMd5First()
    {
        const auto *box = widget<QComboBox>("comboBox");
        QCOMPARE(box->count(), 2);
        QCOMPARE(box->itemText(0), str("MD5  (Message-Digest Algorithm)"));
        QCOMPARE(box->itemText(1), str("SHA-1 (Secure Hashing Algorithm)"));
        QCOMPARE(box->itemData(0, Qt::UserRole), QVariant(0));
        QCOMPARE(box->itemData(1, Qt::UserRole), QVariant(1));
        QCOMPARE(box->currentIndex(), 0);
    }

    void nothingIsSaidAtFirst()
    {
        QCOMPARE(status(), QString());
        QCOMPARE(statusColor(), str("color:#444"));
        QCOMPARE(icon(), QString());
    }

    void aFileIsHashedAndNamed()
    {
        m_window->calculateChecksum(m_file);
        QCOMPARE(line("lineEditPath")->text(), m_file);
        QCOMPARE(line("lineEditCheckSumOut")->text(), md5OfAbc);
        expectNeedTwo();
    }

    void anEmptyPathOnlyRefreshesTheVerdict()
    {
        m_window->calculateChecksum(m_file);
        widget<QStatusBar>("statusbar")->clearMessage();
        m_window->calculateChecksum(QString());
        expectNeedTwo();
        QCOMPARE(line("lineEditPath")->text(), m_file);
        QCOMPARE(line("lineEditCheckSumOut")->text(), md5OfAbc);
    }

    void theVerdictIgnoresTheCaseAndNothingElse_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<bool>("isValid");
        QTest::newRow("equal") << md5OfAbc << true;
        QTest::newRow("upper case") << md5OfAbc.toUpper() << true;
        QTest::newRow("trailing blank") << md5OfAbc + str(" ") << false;
        QTest::newRow("leading blank") << str(" ") + md5OfAbc << false;
        QTest::newRow("one digit less") << md5OfAbc.chopped(1) << false;
        QTest::newRow("another") << str("0") << false;
        QTest::newRow("only a blank") << str(" ") << false;
    }

    void theVerdictIgnoresTheCaseAndNothingElse()
    {
        QFETCH(QString, pasted);
        QFETCH(bool, isValid);
        m_window->calculateChecksum(m_file);
        line("lineEditCheckSumIn")->setText(pasted);
        isValid ? expectValid() : expectInvalid();
    }

    void theVerdictFollowsEveryKey()
    {
        showWindow();
        m_window->calculateChecksum(m_file);
        QTest::keyClicks(line("lineEditCheckSumIn"), md5OfAbc.left(31));
        expectInvalid();
        QTest::keyClick(line("lineEditCheckSumIn"), '2');
        expectValid();
        QTest::keyClick(line("lineEditCheckSumIn"), Qt::Key_Backspace);
        expectInvalid();
        line("lineEditCheckSumIn")->clear();
        expectNeedTwo();
    }

    void theMessageOfTwoChecksumsIsGoneAfterTwoSeconds()
    {
        QElapsedTimer elapsed;
        elapsed.start();
        m_window->calculateChecksum(QString());
        expectNeedTwo();
        QTRY_VERIFY_WITH_TIMEOUT(status().isEmpty(), 20000);
        QVERIFY2(elapsed.elapsed() >= 1900, qPrintable(QString::number(elapsed.elapsed())));
        QCOMPARE(statusColor(), str("color:#33a"));
    }

    void aVerdictStays()
    {
        m_window->calculateChecksum(m_file);
        line("lineEditCheckSumIn")->setText(md5OfAbc);
        QTest::qWait(2500);
        expectValid();
    }

    void whatCannotBeOpenedIsSaidAndLeavesTheRest_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing") << str("/no/such/file");
        QTest::newRow("folder") << str("/tmp");
        QTest::newRow("quoted") << str("\"sample.bin\"");
        QTest::newRow("blanks around it") << str(" sample.bin ");
    }

    void whatCannotBeOpenedIsSaidAndLeavesTheRest()
    {
        QFETCH(QString, path);
        m_window->calculateChecksum(m_file);
        line("lineEditCheckSumIn")->setText(md5OfAbc);
        m_window->calculateChecksum(path);
        QCOMPARE(status(), str("Could not open file.."));
        QCOMPARE(statusColor(), str("color:#33a"));
        QCOMPARE(line("lineEditPath")->text(), path);
        QCOMPARE(line("lineEditCheckSumOut")->text(), md5OfAbc);
        QCOMPARE(icon(), str("enable")); // of the file before
        QTest::qWait(2500);
        QCOMPARE(status(), str("Could not open file.."));
    }

    void enterHashesTheTypedPathAndTypingDoesNot()
    {
        showWindow();
        QTest::keyClicks(line("lineEditPath"), m_file);
        QCOMPARE(line("lineEditCheckSumOut")->text(), QString());
        QTest::keyClick(line("lineEditPath"), Qt::Key_Return);
        QCOMPARE(line("lineEditCheckSumOut")->text(), md5OfAbc);
    }

    void anotherAlgorithmHashesAtOnce()
    {
        m_window->calculateChecksum(m_file);
        widget<QComboBox>("comboBox")->setCurrentIndex(1);
        QCOMPARE(line("lineEditCheckSumOut")->text(), sha1OfAbc);
        line("lineEditCheckSumIn")->setText(sha1OfAbc.toLower());
        expectValid();
        widget<QComboBox>("comboBox")->setCurrentIndex(0);
        QCOMPARE(line("lineEditCheckSumOut")->text(), md5OfAbc);
        expectInvalid();
    }

    void anotherAlgorithmWithoutAPathOnlyRefreshesTheVerdict()
    {
        widget<QComboBox>("comboBox")->setCurrentIndex(1);
        expectNeedTwo();
        QCOMPARE(line("lineEditCheckSumOut")->text(), QString());
    }

    void theArgumentOfTheVerdictIsIgnored()
    {
        m_window->calculateChecksum(m_file);
        m_window->updateChecksumIn(md5OfAbc);
        expectNeedTwo();
        m_window->comboBoxChanged(1);
        QCOMPARE(line("lineEditCheckSumOut")->text(), md5OfAbc);
    }

    void aStatusTipTakesTheBarAndLeavesTheIcon()
    {
        m_window->calculateChecksum(m_file);
        line("lineEditCheckSumIn")->setText(md5OfAbc);
        QStatusTipEvent tip(str("a tip"));
        tip.ignore();
        QVERIFY(m_window->event(&tip));
        QVERIFY(tip.isAccepted());
        QCOMPARE(status(), str("a tip"));
        QCOMPARE(statusColor(), str("color:#444"));
        QCOMPARE(icon(), str("enable"));
        QStatusTipEvent none{QString()};
        m_window->event(&none);
        QCOMPARE(status(), QString());
    }

    void hoveringShowsTheTipsOfTheForm()
    {
        showWindow();
        QTest::mouseMove(widget<QToolButton>("toolButtonFolder"));
        QTRY_COMPARE(status(), str("Select target file"));
        auto *config =
            widget<QToolBar>("toolBar")->widgetForAction(m_window->findChild<QAction *>(str("actionConfig")));
        QTest::mouseMove(config);
        QTRY_COMPARE(status(), str("Settings"));
    }

    void aNewLanguageRelabelsAndEmptiesBothChecksums()
    {
        m_window->calculateChecksum(m_file);
        line("lineEditCheckSumIn")->setText(md5OfAbc);
        expectValid();
        LanguageManager::instance().selectLanguage(str("de_DE"));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(widget<QGroupBox>("groupBox")->title(), str("Prüfsumme berechnen"));
        QCOMPARE(line("lineEditPath")->text(), m_file);
        QCOMPARE(line("lineEditCheckSumOut")->text(), QString());
        QCOMPARE(line("lineEditCheckSumIn")->text(), QString());
        QCOMPARE(status(), str("Für den Vergleich werden zwei Prüfsummen benötigt.."));
        QCOMPARE(icon(), QString());
        QCOMPARE(widget<QComboBox>("comboBox")->currentText(), str("MD5  (Message-Digest Algorithm)"));
        m_window->calculateChecksum(m_file);
        line("lineEditCheckSumIn")->setText(md5OfAbc);
        QCOMPARE(status(), str("GÜLTIG - Die Prüfsummen stimmen überein"));
    }

    void theBrowseDialogIsOpenedWithItsArguments()
    {
        showWindow();
        QStringList seen;
        QTimer::singleShot(0, this, [&seen] {
            QTRY_VERIFY(qobject_cast<QFileDialog *>(QApplication::activeModalWidget()));
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            seen << dialog->windowTitle() << dialog->nameFilters() << dialog->directory().path();
            dialog->reject();
        });
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        const QByteArray home = qgetenv("HOME");
        qputenv("HOME", path(str("home")).toLocal8Bit());
        QVERIFY(QDir().mkpath(path(str("home/desktop"))));
        widget<QToolButton>("toolButtonFolder")->click();
        qputenv("HOME", home);
        QCOMPARE(seen, (QStringList{str("Select target file"), str("All files (*.*)"), path(str("home/desktop"))}));
        expectNeedTwo(); // cancelled
        QCOMPARE(line("lineEditPath")->text(), QString());
    }

    void aFileChosenInTheBrowseDialogIsHashed()
    {
        showWindow();
        QTimer::singleShot(0, this, [this] {
            QTRY_VERIFY(qobject_cast<QFileDialog *>(QApplication::activeModalWidget()));
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            auto *name = dialog->findChild<QLineEdit *>(str("fileNameEdit"));
            name->setText(m_file);
            QTest::keyClick(name, Qt::Key_Return);
        });
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        widget<QToolButton>("toolButtonFolder")->click();
        QCOMPARE(line("lineEditCheckSumOut")->text(), md5OfAbc);
    }

    void aFileIsDroppedAnywhereOnTheGroup_data()
    {
        QTest::addColumn<QString>("over");
        for (const char *name :
             {"groupBox", "label", "lineEditPath", "lineEditCheckSumOut", "comboBox", "toolButtonFolder"})
            QTest::newRow(name) << str(name);
    }

    void aFileIsDroppedAnywhereOnTheGroup()
    {
        QFETCH(QString, over);
        showWindow();
        QMimeData data;
        setUrls(data, {QUrl::fromLocalFile(m_file), QUrl::fromLocalFile(str("/no/such/file"))});
        const DragResult result = drag(m_window->findChild<QWidget *>(over), data);
        QVERIFY(result.entered && result.dropped);
        QCOMPARE(line("lineEditPath")->text(), m_file);
        QCOMPARE(line("lineEditCheckSumOut")->text(), md5OfAbc);
    }

    void aFileIsNotDroppedOutsideOfTheGroup()
    {
        showWindow();
        QMimeData data;
        setUrls(data, {QUrl::fromLocalFile(m_file)});
        for (const char *name : {"label_5", "groupBox_2", "statusbar", "toolBar"})
            QVERIFY(!drag(widget<QWidget>(name), data).entered);
        QCOMPARE(line("lineEditPath")->text(), QString());
    }

    void whatIsNoFileIsRefused_data()
    {
        QTest::addColumn<QList<QUrl>>("urls");
        QTest::newRow("missing file") << QList<QUrl>{QUrl::fromLocalFile(str("/no/such/file"))};
        QTest::newRow("web address") << QList<QUrl>{QUrl(str("http://www.kelvory.example/file"))};
        QTest::newRow("missing file first")
            << QList<QUrl>{QUrl::fromLocalFile(str("/no/such")), QUrl::fromLocalFile(str("/tmp"))};
        QTest::newRow("none") << QList<QUrl>();
    }

    void whatIsNoFileIsRefused()
    {
        QFETCH(QList<QUrl>, urls);
        showWindow();
        for (const char *over : {"groupBox", "lineEditPath"}) {
            QMimeData data;
            setUrls(data, urls);
            if (urls.isEmpty())
                data.setData(str("text/uri-list"), QByteArray());
            const DragResult result = drag(widget<QWidget>(over), data);
            QVERIFY(!result.entered);
            QVERIFY(!result.dropped);
        }
        QCOMPARE(line("lineEditPath")->text(), QString());
        QCOMPARE(status(), QString());
    }

    void aDropOfNothingIsNothing()
    {
        QMimeData data;
        QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        drop.ignore();
        m_window->event(&drop);
        QVERIFY(!drop.isAccepted());
    }

    void aFolderIsTakenAndCannotBeOpened()
    {
        showWindow();
        QMimeData data;
        setUrls(data, {QUrl::fromLocalFile(QDir::tempPath())});
        QVERIFY(drag(widget<QWidget>("groupBox"), data).dropped);
        QCOMPARE(status(), str("Could not open file.."));
    }

    void plainTextIsDroppedIntoALineEditAndNowhereElse()
    {
        showWindow();
        QMimeData data;
        data.setText(str("typed"));
        QVERIFY(!drag(widget<QWidget>("groupBox"), data).entered);
        QVERIFY(drag(line("lineEditPath"), data).dropped);
        QCOMPARE(line("lineEditPath")->text(), str("typed"));
        QCOMPARE(line("lineEditCheckSumOut")->text(), QString());
        QVERIFY(drag(line("lineEditCheckSumIn"), data).dropped);
        QCOMPARE(line("lineEditCheckSumIn")->text(), str("typed"));
    }

    void theWebSiteIsOpenedOnce()
    {
        m_opened.clear();
        QDesktopServices::setUrlHandler(str("http"), this, "openUrl");
        widget<QPushButton>("pushButtonWebsite")->click();
        QCOMPARE(m_opened, QList<QUrl>{QUrl(QString::fromLatin1(Configuration::webAddress))});
    }

    void everyControlIsReachedByTheTabKey()
    {
        showWindow();
        QSet<QString> reached;
        for (int i = 0; i < 12; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QWidget *focus = QApplication::focusWidget();
            reached << (focus->objectName().isEmpty() || focus->objectName().startsWith(str("qt_"))
                            ? focus->accessibleName()
                            : focus->objectName());
        }
        QCOMPARE(reached, (QSet<QString>{str("comboBox"), str("lineEditPath"), str("toolButtonFolder"),
                                         str("lineEditCheckSumIn"), str("pushButtonWebsite"), str("Settings")}));
    }

    void aRightToLeftLayoutIsMirrored()
    {
        QApplication::setLayoutDirection(Qt::RightToLeft);
        showWindow();
        const auto left = [this](const char *name) {
            return widget<QWidget>(name)->mapTo(m_window.get(), QPoint()).x();
        };
        const int label = left("label_2");
        const int line = left("lineEditPath");
        const int button = left("toolButtonFolder");
        const int logo = left("pushButtonWebsite");
        const int title = left("label_5");
        const QString picture = qEnvironmentVariable("ORVANTA_TEST_PICTURE");
        if (!picture.isEmpty())
            m_window->grab().save(picture);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QVERIFY(button < line && line < label);
        QVERIFY(logo < title);
    }

    void controlsWithoutATextHaveANameForTheBlind()
    {
        auto *config =
            widget<QToolBar>("toolBar")->widgetForAction(m_window->findChild<QAction *>(str("actionConfig")));
        QCOMPARE(config->accessibleName(), str("Settings"));
        QCOMPARE(widget<QPushButton>("pushButtonWebsite")->accessibleName(), str("Web site"));
        QCOMPARE(widget<QToolButton>("toolButtonFolder")->accessibleName(), str("Select target file"));
        LanguageManager::instance().selectLanguage(str("de_DE"));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(config->accessibleName(), str("Einstellungen"));
        QCOMPARE(widget<QPushButton>("pushButtonWebsite")->accessibleName(), str("Website"));
    }

public Q_SLOTS:
    void openUrl(const QUrl &url)
    {
        m_opened << url;
    }

private:
    QList<QUrl> m_opened;
};

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
