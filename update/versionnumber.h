#pragma once

#include <QString>

#include <array>
#include <optional>

/// A version such as 1.1.6.2; the first number weighs most.
using VersionNumber = std::array<qint32, 4>;

/// The four numbers of a text: split at ".", empty parts dropped; a part that is no decimal number counts as 0.
/// Nothing unless there are exactly four parts.
std::optional<VersionNumber> parseVersion(const QString &text);
