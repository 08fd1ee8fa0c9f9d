#pragma once

#include <QString>
#include <optional>

/// The program spells its paths with `\` and does not care about letter case; this is the one place where
/// such a path is turned into one that the machine's file system understands.
namespace Public_Function {

/// The native path of `path` (product form, or already native). Each part is matched without regard to case
/// against what is on the disk (the exact spelling first; of several others the first in name order); a part
/// that does not exist yet keeps its spelling, as do all behind it. A doubled separator counts as one.
QString NativePath(const QString &path);

/// The same, or nothing when a folder on the way could not be listed: what is written to such a path could
/// come beside the file that is meant.
std::optional<QString> CertainNativePath(const QString &path);

/// The product form of a native path: separators become `\`.
QString ProductPath(const QString &nativePath);

/// True when the path is not empty and names an existing file.
bool FileExists(const QString &path);

/// True when the path names an existing file or folder.
bool PathExists(const QString &path);

/// True when the system says that nothing is there. That is not the same as PathExists being false: a disk
/// that does not answer may hold it all the same, and then it must not be made anew.
bool IsMissing(const QString &path);

} // namespace Public_Function
