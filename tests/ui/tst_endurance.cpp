#include "tests/ui/uitest.h"
#include "ui/dialogoptions.h"
#include "ui/dialogstart.h"
#include "ui/mainwindow.h"

#include <QLineEdit>
#include <QPixmapCache>
#include <QStackedWidget>
#include <QTimer>

#include <malloc.h>

/// The same thing again and again takes no more memory than a few times.
class TestEndurance final : public UiTest
{
    Q_OBJECT

    // What caches may still be filled with once everything has been done a few hundred times.
    static constexpr qint64 bound = 128 * 1024;

    static qint64 allocatedBytes()
    {
        const auto heap = ::mallinfo2();
        return static_cast<qint64>(heap.uordblks + heap.hblkhd);
    }

    // Does it so many times, and once more as often; the second half is what is looked at.
    template<typename Action>
    void expectNoGrowth(int times, Action action)
    {
        qint64 halfway = 0;
        for (int i = 0; i < times; ++i) {
            if (i == times / 2)
                halfway = allocatedBytes();
            action(i);
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        const qint64 growth = allocatedBytes() - halfway;
        qInfo("%lld bytes", growth);
        QVERIFY2(growth < bound, qPrintable(str("grew by %1 bytes").arg(growth)));
    }

    // Runs a dialog until it has turned through its pages, which fade in.
    template<typename Dialog>
    static void runThrough(Dialog &dialog)
    {
        QTimer::singleShot(0, &dialog, [&dialog] {
            auto *pages = dialog.template findChild<QStackedWidget *>();
            for (int page = pages->count() - 1; page >= 0; --page)
                pages->setCurrentIndex(page);
            QTimer::singleShot(0, &dialog, [&dialog] { dialog.done(0); });
        });
        dialog.exec();
    }

private Q_SLOTS:
    void initTestCase()
    {
        UiTest::initTestCase();
        // It fills up to its own bound of ten megabytes, and would hide what is looked for.
        QPixmapCache::setCacheLimit(0);
    }

    void twentyThousandChecks()
    {
        const QString files[] = {write(str("a.bin"), "abc"), write(str("b.bin"), QByteArray(100000, 'b')), str("none")};
        MainWindow window(nullptr, Qt::Window);
        window.initWindow();
        window.show();
        window.findChild<QLineEdit *>(str("lineEditCheckSumIn"))->setText(str("900150983cd24fb0d6963f7d28e17f72"));
        expectNoGrowth(20000, [&](int i) { window.calculateChecksum(files[i % 3]); });
    }

    void aThousandOpeningsOfTheOptions()
    {
        MainWindow window(nullptr, Qt::Window);
        window.initWindow();
        window.show();
        expectNoGrowth(2000, [&](int) {
            DialogOptions dialog(&window, Qt::Dialog);
            runThrough(dialog);
        });
    }

    void aThousandOpeningsOfTheGreeting()
    {
        expectNoGrowth(2000, [&](int) {
            DialogStart dialog(nullptr, Qt::CustomizeWindowHint);
            runThrough(dialog);
        });
    }

    void aThousandSwitchesOfTheLanguage()
    {
        MainWindow window(nullptr, Qt::Window);
        window.initWindow();
        window.show();
        DialogOptions dialog(&window, Qt::Dialog);
        dialog.show();
        expectNoGrowth(
            2000, [&](int i) { LanguageManager::instance().selectLanguage(i % 2 == 0 ? str("de_DE") : str("en_UK")); });
    }

    void aThousandWindows()
    {
        expectNoGrowth(2000, [&](int) {
            MainWindow window(nullptr, Qt::Window);
            window.initWindow();
            window.show();
        });
    }
};

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets); // as the program does
    const QApplication application(argc, argv);
    TestEndurance test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_endurance.moc"
