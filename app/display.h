#pragma once

/// Whether a window could be shown at all. To be asked before the application object is built, since the toolkit ends
/// the process when its platform has no display to connect to.
bool displayIsAvailable();

/// Lets an application object be built, and a file be checked, on a machine without a display.
void doWithoutDisplay();

/// Lets windows be as large on a dense screen as on any other, and sharp. To be called before the application object is
/// built.
void prepareForDenseScreens();

/// Whether somebody could see a box and press its button. To be asked while an application object exists.
bool boxesCanBeSeen();
