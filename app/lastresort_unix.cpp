#include "app/display.h"
#include "app/lastresort.h"
#include "app/notice.h"

#include <QApplication>

void showErrorBox(const char *title, const char *text)
{
    writeToStandardError(QString::fromUtf8(text));
    if (!displayIsAvailable())
        return;

    // The platform has no box of its own, so a short-lived application object shows it. When an exception has crossed
    // the event loop, glib's part of it is in no state to be entered again.
    qputenv("QT_NO_GLIB", "1");
    static int argumentCount = 0;
    static char emptyArgument[] = "";
    static char *arguments[] = {emptyArgument, nullptr};
    const QApplication application(argumentCount, arguments);
    if (!boxesCanBeSeen())
        return;
    QMessageBox box(QMessageBox::Critical, QString::fromUtf8(title), QString::fromUtf8(text), QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}
