#pragma once

#include "platform/BinaryFields.h"

#include <QFile>
#include <memory>
#include <sqlite3.h>
#include <utility>
#include <vector>

/// A record of a dictionary's word list.
inline QByteArray ListRecord(qint32 entryId, const QByteArray &word, qint16 difficulty)
{
    QByteArray bytes;
    BinaryFields::Append(bytes, entryId);
    BinaryFields::Append(bytes, static_cast<quint16>(word.size()));
    bytes += word;
    BinaryFields::Append(bytes, difficulty);
    BinaryFields::Append(bytes, quint16(0xABCD));
    return bytes;
}

/// An SQLite file that is open for writing.
class WritableDatabase
{
public:
    explicit WritableDatabase(const QString &nativePath)
    {
        sqlite3 *database = nullptr;
        if (sqlite3_open(nativePath.toUtf8().constData(), &database) != SQLITE_OK)
            qFatal("cannot open %s", qPrintable(nativePath));
        m_database.reset(database);
    }

    void Run(const QByteArray &sql)
    {
        if (sqlite3_exec(m_database.get(), sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
            qFatal("%s", sqlite3_errmsg(m_database.get()));
    }

private:
    std::unique_ptr<sqlite3, int (*)(sqlite3 *)> m_database{nullptr, sqlite3_close};
};

/// Puts the entry file of a dictionary in the place of what is there.
inline void WriteEntryFile(const QString &nativePath, const std::vector<std::pair<int, QByteArray>> &entries)
{
    QFile::remove(nativePath);
    WritableDatabase database(nativePath);
    database.Run("BEGIN; CREATE TABLE entry(id INTEGER PRIMARY KEY, text TEXT)");
    for (const auto &[id, text] : entries)
        database.Run("INSERT INTO entry VALUES(" + QByteArray::number(id) + ", '" +
                     QByteArray(text).replace('\'', "''") + "')");
    database.Run("COMMIT");
}
