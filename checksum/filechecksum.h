#pragma once

#include <QString>

/// Which digest a checksum is made with. Kept as a plain integer by its users; any other value is accepted and yields
/// an empty text.
using ChecksumAlgorithm = qint32;
inline constexpr ChecksumAlgorithm md5Algorithm = 0;
inline constexpr ChecksumAlgorithm sha1Algorithm = 1;

/// The checksum of a file's content as text: MD5 as 32 lower-case, SHA-1 as 40 upper-case hexadecimal digits.
///
/// Reads the whole file on the calling thread, 1024 bytes at a time. Throws a QString, "Could not open file..", when
/// the file cannot be opened for reading, or is a pipe, a socket or a character device, whose content need not end;
/// that comes before the algorithm is looked at. A read error later on ends the file where it occurs and is not
/// reported.
QString fileChecksum(ChecksumAlgorithm algorithm, const QString &fileName);
