#include "tests/ui/uitest.h"
#include "ui/mainwindow.h"
#include "ui/windowmenu.h"
#include "ui/windowplace.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

namespace {

constexpr Qt::WindowFlags flags =
    Qt::WindowCloseButtonHint | Qt::CustomizeWindowHint | Qt::WindowMaximizeButtonHint | Qt::WindowMinimizeButtonHint;

} // namespace

/// How the main window behaves, whatever it shows.
class TestWindowBehaviour final : public UiTest
{
    Q_OBJECT

    std::unique_ptr<MainWindow> m_window;

    void makeWindow(Qt::WindowFlags more = Qt::WindowFlags())
    {
        m_window = std::make_unique<MainWindow>(nullptr, flags | more);
        m_window->initWindow();
    }

    void showWindow()
    {
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    // Opens the window's menu, hands it to `look`, and returns whether the event was accepted.
    template<typename Look>
    bool openMenu(Look look)
    {
        bool looked = false;
        QTimer poll;
        connect(&poll, &QTimer::timeout, this, [&] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            if (!menu || looked)
                return;
            looked = true;
            look(menu);
        });
        poll.start(10);
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(300, 300), m_window->mapToGlobal(QPoint(300, 300)));
        event.ignore();
        QCoreApplication::sendEvent(m_window.get(), &event);
        if (!looked)
            QTest::qFail("no menu was shown", __FILE__, __LINE__);
        return event.isAccepted();
    }

    static void choose(QMenu *menu, int item)
    {
        QAction *action = menu->actions().at(item);
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    }

    static QByteArray geometryOfWindowAt(const QPoint &position)
    {
        QWidget window;
        window.setGeometry(QRect(position, QSize(600, 342)));
        return window.saveGeometry().toHex();
    }

