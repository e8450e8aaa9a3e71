#pragma once

/// Where the program keeps its data.
namespace DataDirectory {

/// Makes the data directory the current directory of the process. It is the folder of the executable if a marker
/// "portable" or "portable.txt" stands there (a file or a folder, whatever is in it), and otherwise a folder of the
/// user's own, which is made if need be.
///
/// Returns true. Throws a plain character string when the program is portable and cannot write to its folder.
bool select();

} // namespace DataDirectory
