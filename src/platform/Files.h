#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

/// Reading and writing whole files. All paths may be in the product's form (see Paths.h).
namespace Public_Function {

/// The bytes of a file, or nothing when it is missing, cannot be read or is no ordinary file (a pipe would
/// never end), or when it is too large for any text: more than a gibibyte.
std::optional<QByteArray> ReadFile(const QString &path);

/// A text in whatever encoding it is: a byte order mark decides, else see DecodeUnmarked. Marks at the start
/// are dropped.
QString DecodeText(const QByteArray &bytes);

/// A text that is UTF-8 when it is valid UTF-8, else GB18030. What is damaged in a way that fits neither is
/// read as the one that loses fewer characters; each of those becomes U+FFFD.
QString DecodeUnmarked(const QByteArray &bytes);

/// A text that is known to be GB18030; what cannot be decoded becomes U+FFFD.
QString DecodeGb18030(const QByteArray &bytes);

/// The decoded text of a file, or nothing when it is missing or cannot be read.
std::optional<QString> ReadTextFile(const QString &path);

/// Splits at CR LF, LF and CR alike. A line end at the very end makes no further line.
QStringList SplitLines(const QString &text);

/// Replaces `path` by `bytes` so that at any moment, even when the machine stops, the old or the new content
/// is there, whole: writes `scratchPath`, flushes it to the disk, renames it over. On failure the old file is
/// untouched, the scratch file is removed and false is returned. The folder must exist. In a folder that
/// hands its group on and that the group may write in, the group may read and write the new file, whatever
/// the person's creation mask. A link stays, and what it leads to is replaced, when nobody but this person
/// and the administrator can have put it there; else the link itself is.
bool ReplaceFile(const QString &path, const QString &scratchPath, const QByteArray &bytes);

/// Whether a file of ordinary size can be made in the folder now: one is made and taken away again, because
/// permissions say nothing about a full disk.
bool CanWriteIn(const QString &folder);

/// Files of `folder` whose names match `*.<suffix>` without regard to case, as full product paths in natural
/// order ("2.txt" before "10.txt") without regard to case. Hidden files are left out.
QStringList ListFiles(const QString &folder, const QString &suffix);

/// Subfolders of `folder`, as full product paths without a separator at the end, in the same order.
QStringList ListFolders(const QString &folder);

/// Deletes every file in `folder` and then the folder, going on after a failure. Folders in it stay, and so
/// does it then. Where `folder` or an entry is a link, the link goes and what it points to stays. Returns
/// the system's description of the first failure, an empty text when there was none; a missing folder is
/// none.
QString RemoveFolder(const QString &folder);

} // namespace Public_Function
