#pragma once

#include <QMenu>
#include <QStringList>

#include <optional>

/// An opacity between 0 and 1 in whole percent, rounded half up.
qint32 opacityPercentage(double opacity);

/// Which of the four opacities is ticked for an opacity between 0 and 1: 0 for 25% to 3 for 100%. Between two steps it
/// is the lower one.
int tickedOpacity(double opacity);

/// The menu of the main window: four opacities and "stay on top". The ticks show the state; they do not group the
/// items.
class WindowMenu final : public QMenu
{
    Q_OBJECT

public:
    /// `labels`: what precedes the percentages, and the text of the last item.
    WindowMenu(QWidget *parent, const QStringList &labels, double opacity, bool staysOnTop);

    /// Shows the menu and returns the number of what was chosen: 0 to 3 for the opacities, 4 for "stay on top"; nothing
    /// if the menu was dismissed.
    std::optional<int> choose(const QPoint &position);

private:
    QList<QAction *> actions; ///< children of the parent widget
};
