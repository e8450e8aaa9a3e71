#pragma once

#include <array>

/// What is left when an exception has ended the program: one box, shown after the application object is gone. It is
/// called from the entry's handlers; both return the exit code, -1.
int reportKnownError(const char *text);
int reportUnknownError();

/// What the box says for a known error: "Error Type: ", the text, and where to find help. Of a text too long for the
/// 255 characters the end is cut off, so that the help stays whole.
std::array<char, 256> knownErrorText(const char *text);

/// Shows the platform's plainest error box, with one OK button. Where there is a standard error, the text goes there
/// too.
void showErrorBox(const char *title, const char *text);
