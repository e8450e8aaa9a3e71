#include "ui/windowlayout.h"

#include <QApplication>
#include <QMainWindow>
#include <QToolBar>

#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int *argumentCount, char ***arguments)
{
    qputenv("QT_QPA_PLATFORM", "minimal");
    new QApplication(*argumentCount, *arguments); // lives as long as the process
    return 0;
}

// The place and the layout of the window as the settings file has them; the first byte says which of the two.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray stored(reinterpret_cast<const char *>(bytes) + 1, static_cast<int>(size - 1));
    {
        QMainWindow window;
        auto *bar = new QToolBar(&window);
        bar->setObjectName(QStringLiteral("toolBar"));
        window.addToolBar(bar);
        if (bytes[0] % 2 == 0)
            window.restoreGeometry(stored);
        else if (isSoundLayout(stored, bar->objectName()))
            window.restoreState(stored, 0);
    }
    QCoreApplication::sendPostedEvents(); // what is to be deleted later
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
