#pragma once

class QAbstractItemView;

/// The look that all windows share.
namespace VisualStyle {

/// Gives the application the widget style "plastique", or, where that is not to be had, its heir "fusion"; never the
/// platform's own look, which the style sheet is not made for. The colours are the style's, too, whatever those of the
/// desktop are.
void useWidgetStyle();

/// Gives the application its palette and its style sheet; called once the widget style is set and before any window is
/// made, since the palette starts from that of the style.
void apply();

/// The palette marks a selected row in light grey where the keyboard is elsewhere, and the style writes white on it.
/// This gives such a row in one list the dark text of the others.
void makeSelectionReadable(QAbstractItemView *list);

} // namespace VisualStyle
