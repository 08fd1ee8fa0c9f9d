// Turns the help pages of a folder, Markdown files called `<order>-<page name>.md`, into the help file of the
// install folder: an SQLite file with the table page(position, name, title, text). The title is the page's
// first heading.

#include <QDir>
#include <QFile>
#include <QTextStream>
#include <memory>
#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace {

int Fail(const QString &message)
{
    QTextStream(stderr) << "quorvex-make-help: " << message << '\n';
    return 1;
}

void BindText(sqlite3_stmt *statement, int index, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    sqlite3_bind_text(statement, index, bytes.constData(), static_cast<int>(bytes.size()), SQLITE_TRANSIENT);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3)
        return Fail(u"usage: quorvex-make-help FOLDER FILE"_s);
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const QString target = QString::fromLocal8Bit(argv[2]);
    QFile::remove(target);

    sqlite3 *opened = nullptr;
    if (sqlite3_open(target.toUtf8().constData(), &opened) != SQLITE_OK)
        return Fail(u"cannot make "_s + target);
    const std::unique_ptr<sqlite3, int (*)(sqlite3 *)> database(opened, sqlite3_close);
    sqlite3_exec(
        opened,
        "BEGIN; CREATE TABLE page(position INTEGER PRIMARY KEY, name TEXT UNIQUE, title TEXT, text TEXT)",
        nullptr, nullptr, nullptr);

    int position = 0;
    const QStringList files = folder.entryList({u"*.md"_s}, QDir::Files, QDir::Name);
    for (const QString &fileName : files) {
        QFile file(folder.filePath(fileName));
        if (!file.open(QIODevice::ReadOnly))
            return Fail(u"cannot read "_s + fileName);
        const QString text = QString::fromUtf8(file.readAll());
        const QString firstLine = text.section(u'\n', 0, 0).trimmed();
        if (!firstLine.startsWith("# "_L1))
            return Fail(fileName + " does not begin with a heading"_L1);

        sqlite3_stmt *prepared = nullptr;
        sqlite3_prepare_v2(opened, "INSERT INTO page VALUES(?, ?, ?, ?)", -1, &prepared, nullptr);
        const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt *)> insert(prepared, sqlite3_finalize);
        sqlite3_bind_int(prepared, 1, ++position);
        BindText(prepared, 2, fileName.section(u'-', 1).chopped(3));
        BindText(prepared, 3, firstLine.mid(2));
        BindText(prepared, 4, text);
        if (sqlite3_step(prepared) != SQLITE_DONE)
            return Fail(u"two pages have the name of "_s + fileName);
    }
    if (position == 0)
        return Fail(u"no pages in "_s + folder.path());
    return sqlite3_exec(opened, "COMMIT", nullptr, nullptr, nullptr) == SQLITE_OK ? 0
                                                                                  : Fail(u"cannot write"_s);
}
