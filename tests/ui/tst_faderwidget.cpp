#include "ui/faderwidget.h"

#include <QMetaProperty>
#include <QPaintEvent>
#include <QPointer>
#include <QTest>
#include <QTimer>

namespace {

/// Writes down what a fader leaves on a white page: the page's colour after each of its paints.
class PaintRecorder final : public QObject
{
public:
    explicit PaintRecorder(QWidget *fader)
        : QObject(fader->parentWidget())
    {
        fader->installEventFilter(this);
    }

    int paints() const { return m_paints; }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int m_paints = 0;
};

// The alpha of a black fader, from the grey that it leaves on white.
int alphaOn(QWidget &page)
{
    return 255 - qGray(page.grab().toImage().pixel(5, 5));
}

} // namespace

class TestFaderWidget final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theDefaultsAreThoseOfTheFade()
    {
        QWidget page;
        page.resize(300, 200);
        page.show();
        const FaderWidget fader(&page, Qt::black);
        QCOMPARE(fader.fadeDuration(), 200);
        QCOMPARE(fader.size(), QSize(300, 200));
        QVERIFY(!fader.isVisible());
        QVERIFY(!fader.isWindow());
        QVERIFY(fader.testAttribute(Qt::WA_DeleteOnClose));
    }

    void itsOnlyPropertyIsTheDuration()
    {
        const QMetaObject &meta = FaderWidget::staticMetaObject;
        QCOMPARE(meta.methodCount(), meta.methodOffset());
        QCOMPARE(meta.propertyCount(), meta.propertyOffset() + 1);
        const QMetaProperty property = meta.property(meta.propertyOffset());
        QCOMPARE(property.name(), "fadeDuration");
        QCOMPARE(property.userType(), int(QMetaType::Int));
        QVERIFY(property.isReadable() && property.isWritable() && property.isStored() && property.isScriptable() &&
                property.isDesignable());
        QWidget page;
        FaderWidget fader(&page, Qt::black);
        QVERIFY(fader.setProperty("fadeDuration", 400));
        QCOMPARE(fader.fadeDuration(), 400);
        QCOMPARE(fader.property("fadeDuration").toInt(), 400);
    }

    void everyPaintIsLighterUntilTheLastCloses_data()
    {
        QTest::addColumn<int>("duration");
        QTest::addColumn<QList<int>>("alphas");
        QTest::newRow("default") << 200 << QList<int>{255, 235, 215, 195, 175, 155, 135, 115, 95, 75, 55, 35, 15};
        QTest::newRow("twice") << 400 << QList<int>{255, 215, 175, 135, 95, 55, 15};
    }

    void everyPaintIsLighterUntilTheLastCloses()
    {
        QFETCH(int, duration);
        QFETCH(QList<int>, alphas);
        // Not on the screen, so that each paint is one that is asked for here.
        QWidget page;
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::white);
        page.setPalette(palette);
        page.resize(100, 100);
        page.setAttribute(Qt::WA_DontShowOnScreen);
        page.show();
        QPointer<FaderWidget> fader = new FaderWidget(&page, Qt::black);
        fader->setFadeDuration(duration);
        fader->start();
        fader->findChild<QTimer *>()->setInterval(10);
        fader->findChild<QTimer *>()->stop();

        QList<int> seen;
        while (fader && fader->isVisible() && seen.size() < 50)
            seen << alphaOn(page);
        QCOMPARE(seen, alphas);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QTRY_VERIFY(!fader);
    }

    void onAScreenTheFadeEndsByItself()
    {
        QWidget page;
        page.resize(200, 200);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        QPointer<FaderWidget> fader = new FaderWidget(&page, QColor(QStringLiteral("#eee")));
        const auto *recorder = new PaintRecorder(fader);
        int paints = 0;
        connect(fader, &QObject::destroyed, this, [&paints, recorder] { paints = recorder->paints(); });
        fader->start();
        QCOMPARE(fader->findChild<QTimer *>()->interval(), 10);
        QVERIFY(!fader->findChild<QTimer *>()->isSingleShot());
        QTRY_VERIFY(!fader);
        QCOMPARE(paints, 13);
    }

    void noColourFadesFromBlack()
    {
        QWidget page;
        page.resize(100, 100);
        page.setAttribute(Qt::WA_DontShowOnScreen);
        page.show();
        auto *fader = new FaderWidget(&page, QColor());
        fader->start();
        QCOMPARE(page.grab().toImage().pixelColor(5, 5), QColor(Qt::black));
    }

    void theSizeIsThatOfTheStart()
    {
        QWidget page;
        page.resize(100, 100);
        const FaderWidget fader(&page, Qt::black);
        page.resize(300, 300);
        QCOMPARE(fader.size(), QSize(100, 100));
    }
};

QTEST_MAIN(TestFaderWidget)
#include "tst_faderwidget.moc"
