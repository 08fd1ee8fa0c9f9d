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

bool IsPair(QStringView text, qsizetype at)
{
    return at >= 0 && at + 1 < text.size() && text[at].isHighSurrogate() && text[at + 1].isLowSurrogate();
}

/// What a line has behind its first characters; a surrogate pair is one.
QStringView Behind(QStringView line, int characters)
{
    for (; characters > 0 && !line.isEmpty(); --characters)
        line = line.sliced(IsPair(line, 0) ? 2 : 1);
    return line;
}

QStringView WithoutLast(QStringView text)
{
    return text.chopped(IsPair(text, text.size() - 2) ? 2 : std::min<qsizetype>(1, text.size()));
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
    RemoveMarks();
    m_starts.shrink_to_fit();
    if (m_starts.empty())
        return false;
    m_reader.OpenEntryFile(strPath + strDictName + u".Dat"_s);
    return true;
}

/// Drops the words that are empty without their byte order marks, which begin with these bytes.
void clsEn_IDict::RemoveMarks()
{
    const auto isMark = [this](quint32 start) {
        BinaryFields::Reader reader(QByteArrayView(m_file).sliced(start));
        const QByteArrayView word = TakeRecord(reader).Word;
        return (word.front() == '\xEF' || word.front() == '\x84') && m_decoder.Decode(word).isEmpty();
    };
    std::erase_if(m_starts, isMark);
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
            return WithoutLast(Behind(line, 3)).toString();
    }
    return {};
}

QString clsEn_IDict::GetExplanation(qint32 Index)
{
    QString lead;
    const QStringList lines = EntryLines(Index);
    for (const QString &line : lines) {
        if (line.startsWith(u'%') && line.size() >= 2)
            lead = Behind(line, 2).toString();
        else if (line.startsWith(u'\\') || line.startsWith(u'#'))
            return line.size() >= 2 ? lead + Behind(line, 2).toString() : QString();
    }
    return {};
}

qint16 clsEn_IDict::GetWordDifficulty(qint32 Index) const
{
    return Record(Index).Difficulty;
}
