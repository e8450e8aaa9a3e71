#include "ui/visualstyle.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

namespace {

// To the character: the odd blanks, the missing semicolons and the sizes without a unit are part of the design.
const QString styleSheet = QStringLiteral(
    R"(QMainWindow, QDialog{background:#eee})"
    R"(QGroupBox,QPushButton,QToolButton{font:bold 8pt;color:#444;})"
    R"(QPushButton,QPushButton:disabled{border-radius:12px;})"
    R"(QMenu,QDateTimeEdit,QComboBox,QAbstractItemView,QSpinBox,QDoubleSpinBox,QLineEdit,QPlainTextEdit{font-weight:600;color:#333;font-size:8.2pt})"
    R"(QGroupBox{border:2px solid #d6d6d6;border-radius: 8px;margin-top:8px;padding-top:8px;})"
    R"(QGroupBox::title{subcontrol-origin:margin;padding:2px 4px;left:12px;})"
    R"(QLineEdit,QPlainTextEdit{border:2px solid #bbb;border-radius:4px})"
    R"(QLineEdit:focus,QPlainTextEdit:focus{border-color:#999})"
    R"(QLineEdit:disabled{background:#ddd;})"
    R"(QPushButton[flat='false'],QPushButton:checked:hover{background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #f8f8f8,stop:1 #d6d6d6);border: 2px solid #c8c8c8;padding:3px 6px;min-width:48px;})"
    R"(QPushButton[flat='false']:hover,QPushButton:checked {color:#282828;background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #f8f8f8,stop:1 #d8d8d8);border-color:#a8a8a8})"
    R"(QPushButton[flat='false']:pressed {background:qlineargradient(x1:0,y1:0,x2:0,y2:1,stop:0 #fafafa,stop:1 #c2c2c2);})"
    R"(QSizeGrip{background-image:url(:/img/size-grip.png);height:16;width:16;})");

struct Brush
{
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
    const char *color;
};

constexpr Brush brushes[] = {
    {QPalette::Active, QPalette::Highlight, "#555"},      {QPalette::Inactive, QPalette::Highlight, "#ddd"},
    {QPalette::Disabled, QPalette::Highlight, "#7d4040"}, {QPalette::Active, QPalette::Window, "#fafafa"},
    {QPalette::Inactive, QPalette::Window, "#f2f2f2"},    {QPalette::Active, QPalette::Button, "#fafafa"},
    {QPalette::Inactive, QPalette::Button, "#f2f2f2"},    {QPalette::Disabled, QPalette::Button, "#d8d8d8"},
    {QPalette::Active, QPalette::Link, "#5a8026"},
};

} // namespace

void VisualStyle::useWidgetStyle()
{
    const QString plastique = QStringLiteral("plastique");
    const bool isThere = QStyleFactory::keys().contains(plastique, Qt::CaseInsensitive);
    QApplication::setStyle(isThere ? plastique : QStringLiteral("fusion"));
    // A desktop's own colours may be light on dark; the design is dark on light, and says so for a part of them only.
    QApplication::setPalette(QApplication::style()->standardPalette());
}

void VisualStyle::apply()
{
    QPalette palette = QApplication::palette();
    for (const Brush &brush : brushes)
        palette.setBrush(brush.group, brush.role, QColor(QLatin1String(brush.color)));
    QApplication::setPalette(palette);
    qApp->setStyleSheet(styleSheet);
}

void VisualStyle::makeSelectionReadable(QAbstractItemView *list)
{
    QPalette palette = list->palette();
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, QColor(QStringLiteral("#333")));
    list->setPalette(palette);
}
