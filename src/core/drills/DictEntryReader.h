#pragma once

#include "platform/SqliteFile.h"

#include <QString>
#include <optional>

/// Reads the entry file of a dictionary, `<name>.Dat`: an SQLite file with the table
/// `entry(id INTEGER PRIMARY KEY, text TEXT)`. No failure is reported: without a usable file, every text is
/// empty.
class DictEntryReader
{
public:
    /// Takes the place of the file opened before. The file is first touched when a text is asked for.
    void OpenEntryFile(const QString &path);
    /// The text of an entry; empty when there is none.
    QString GetEntryText(qint32 entryId);
    void CloseEntryFile();

private:
    QString m_path;                   // product form; empty while closed
    std::optional<SqliteFile> m_file; // there once it could be opened
};