private Q_SLOTS:
    void cleanup() { m_window.reset(); }

    void theTickedOpacityFollowsItsRule_data()
    {
        QTest::addColumn<double>("opacity");
        QTest::addColumn<int>("ticked");
        QTest::newRow("1.0") << 1.0 << 3;
        QTest::newRow("0.99") << 0.99 << 2;
        QTest::newRow("0.75") << 0.75 << 2;
        QTest::newRow("0.74") << 0.74 << 1;
        QTest::newRow("0.6") << 0.6 << 1;
        QTest::newRow("0.5") << 0.5 << 1;
        QTest::newRow("0.49") << 0.49 << 0;
        QTest::newRow("0.25") << 0.25 << 0;
        QTest::newRow("0.2") << 0.2 << 0;
        QTest::newRow("0.01") << 0.01 << 0;
        QTest::newRow("0.0") << 0.0 << 3;
    }

    void theTickedOpacityFollowsItsRule()
    {
        QFETCH(double, opacity);
        QTEST(tickedOpacity(opacity), "ticked");
    }

    void theMenuHasItsItems()
    {
        makeWindow();
        showWindow();
        openMenu([](QMenu *menu) {
            QStringList texts;
            const auto actions = menu->actions();
            for (const QAction *action : actions) {
                texts << (action->isSeparator() ? str("-") : action->text());
                QVERIFY(action->isSeparator() || action->isCheckable());
            }
            QCOMPARE(texts, (QStringList{str("Opacity 25%"), str("Opacity 50%"), str("Opacity 75%"),
                                         str("Opacity 100%"), str("-"), str("Stay On Top")}));
            QVERIFY(menu->actions().at(3)->isChecked());
            QVERIFY(!menu->actions().at(5)->isChecked());
            menu->close();
        });
    }

    void theMenuSpeaksTheLanguage()
    {
        makeWindow();
        showWindow();
        LanguageManager::instance().selectLanguage(str("de_DE"));
        openMenu([](QMenu *menu) {
            QCOMPARE(menu->actions().first()->text(), str("Deckkraft 25%"));
            QCOMPARE(menu->actions().last()->text(), str("Immer im Vordergrund"));
            menu->close();
        });
    }

    void everyOpacityCanBeChosen()
    {
        makeWindow();
        showWindow();
        for (const int item : {0, 1, 2, 3, 3, 0}) {
            const bool accepted = openMenu([item](QMenu *menu) { choose(menu, item); });
            QVERIFY(accepted);
            QVERIFY(qAbs(m_window->windowOpacity() - (item + 1) * 0.25) < 0.01);
            QVERIFY(m_window->findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly).size() == 1); // its own
        }
    }

    void aDismissedMenuChangesNothingAndLeavesItsActions()
    {
        makeWindow();
        showWindow();
        const Qt::WindowFlags before = m_window->windowFlags();
        const bool accepted = openMenu([](QMenu *menu) { QTest::keyClick(menu, Qt::Key_Escape); });
        QVERIFY(!accepted);
        QCOMPARE(m_window->windowOpacity(), 1.0);
        QCOMPARE(m_window->windowFlags(), before);
        QCOMPARE(m_window->findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly).size(), 1 + 5);
    }

    void stayOnTopIsToggledAndTheWindowShownAgain()
    {
        makeWindow();
        showWindow();
        for (const bool onTop : {true, false}) {
            QVERIFY(openMenu([](QMenu *menu) { choose(menu, 5); }));
            QCOMPARE(bool(m_window->windowFlags() & Qt::WindowStaysOnTopHint), onTop);
            QVERIFY(m_window->isVisible());
            QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
            openMenu([onTop](QMenu *menu) {
                QCOMPARE(menu->actions().at(5)->isChecked(), onTop);
                menu->close();
            });
        }
    }

    void aRightClickOnTheToolBarOpensTheMenu()
    {
        makeWindow();
        showWindow();
        auto *toolBar = m_window->findChild<QToolBar *>(str("toolBar"));
        bool shown = false;
        QTimer::singleShot(200, this, [&shown] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            shown = menu && menu->actions().size() == 6;
            if (menu)
                menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(300, 10), toolBar->mapToGlobal(QPoint(300, 10)));
        QCoreApplication::sendEvent(toolBar, &event);
        QTRY_VERIFY(shown);
    }

    void theWindowIsMovedByItsBody()
    {
        makeWindow();
        showWindow();
        m_window->move(100, 100);
        QTRY_COMPARE(m_window->frameGeometry().topLeft(), QPoint(100, 100));
        auto *bar = m_window->findChild<QStatusBar *>(str("statusbar"));
        for (QWidget *body : {static_cast<QWidget *>(m_window.get()), static_cast<QWidget *>(bar)}) {
            const QPoint start = m_window->frameGeometry().topLeft();
            const QPoint position = body == bar ? QPoint(20, 10) : QPoint(5, 200);
            const QPoint global = body->mapToGlobal(position);
            QMouseEvent press(QEvent::MouseButtonPress, position, global, Qt::LeftButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(body, &press);
            QMouseEvent move(QEvent::MouseMove, position, global + QPoint(40, 30), Qt::NoButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(body, &move);
            QTRY_COMPARE(m_window->frameGeometry().topLeft(), start + QPoint(40, 30));
        }
    }

    void otherButtonsMoveNothing()
    {
        makeWindow();
        showWindow();
        m_window->move(100, 100);
        QTRY_COMPARE(m_window->frameGeometry().topLeft(), QPoint(100, 100));
        const QPoint global = m_window->mapToGlobal(QPoint(5, 200));
        QMouseEvent press(QEvent::MouseButtonPress, QPoint(5, 200), global, Qt::RightButton, Qt::RightButton, {});
        QCoreApplication::sendEvent(m_window.get(), &press);
        QMouseEvent move(QEvent::MouseMove, QPoint(5, 200), global + QPoint(40, 30), Qt::NoButton, Qt::RightButton, {});
        QCoreApplication::sendEvent(m_window.get(), &move);
        QTest::qWait(100);
        QCOMPARE(m_window->frameGeometry().topLeft(), QPoint(100, 100));
    }

    void theFirstStartHasTheSmallestSize()
    {
        makeWindow();
        QCOMPARE(m_window->size().width(), 600);
        QVERIFY(m_window->size().height() < 342);
        m_window.reset();
        QCOMPARE(setting(IsFirstStart).toString(), str("false"));
        makeWindow();
        QCOMPARE(m_window->size(), QSize(600, 342));
    }

    void theOptionsAreWrittenWithTheirDefaultsByMakingTheWindow()
    {
        makeWindow();
        QCOMPARE(setting(DisableSplashScreen).toString(), str("false"));
        QCOMPARE(setting(WindowRestoreLayout).toString(), str("false"));
        QCOMPARE(setting(WindowRestoreGeometry).toString(), str("false"));
        QCOMPARE(setting(VersionCheckAuto).toString(), str("true"));
    }

    void aStoredGeometryIsRestored()
    {
        setSetting(IsFirstStart, false);
        setSetting(WindowRestoreGeometry, true);
        setSetting(WindowGeometry, geometryOfWindowAt({220, 180}));
        makeWindow();
        QCOMPARE(m_window->geometry(), QRect(QPoint(220, 180), QSize(600, 342)));
    }

    void aPositionIsKeptUpToFiftyPixelsFromTheEdges_data()
    {
        QTest::addColumn<QPoint>("position");
        QTest::addColumn<QPoint>("place");
        for (const QPoint &kept : {QPoint(0, 0), QPoint(10, 20), QPoint(950, 0), QPoint(0, 650), QPoint(950, 650)})
            QTest::addRow("%d,%d kept", kept.x(), kept.y()) << kept << kept;
        for (const QPoint &moved : {QPoint(-1, 200), QPoint(-10, 200), QPoint(200, -1), QPoint(951, 0), QPoint(0, 651)})
            QTest::addRow("%d,%d moved", moved.x(), moved.y()) << moved << QPoint(50, 50);
    }

    void aPositionIsKeptUpToFiftyPixelsFromTheEdges()
    {
        QFETCH(QPoint, position);
        QTEST(reachablePosition(position, QSize(1000, 700)), "place");
    }

    void aPositionOffTheDesktopIsPutRight_data()
    {
        QTest::addColumn<QPoint>("position");
        QTest::addColumn<QPoint>("place");
        const QSize desktop = QGuiApplication::primaryScreen()->virtualSize();
        QTest::newRow("left of it") << QPoint(-10, 200) << QPoint(50, 50);
        QTest::newRow("beyond the right edge") << QPoint(desktop.width() - 49, 200) << QPoint(50, 50);
        QTest::newRow("beyond the bottom edge") << QPoint(200, desktop.height() - 49) << QPoint(50, 50);
        QTest::newRow("inside") << QPoint(10, 20) << QPoint(10, 20);
    }

    void aPositionOffTheDesktopIsPutRight()
    {
        QFETCH(QPoint, position);
        setSetting(IsFirstStart, false);
        setSetting(WindowRestoreGeometry, true);
        setSetting(WindowGeometry, geometryOfWindowAt(position));
        makeWindow();
        QTEST(m_window->pos(), "place");
    }

    // The toolkit moves such a window down by itself, before its position is looked at.
    void aPositionAboveTheDesktopIsPutRight()
    {
        setSetting(IsFirstStart, false);
        setSetting(WindowRestoreGeometry, true);
        setSetting(WindowGeometry, geometryOfWindowAt({200, -10}));
        makeWindow();
        QVERIFY(m_window->y() >= 0);
    }

    void brokenGeometryIsIgnored()
    {
        setSetting(IsFirstStart, false);
        setSetting(WindowRestoreGeometry, true);
        for (const char *text : {"", "zz", "01d9d0cb"}) {
            setSetting(WindowGeometry, str(text));
            makeWindow();
            QVERIFY(m_window->height() >= m_window->minimumSizeHint().height());
            QCOMPARE(m_window->width(), 600);
            m_window.reset();
        }
    }

    void theLayoutIsRestoredOnlyWithoutTheGeometry_data()
    {
        QTest::addColumn<bool>("withGeometry");
        QTest::newRow("layout alone") << false;
        QTest::newRow("geometry too") << true;
    }

    void theLayoutIsRestoredOnlyWithoutTheGeometry()
    {
        QFETCH(bool, withGeometry);
        makeWindow();
        m_window->addToolBar(Qt::BottomToolBarArea, m_window->findChild<QToolBar *>(str("toolBar")));
        setSetting(WindowRestoreLayout, true);
        setSetting(WindowRestoreGeometry, withGeometry);
        // The window writes what its options say, and they say what they said when the dialog was made.
        m_window.reset();
        QCOMPARE(setting(WindowState).isValid(), true);
        QCOMPARE(setting(WindowGeometry).isValid(), withGeometry);
        QVERIFY(!setting(WindowState).toString().contains(QRegularExpression(str("[^0-9a-f]"))));
        makeWindow();
        auto *toolBar = m_window->findChild<QToolBar *>(str("toolBar"));
        QCOMPARE(m_window->toolBarArea(toolBar), withGeometry ? Qt::TopToolBarArea : Qt::BottomToolBarArea);
    }

    void aDamagedLayoutIsIgnored()
    {
        setSetting(WindowRestoreLayout, true);
        // The third would have the toolkit count countless tool bars, the last one hides the one there is.
        for (const char *text : {"", "zz",
                                 "000000ff00000000fd000000000000000000000000000000040000000400000008000000"
                                 "08fc000000010000000029000000010000000e0074026f00610000",
                                 "000000ff00000000fd0000000000000000000000000000000400000004000000080000"
                                 "0008fc0000000100000002000000010000000e0074006f006f006c00420061007200"
                                 "00000000ffffffff0000000000000000"}) {
            setSetting(WindowState, str(text));
            makeWindow();
            auto *toolBar = m_window->findChild<QToolBar *>(str("toolBar"));
            QCOMPARE(m_window->toolBarArea(toolBar), Qt::TopToolBarArea);
            QVERIFY(!toolBar->isHidden());
            m_window.reset();
        }
    }

    void aToolBarBesideTheWindowComesBackWithinReach()
    {
        makeWindow();
        auto *toolBar = m_window->findChild<QToolBar *>(str("toolBar"));
        toolBar->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint);
        toolBar->setGeometry(-3000, -3000, 900, 800);
        toolBar->show();
        QVERIFY(toolBar->isFloating());
        setSetting(WindowRestoreLayout, true);
        m_window.reset();
        makeWindow();
        toolBar = m_window->findChild<QToolBar *>(str("toolBar"));
        QVERIFY(toolBar->isFloating());
        QCOMPARE(toolBar->pos(), QPoint(50, 50));
        QVERIFY(toolBar->width() < 900 && toolBar->height() < 800);
    }

    void theOpacityIsStoredWithTwoDecimals_data()
    {
        QTest::addColumn<double>("opacity");
        QTest::addColumn<QString>("text");
        QTest::newRow("0.954") << 0.954 << str("0.95");
        QTest::newRow("0.5") << 0.5 << str("0.5");
        QTest::newRow("1") << 1.0 << str("1");
        QTest::newRow("0") << 0.0 << str("0");
        QTest::newRow("0.75") << 0.75 << str("0.75");
    }

    void theOpacityIsStoredWithTwoDecimals()
    {
        QFETCH(double, opacity);
        QFETCH(QString, text);
        makeWindow();
        m_window->setWindowOpacity(opacity);
        m_window.reset();
        QCOMPARE(setting(WindowOpacity).toString(), text);
    }

    void stayingOnTopIsStoredFromTheFlags()
    {
        for (const bool onTop : {true, false}) {
            makeWindow(onTop ? Qt::WindowStaysOnTopHint : Qt::WindowFlags());
            m_window.reset();
            QCOMPARE(setting(WindowStayOnTop).toString(), onTop ? str("true") : str("false"));
        }
    }

    void theSettingsAreSavedWhenTheWindowGoes()
    {
        makeWindow();
        m_window.reset();
        QFile file(str("config/global.xml"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll();
        QVERIFY(content.contains("<IsFirstStart>false</IsFirstStart>"));
        QVERIFY(content.contains("<Opacity>1</Opacity>"));
        // The hidden dialog of the options comes first, so its settings do.
        QVERIFY(content.indexOf("<DisableSplashScreen>") < content.indexOf("<StayOnTop>"));
    }

    void theFiftyFirstTickStartsACheckUnlessItIsSwitchedOff()
    {
        const auto checks = [this] {
            int count = 0;
            const auto children = m_window->children();
            for (const QObject *child : children)
                count += child->inherits("VersionCheck") ? 1 : 0;
            return count;
        };
        makeWindow();
        for (int tick = 1; tick <= 50; ++tick)
            m_window->timerUpdate();
        QCOMPARE(checks(), 0);
        m_window->timerUpdate();
        QCOMPARE(checks(), 1);

        // The counter is the process's, and the next check a day away.
        setSetting(VersionCheckAuto, false);
        for (int tick = 1; tick <= 432001; ++tick)
            m_window->timerUpdate();
        QCOMPARE(checks(), 1);
        setSetting(VersionCheckAuto, true);
        for (int tick = 1; tick <= 432001; ++tick)
            m_window->timerUpdate();
        QCOMPARE(checks(), 2);
    }
};

QTEST_MAIN(TestWindowBehaviour)
#include "tst_windowbehaviour.moc"
