#include "SkinFile.h"

#include <QCryptographicHash>
#include <QFile>
#include <QtEndian>
#include <memory>
#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class SkinWriter
{
public:
    explicit SkinWriter(const QString &path)
    {
        sqlite3 *database = nullptr;
        m_failed = sqlite3_open(QFile::encodeName(path).constData(), &database) != SQLITE_OK;
        m_database.reset(database);
    }

    void Execute(const char *sql)
    {
        if (!m_failed)
            m_failed = sqlite3_exec(m_database.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK;
    }

    void AddPicture(const SkinPicture &picture)
    {
        Insert("INSERT INTO bitmap(name, scale, png) VALUES(?, ?, ?)", [&](sqlite3_stmt *statement) {
            BindText(statement, 1, picture.name);
            sqlite3_bind_int(statement, 2, picture.scale);
            m_sum.addData(picture.png);
            sqlite3_bind_blob64(statement, 3, picture.png.constData(),
                                static_cast<sqlite3_uint64>(picture.png.size()), SQLITE_TRANSIENT);
        });
    }

    void AddColor(const QString &key, const QString &value)
    {
        Insert("INSERT INTO theme(key, value) VALUES(?, ?)", [&](sqlite3_stmt *statement) {
            m_sum.addData((key + value).toUtf8());
            BindText(statement, 1, key);
            BindText(statement, 2, value);
        });
    }

    /// A sum of the content in the head of the file tells one skin from another without reading it.
    void NoteSum()
    {
        const auto sum = qFromBigEndian<qint32>(m_sum.result().constData());
        Execute(("PRAGMA user_version = " + QByteArray::number(sum)).constData());
    }

    QString Problem() const
    {
        return m_failed ? QString::fromUtf8(sqlite3_errmsg(m_database.get())) : QString();
    }

private:
    static void BindText(sqlite3_stmt *statement, int index, const QString &text)
    {
        const QByteArray bytes = text.toUtf8();
        sqlite3_bind_text(statement, index, bytes.constData(), static_cast<int>(bytes.size()),
                          SQLITE_TRANSIENT);
    }

    template <typename Bind>
    void Insert(const char *sql, Bind bind)
    {
        if (m_failed)
            return;
        sqlite3_stmt *statement = nullptr;
        if (sqlite3_prepare_v2(m_database.get(), sql, -1, &statement, nullptr) == SQLITE_OK) {
            bind(statement);
            sqlite3_step(statement);
        }
        m_failed = sqlite3_finalize(statement) != SQLITE_OK || statement == nullptr;
    }

    struct Closer
    {
        void operator()(sqlite3 *database) const { sqlite3_close(database); }
    };
    std::unique_ptr<sqlite3, Closer> m_database;
    bool m_failed = false;
    QCryptographicHash m_sum{QCryptographicHash::Sha256};
};

} // namespace

QString WriteSkinFile(const QString &path, const QList<SkinPicture> &pictures,
                      const QMap<QString, QColor> &theme)
{
    const QString scratch = path + u".tmp"_s;
    QFile::remove(scratch);
    QString problem;
    {
        SkinWriter writer(scratch);
        writer.Execute("PRAGMA journal_mode = OFF");
        writer.Execute("PRAGMA page_size = 4096");
        writer.Execute("BEGIN");
        writer.Execute("CREATE TABLE bitmap(name TEXT, scale INTEGER, png BLOB, PRIMARY KEY(name, scale))");
        writer.Execute("CREATE TABLE theme(key TEXT PRIMARY KEY, value TEXT)");
        for (const SkinPicture &picture : pictures)
            writer.AddPicture(picture);
        for (auto entry = theme.cbegin(); entry != theme.cend(); ++entry) {
            const QColor color = entry.value();
            writer.AddColor(entry.key(), color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb));
        }
        writer.NoteSum();
        writer.Execute("COMMIT");
        problem = writer.Problem();
    }
    if (!problem.isEmpty())
        return problem;
    QFile::remove(path);
    QFile made(scratch);
    return made.rename(path) ? QString() : made.errorString();
}
