#include "app/notice.h"

#include "app/display.h"

#include <cstdio>

void show(const Notice &notice)
{
    if (!boxesCanBeSeen()) {
        writeToStandardError(notice.plainText);
        return;
    }
    QMessageBox box(notice.icon, notice.title, notice.text, QMessageBox::Ok);
    box.setTextFormat(notice.format);
    box.exec();
}

void writeToStandardError(const QString &text)
{
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
    std::fflush(stderr);
}
