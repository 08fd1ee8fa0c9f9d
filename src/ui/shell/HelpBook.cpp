#include "ui/shell/HelpBook.h"

#include "platform/Paths.h"
#include "platform/SqliteFile.h"

HelpBook::HelpBook(const QString &path)
{
    const SqliteFile file(Public_Function::NativePath(path));
    file.Query("SELECT name, title, text FROM page ORDER BY position", {},
               [this](const SqliteFile::Row &row) {
                   m_pages.append({row.Text(0), row.Text(1), row.Text(2)});
                   return true;
               });
}

qsizetype HelpBook::IndexOf(const QString &name) const
{
    for (qsizetype i = 0; i < m_pages.size(); ++i) {
        if (m_pages[i].name.compare(name, Qt::CaseInsensitive) == 0)
            return i;
    }
    return 0;
}
