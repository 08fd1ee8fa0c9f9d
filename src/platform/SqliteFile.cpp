#include "platform/SqliteFile.h"

#include <QFileInfo>
#include <cstring>
#include <sqlite3.h>

void SqliteFile::Closer::operator()(sqlite3 *database) const
{
    sqlite3_close_v2(database);
}

void SqliteFile::Finalizer::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

SqliteFile::SqliteFile(const QString &nativePath)
{
    // SQLite takes an empty name for a temporary database, and a folder for an error worth a log line.
    if (!QFileInfo(nativePath).isFile())
        return;
    sqlite3 *database = nullptr;
    const int flags = SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX;
    const int result = sqlite3_open_v2(nativePath.toUtf8().constData(), &database, flags, nullptr);
    m_database.reset(database);
    // A damaged page could else claim a row far larger than the file, and the memory would be taken at once.
    if (result != SQLITE_OK ||
        sqlite3_exec(database, "PRAGMA cell_size_check = ON", nullptr, nullptr, nullptr) != SQLITE_OK)
        m_database.reset();
}

void SqliteFile::ForgetDamage(int result) const
{
    if (result == SQLITE_CORRUPT)
        sqlite3_db_release_memory(m_database.get()); // a page that is kept is not checked again
}

SqliteFile::Statement SqliteFile::Prepare(const char *sql) const
{
    if (m_last && std::strcmp(sqlite3_sql(m_last.get()), sql) == 0)
        return std::move(m_last);
    sqlite3_stmt *statement = nullptr;
    ForgetDamage(sqlite3_prepare_v2(m_database.get(), sql, -1, &statement, nullptr));
    return Statement(statement);
}

bool SqliteFile::Query(const char *sql, const QVariantList &values,
                       const std::function<bool(const Row &)> &onRow) const
{
    if (!m_database)
        return false;
    Statement prepared = Prepare(sql);
    if (!prepared)
        return false;
    sqlite3_stmt *statement = prepared.get();

    int index = 1;
    for (const QVariant &value : values) {
        if (value.typeId() == QMetaType::QString) {
            const QByteArray text = value.toString().toUtf8();
            sqlite3_bind_text(statement, index, text.constData(), static_cast<int>(text.size()),
                              SQLITE_TRANSIENT);
        } else {
            sqlite3_bind_int64(statement, index, value.toLongLong());
        }
        ++index;
    }
    int step = sqlite3_step(statement);
    while (step == SQLITE_ROW && onRow(Row(statement)))
        step = sqlite3_step(statement);
    sqlite3_reset(statement); // gives up the lock on the file
    sqlite3_clear_bindings(statement);
    ForgetDamage(step);
    m_last = std::move(prepared);
    return step == SQLITE_DONE || step == SQLITE_ROW;
}

QByteArray SqliteFile::Row::Bytes(int column) const
{
    auto *statement = static_cast<sqlite3_stmt *>(m_statement);
    const void *bytes = sqlite3_column_blob(statement, column);
    return QByteArray(static_cast<const char *>(bytes), sqlite3_column_bytes(statement, column));
}

QString SqliteFile::Row::Text(int column) const
{
    return QString::fromUtf8(Bytes(column));
}

qint64 SqliteFile::Row::Integer(int column) const
{
    return sqlite3_column_int64(static_cast<sqlite3_stmt *>(m_statement), column);
}
