#pragma once

#include <QString>

/// The folder in which the platform wants programs to keep what belongs to the current user, with forward slashes;
/// empty if it names none.
QString applicationDataFolder();
