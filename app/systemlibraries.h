#pragma once

/// Lets every library that is loaded from now on come from the system's folder, never from beside the program: in a
/// folder of downloads anything may lie there. To be called before anything else.
void loadLibrariesFromSystemOnly();
