#pragma once

/// Keeps the toolkit from taking plugins out of the program's own folder: in a folder of downloads anything may lie
/// there. To be called before the application object is made.
void loadNoPluginsFromProgramFolder();
