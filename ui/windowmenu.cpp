#include "ui/windowmenu.h"

#include <QAction>

#include <cmath>

qint32 opacityPercentage(double opacity)
{
    return static_cast<qint32>(std::floor(opacity * 100 + 0.5));
}

int tickedOpacity(double opacity)
{
    const auto step = static_cast<qint32>(opacityPercentage(opacity) * 4.0 / 100.0 - 1.0);
    // Without a sign, so that a step below the first is above the last; this is meant.
    return static_cast<quint32>(step) <= 3 ? step : 3;
}

WindowMenu::WindowMenu(QWidget *parent, const QStringList &labels, double opacity, bool staysOnTop)
    : QMenu(parent)
{
    for (const char *percentage : {" 25%", " 50%", " 75%", " 100%"})
        actions << new QAction(labels.at(0) + QLatin1String(percentage), parent);
    actions << new QAction(labels.at(1), parent);
    for (int i = 0; i < actions.size(); ++i) {
        actions.at(i)->setData(i);
        actions.at(i)->setCheckable(true);
    }

    addActions(actions.mid(0, 4));
    addSeparator();
    addAction(actions.at(4));
    actions.at(tickedOpacity(opacity))->setChecked(true);
    actions.at(4)->setChecked(staysOnTop);
}

std::optional<int> WindowMenu::choose(const QPoint &position)
{
    const QAction *chosen = exec(position);
    if (!chosen)
        return std::nullopt; // the actions stay with the window until it goes; this is meant
    const int number = chosen->data().toInt();
    qDeleteAll(actions);
    return number;
}
