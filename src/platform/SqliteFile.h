#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantList>
#include <functional>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

/// Read-only use of an SQLite file. A missing, damaged or foreign file is simply not usable; nothing crashes.
class SqliteFile
{
public:
    SqliteFile() = default;
    explicit SqliteFile(const QString &nativePath);

    bool IsOpen() const { return m_database != nullptr; }

    /// One value of a row: bytes of a BLOB or the UTF-8 of a TEXT; null when there is none.
    class Row
    {
    public:
        explicit Row(void *statement)
            : m_statement(statement)
        {
        }
        QByteArray Bytes(int column) const;
        QString Text(int column) const;
        qint64 Integer(int column) const;

    private:
        void *m_statement;
    };

    /// Runs a query and gives `onRow` each row until it returns false. `values` are bound in order (QString,
    /// int or qint64). The query that ran last stays prepared, so that the same one again is cheap. False
    /// when the query could not be run to its end, as with a damaged file.
    bool Query(const char *sql, const QVariantList &values,
               const std::function<bool(const Row &)> &onRow) const;

private:
    struct Closer
    {
        void operator()(sqlite3 *database) const;
    };
    struct Finalizer
    {
        void operator()(sqlite3_stmt *statement) const;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Finalizer>;

    Statement Prepare(const char *sql) const;
    void ForgetDamage(int result) const;

    std::unique_ptr<sqlite3, Closer> m_database;
    mutable Statement m_last; // not running
};
