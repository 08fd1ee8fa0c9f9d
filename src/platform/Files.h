#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

/// Reading and writing whole files. All paths may be in the product's form (see Paths.h).
namespace Public_Function {

/// The bytes of a file, or nothing when it is missing or cannot be read.
std::optional<QByteArray> ReadFile(const QString &path);

/// A text in whatever encoding it is: a byte order mark decides (and is dropped); else valid UTF-8; else
/// GB18030.
QString DecodeText(const QByteArray &bytes);

/// The decoded text of a file, or nothing when it is missing or cannot be read.
std::optional<QString> ReadTextFile(const QString &path);

/// Splits at CR LF, LF and CR alike. A line end at the very end makes no further line.
QStringList SplitLines(const QString &text);

/// Replaces `path` by `bytes` so that at any moment, even when the machine stops, the old or the new content
/// is there, whole: writes `scratchPath`, flushes it to the disk, renames it over. On failure the old file is
/// untouched, the scratch file is removed and false is returned. The folder must exist.
bool ReplaceFile(const QString &path, const QString &scratchPath, const QByteArray &bytes);

/// Files of `folder` whose names match `*.<suffix>` without regard to case, as full product paths in natural
/// order
/// ("2.txt" before "10.txt") without regard to case.
QStringList ListFiles(const QString &folder, const QString &suffix);

} // namespace Public_Function
