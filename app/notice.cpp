#include "app/notice.h"

#include "app/display.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>

#include <cstdio>

namespace {

// A box grows with its text, out of every screen. What does not fit is cut off at its end.
void keepOnScreen(QMessageBox &box)
{
    auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    if (!label)
        return;
    label->setMaximumHeight(QGuiApplication::primaryScreen()->availableSize().height() / 2);
    if (box.text().size() > 200) // a short one stands in the middle, beside the icon
        label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
}

} // namespace

void show(const Notice &notice)
{
    if (!boxesCanBeSeen()) {
        writeToStandardError(notice.plainText);
        return;
    }
    QMessageBox box(notice.icon, notice.title, notice.text, QMessageBox::Ok);
    box.setTextFormat(notice.format);
    keepOnScreen(box);
    box.exec();
}

void writeToStandardError(const QString &text)
{
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
    std::fflush(stderr);
}
