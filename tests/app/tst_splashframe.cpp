#include "app/splashframe.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>

namespace {

/// Writes down what a splash was when it was painted for the last time.
class SplashWatcher final : public QObject
{
public:
    Qt::WindowFlags flags;
    Qt::WindowModality modality = Qt::NonModal;
    QWidget *parentOfSplash = nullptr;
    QSize size;
    bool wasExposed = false;
    int paints = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto splash = qobject_cast<SplashFrame *>(watched);
        if (splash && event->type() == QEvent::Paint) {
            ++paints;
            flags = splash->windowFlags();
            modality = splash->windowModality();
            parentOfSplash = splash->parentWidget();
            size = splash->size();
            wasExposed = splash->windowHandle()->isExposed();
        }
        return false;
    }
};

// The smallest rectangle around all pixels that are not white.
QRect inked(const QImage &image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 200)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

QPixmap whitePicture()
{
    QPixmap picture(400, 200);
    picture.fill(Qt::white);
    return picture;
}

} // namespace

class TestSplashFrame final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsAsLargeAsItsPictureAndBold()
    {
        const SplashFrame splash(nullptr, whitePicture(), Qt::Dialog);
        QCOMPARE(splash.minimumSize(), QSize(400, 200));
        QCOMPARE(splash.maximumSize(), QSize(400, 200));
        QVERIFY(splash.testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(splash.font().bold());
    }

    void aDensePictureIsNoLarger()
    {
        QPixmap picture = whitePicture();
        picture.setDevicePixelRatio(2);
        const SplashFrame splash(nullptr, picture, Qt::Dialog);
        QCOMPARE(splash.size(), QSize(200, 100));
    }

    void theMessageStandsInTheLowerRightCorner()
    {
        SplashFrame splash(nullptr, whitePicture(), Qt::Dialog);
        QVERIFY(inked(splash.grab().toImage()).isNull());
        splash.setMessage(QStringLiteral("Version: 1.1.6.2\nMade by us"), Qt::AlignRight | Qt::AlignBottom,
                          QColor(QStringLiteral("#444")));
        const QRect ink = inked(splash.grab().toImage());
        QVERIFY(!ink.isNull());
        QVERIFY(ink.right() < 400 - 28 && ink.right() > 400 - 28 - 6);
        QVERIFY(ink.bottom() < 200 - 20 && ink.bottom() > 200 - 20 - 10);
        QVERIFY(ink.left() > 150 && ink.top() > 100);
    }

    void itIsShownInFrontOfTheActiveWindowForItsTime()
    {
        QWidget window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        SplashWatcher watcher;
        qApp->installEventFilter(&watcher);
        QElapsedTimer elapsed;
        elapsed.start();
        showSplash(QStringLiteral("text"), whitePicture());
        QVERIFY(elapsed.elapsed() >= 1200);
        QVERIFY(watcher.paints > 0);
        QVERIFY(watcher.wasExposed);
        QCOMPARE(watcher.parentOfSplash, &window);
        QCOMPARE(watcher.modality, Qt::WindowModal);
        QCOMPARE(watcher.size, QSize(400, 200));
        QCOMPARE(watcher.flags & Qt::WindowType_Mask, Qt::Dialog);
        QVERIFY(watcher.flags & Qt::FramelessWindowHint);
        QVERIFY(watcher.flags & Qt::WindowStaysOnTopHint);
        QVERIFY(window.findChildren<SplashFrame *>().isEmpty());
    }

    void thereMayBeNoActiveWindow()
    {
        SplashWatcher watcher;
        qApp->installEventFilter(&watcher);
        showSplash(QStringLiteral("text"), whitePicture());
        QVERIFY(watcher.paints > 0);
        QCOMPARE(watcher.parentOfSplash, nullptr);
    }
};

QTEST_MAIN(TestSplashFrame)
#include "tst_splashframe.moc"
