#pragma once

#include <QString>

/// Verifies a file for a script: "/a ALGORITHM /c CHECKSUM /f FILE", the three switches in this order.
///
/// `text` is the command line after the program name as it was typed, with its quotes and blanks. Returns the exit
/// code of the process: 0 when the file has that checksum, 1 when it has another, -1 for an error. Shows nothing for 0
/// and 1. An application object must exist, for the boxes that report errors.
///
/// The comparison is exact: MD5 is given in lower case, SHA-1 in upper case. A "/" cannot stand inside a value.
qint32 runCommandLine(const QString &text);

/// Explains the command line in a box and returns -1.
qint32 showUsageError(const QString &commandLine);
