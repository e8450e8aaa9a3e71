#include "ui/dropforwarder.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

DropForwarder::DropForwarder(QWidget *receivingWindow, QObject *parent)
    : QObject(parent)
    , window(receivingWindow)
{
}

void DropForwarder::watch(QWidget *widget)
{
    widget->installEventFilter(this);
}

bool DropForwarder::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove && event->type() != QEvent::Drop)
        return false;
    auto *drop = static_cast<QDropEvent *>(event);
    if (!drop->mimeData()->hasFormat(QStringLiteral("text/uri-list")))
        return false;

    if (event->type() == QEvent::DragMove) {
        // Decided when the drag came in.
        drop->setAccepted(isAccepted);
        return true;
    }
    // Not through the application, which would look for a widget that accepts drops again.
    drop->ignore();
    static_cast<QObject *>(window)->event(drop);
    isAccepted = drop->isAccepted();
    return true;
}
