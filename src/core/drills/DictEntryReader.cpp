#include "core/drills/DictEntryReader.h"

#include "platform/Paths.h"

void DictEntryReader::OpenEntryFile(const QString &path)
{
    CloseEntryFile();
    m_path = path;
}

QString DictEntryReader::GetEntryText(qint32 entryId)
{
    if (m_path.isEmpty())
        return {};
    if (!m_file || !m_file->IsOpen()) // a disk may come back
        m_file.emplace(Public_Function::NativePath(m_path));
    QString text;
    m_file->Query("SELECT text FROM entry WHERE id = ?", {entryId}, [&text](const SqliteFile::Row &row) {
        text = row.Text(0);
        return false;
    });
    return text;
}

void DictEntryReader::CloseEntryFile()
{
    m_file.reset();
    m_path.clear();
}
