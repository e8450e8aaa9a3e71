#pragma once

#include <QColor>
#include <QWidget>

class QTimer;

/// Fades a page in: covers its parent with a colour that turns transparent in a few paints, then closes and deletes
/// itself. The size is that of the parent when the fader is made. The fade is counted in paints, not in time.
class FaderWidget final : public QWidget
{
    Q_OBJECT
    /// 200 unless set before the start. Each paint takes a tenth of it off the alpha; below 10 the fade never ends.
    Q_PROPERTY(int fadeDuration READ fadeDuration WRITE setFadeDuration)

public:
    FaderWidget(QWidget *parent, QColor color);

    int fadeDuration() const { return duration; }
    void setFadeDuration(int value) { duration = value; }

    /// Shows the fader, opaque at first.
    void start();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QTimer *timer; ///< asks for the paints; a child
    QColor startColor;
    qint32 currentAlpha = 0;
    qint32 duration = 200;
};
