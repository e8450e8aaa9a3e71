#pragma once

#include "checksum/filechecksum.h"

#include <QString>

#include <optional>

/// What a script asks for.
struct Verification
{
    ChecksumAlgorithm algorithm;
    QString expected; ///< the checksum, without any blank
    QString file;     ///< as it was typed, quotes included, but for blanks in front
};

/// Reads "/a ALGORITHM /c CHECKSUM /f FILE", the three switches in this order; nothing when it is not that. A "/"
/// cannot stand inside a value, and whatever follows a fourth one is ignored.
std::optional<Verification> parseVerification(const QString &text);
