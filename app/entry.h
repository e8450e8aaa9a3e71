#pragma once

#include <QString>

/// The program from its command line to its exit code, the same on every platform.
///
/// `commandLine` is everything after the program name as one text. It is the path of an existing file, as it stands:
/// the window opens with that file. It is anything else: a file is verified for a script. It is empty: the window
/// opens.
int runProgram(const QString &commandLine);
