#include "DictionaryFiles.h"

#include "platform/BinaryFields.h"

#include <QFile>
#include <memory>
#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Words have the entries 1, 2, 3 and so on.
bool WriteWords(const QString &path, const std::vector<DictionaryWord> &words)
{
    QByteArray bytes;
    qint32 entry = 0;
    for (const DictionaryWord &word : words) {
        BinaryFields::Append(bytes, ++entry);
        BinaryFields::AppendText(bytes, word.word);
        BinaryFields::Append(bytes, word.difficulty);
        BinaryFields::Append(bytes, quint16(0));
    }
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

QByteArray EntryText(const DictionaryWord &word)
{
    QString text;
    if (!word.phonetic.isEmpty())
        text += u"& ["_s + word.phonetic + u"]\n"_s;
    text += u"% "_s + word.partLabel + u" \n# "_s + word.explanation;
    return text.toUtf8();
}

bool WriteEntries(const QString &path, const std::vector<DictionaryWord> &words)
{
    QFile::remove(path);
    sqlite3 *opened = nullptr;
    const bool isOpen = sqlite3_open(path.toUtf8().constData(), &opened) == SQLITE_OK;
    const std::unique_ptr<sqlite3, int (*)(sqlite3 *)> database(opened, sqlite3_close);
    const auto run = [opened](const char *sql) {
        return sqlite3_exec(opened, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
    };
    if (!isOpen || !run("PRAGMA page_size = 4096; PRAGMA journal_mode = OFF; BEGIN;"
                        "CREATE TABLE entry(id INTEGER PRIMARY KEY, text TEXT)"))
        return false;

    sqlite3_stmt *prepared = nullptr;
    sqlite3_prepare_v2(opened, "INSERT INTO entry VALUES(?, ?)", -1, &prepared, nullptr);
    std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt *)> insert(prepared, sqlite3_finalize);
    int entry = 0;
    for (const DictionaryWord &word : words) {
        const QByteArray text = EntryText(word);
        sqlite3_bind_int(prepared, 1, ++entry);
        sqlite3_bind_text(prepared, 2, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
        if (sqlite3_step(prepared) != SQLITE_DONE)
            return false;
        sqlite3_reset(prepared);
    }
    insert.reset();
    return run("COMMIT");
}

} // namespace

bool WriteDictionary(const QString &base, const std::vector<DictionaryWord> &words)
{
    return WriteWords(base + u".ID"_s, words) && WriteEntries(base + u".Dat"_s, words);
}
