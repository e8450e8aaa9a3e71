#include "ui/windowlayout.h"

#include <QFile>
#include <QMainWindow>
#include <QTest>
#include <QToolBar>

#include <memory>

/// Which layouts of the window the toolkit is trusted with. The known good ones are its own.
class TestWindowLayout final : public QObject
{
    Q_OBJECT

    static QString str(const char *text) { return QString::fromUtf8(text); }

    std::unique_ptr<QMainWindow> m_window;
    QToolBar *m_bar = nullptr;

    bool isSound(const QByteArray &state) const { return isSoundLayout(state, m_bar->objectName()); }

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QMainWindow>();
        m_window->setGeometry(100, 100, 600, 400);
        m_bar = m_window->addToolBar(str("Options"));
        m_bar->setObjectName(str("toolBar"));
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void aLayoutOfTheToolkitIsSoundWhereverTheToolBarIs()
    {
        for (const auto area : {Qt::TopToolBarArea, Qt::BottomToolBarArea, Qt::LeftToolBarArea, Qt::RightToolBarArea}) {
            m_window->addToolBar(area, m_bar);
            QVERIFY(isSound(m_window->saveState(0)));
        }
        m_bar->setWindowFlag(Qt::Tool);
        m_bar->show();
        QVERIFY(m_bar->isFloating());
        QVERIFY(isSound(m_window->saveState(0)));
    }

    void aLayoutWithoutTheOnlyWayToTheOptionsIsNot()
    {
        m_bar->hide();
        QVERIFY(!isSound(m_window->saveState(0)));
    }

    void aLayoutOfAnotherWindowIsNot()
    {
        QVERIFY(!isSoundLayout(m_window->saveState(0), str("toolBaz")));
        QVERIFY(!isSoundLayout(m_window->saveState(0), str("toolBa")));
        QVERIFY(!isSound(m_window->saveState(1)));
        m_window->addToolBar(str("Another"))->setObjectName(str("other"));
        QVERIFY(!isSound(m_window->saveState(0)));
    }

    void aLayoutThatIsCutOrTooLongIsNot()
    {
        const QByteArray state = m_window->saveState(0);
        for (int length = 0; length < state.size(); ++length)
            QVERIFY(!isSound(state.left(length)));
        QVERIFY(!isSound(state + '\0'));
    }

    void layoutsThatOnceWereTooMuchForTheToolkitAreNot_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::newRow("countless tool bars") << str("countless-tool-bars");
        QTest::newRow("a giant tool bar beside the window") << str("giant-floating-tool-bar");
    }

    void layoutsThatOnceWereTooMuchForTheToolkitAreNot()
    {
        QFETCH(QString, fileName);
        QFile file(QStringLiteral(ORVANTA_TEST_DATA "/../../fuzz/seeds/layout/") + fileName);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(!isSound(file.readAll().mid(1))); // behind the byte that tells the fuzz target what it is
    }
};

QTEST_MAIN(TestWindowLayout)
#include "tst_windowlayout.moc"
