#pragma once

/// The look that all windows share.
namespace VisualStyle {

/// Gives the application its palette and its style sheet; called once the widget style is set and before any window is
/// made, since the palette starts from that of the style.
void apply();

} // namespace VisualStyle
