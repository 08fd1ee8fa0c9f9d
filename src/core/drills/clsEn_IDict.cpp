#include "core/drills/clsEn_IDict.h"

#include "platform/Files.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

DictWordRecord TakeRecord(BinaryFields::Reader &reader)
{
    DictWordRecord record;
    record.EntryId = reader.Take<qint32>();
    record.Word = reader.TakeText();
    record.Difficulty = reader.Take<qint16>();
    record.Reserved = reader.Take<quint16>();
    return record;
}

} // namespace

bool clsEn_IDict::InitDictionary(const QString &strPath, const QString &strDictName)
{
    std::optional<QByteArray> file = Public_Function::ReadFile(strPath + strDictName + u".ID"_s);
    if (!file)
        return false;
    m_file = *std::move(file);
    m_starts.clear();
    m_decoder = {};
    BinaryFields::Reader reader(m_file);
    for (;;) {
        const qsizetype start = m_file.size() - reader.Rest();
        const DictWordRecord record = TakeRecord(reader);
        if (!reader.IsIntact())
            break;
        if (record.Word.isEmpty() || record.Word.front() == '{')
            continue;
        m_starts.push_back(static_cast<quint32>(start)); // no file is larger than a gibibyte
        m_decoder.Note(record.Word);
    }
    m_starts.shrink_to_fit();
    if (m_starts.empty())
        return false;
    m_reader.OpenEntryFile(strPath + strDictName + u".Dat"_s);
    return true;
}

DictWordRecord clsEn_IDict::Record(qint32 Index) const
{
    if (Index < 0 || Index >= GetWordAmount())
        return {};
    BinaryFields::Reader reader(QByteArrayView(m_file).sliced(m_starts[static_cast<std::size_t>(Index)]));
    return TakeRecord(reader);
}

QStringList clsEn_IDict::EntryLines(qint32 Index)
{
    if (Index < 0 || Index >= GetWordAmount())
        return {};
    return m_reader.GetEntryText(Record(Index).EntryId).split(u'\n');
}

QString clsEn_IDict::GetWord(qint32 Index) const
{
    return m_decoder.Decode(Record(Index).Word);
}

QString clsEn_IDict::GetPhonetic_Symbol(qint32 Index)
{
    const QStringList lines = EntryLines(Index);
    for (const QString &line : lines) {
        if (line.startsWith(u'&'))
            return line.sliced(std::min<qsizetype>(3, line.size())).chopped(line.size() > 3 ? 1 : 0);
    }
    return {};
}

QString clsEn_IDict::GetExplanation(qint32 Index)
{
    QString lead;
    const QStringList lines = EntryLines(Index);
    for (const QString &line : lines) {
        if (line.startsWith(u'%') && line.size() >= 2)
            lead = line.sliced(2);
        else if (line.startsWith(u'\\') || line.startsWith(u'#'))
            return line.size() >= 2 ? lead + line.sliced(2) : QString();
    }
    return {};
}

qint16 clsEn_IDict::GetWordDifficulty(qint32 Index) const
{
    return Record(Index).Difficulty;
}
