#pragma once

#include <QObject>

class QWidget;

/// Hands files that are dragged over some widgets to the handlers of their window.
///
/// The toolkit offers a drag only to widgets that accept drops, and the window is none of them. A line edit among the
/// widgets would even take a file for its own: the file manager offers the address as plain text too. Drags of anything
/// but addresses go where they would go.
class DropForwarder final : public QObject
{
    Q_OBJECT

public:
    /// The window must outlive the forwarder; it may be its parent.
    DropForwarder(QWidget *receivingWindow, QObject *parent);

    void watch(QWidget *widget);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *window;
    bool isAccepted = false; ///< whether the window takes what is being dragged
};
