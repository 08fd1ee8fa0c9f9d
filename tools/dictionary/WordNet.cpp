#include "WordNet.h"

#include <QDir>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestExplanation = 110;

std::optional<QByteArray> ReadWhole(const QDir &folder, const QString &name)
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

/// Calls `use` for each line without its line feed.
template <typename Use>
void ForEachLine(const QByteArray &text, const Use &use)
{
    for (qsizetype start = 0; start < text.size();) {
        qsizetype end = text.indexOf('\n', start);
        if (end < 0)
            end = text.size();
        use(QByteArray::fromRawData(text.constData() + start, end - start));
        start = end + 1;
    }
}

QByteArray Lemma(const QString &word)
{
    return word.toLower().toLatin1();
}

std::size_t IndexOf(PartOfSpeech part)
{
    return static_cast<std::size_t>(part);
}

/// WordNet's number of a part of speech in its sense keys: 5 are adjectives grouped about another one.
std::optional<PartOfSpeech> PartOfSenseType(char type)
{
    switch (type) {
    case '1':
        return PartOfSpeech::Noun;
    case '2':
        return PartOfSpeech::Verb;
    case '3':
    case '5':
        return PartOfSpeech::Adjective;
    case '4':
        return PartOfSpeech::Adverb;
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<WordNet> WordNet::Read(const QString &folder)
{
    WordNet wordNet;
    const QDir dir(folder);
    const std::array<QString, partCount> suffixes{u"noun"_s, u"verb"_s, u"adj"_s, u"adv"_s};
    for (std::size_t i = 0; i < suffixes.size(); ++i) {
        Part &part = wordNet.m_parts[i];
        const std::optional<QByteArray> index = ReadWhole(dir, u"index."_s + suffixes[i]);
        std::optional<QByteArray> data = ReadWhole(dir, u"data."_s + suffixes[i]);
        if (!index || !data)
            return std::nullopt;
        part.data = *std::move(data);
        ForEachLine(*index, [&part](const QByteArray &line) {
            if (!line.startsWith(' '))
                part.lines.insert(line.first(std::max<qsizetype>(line.indexOf(' '), 0)),
                                  QByteArray(line.constData(), line.size()));
        });
    }
    const std::optional<QByteArray> counts = ReadWhole(dir, u"cntlist.rev"_s);
    if (!counts)
        return std::nullopt;
    ForEachLine(*counts, [&wordNet](const QByteArray &line) { // word%type:… sense count
        const qsizetype mark = line.indexOf('%');
        const auto part = mark < 0 ? std::nullopt : PartOfSenseType(line.mid(mark + 1, 1).front());
        if (part)
            wordNet.m_parts[IndexOf(*part)].uses[QByteArray(line.constData(), mark)] +=
                line.mid(line.lastIndexOf(' ') + 1).toInt();
    });
    return wordNet;
}

std::optional<PartOfSpeech> WordNet::UsualPart(const QString &word) const
{
    const QByteArray lemma = Lemma(word);
    std::optional<PartOfSpeech> usual;
    int most = -1;
    for (std::size_t i = 0; i < m_parts.size(); ++i) {
        const int uses = m_parts[i].uses.value(lemma);
        if (m_parts[i].lines.contains(lemma) && uses > most) {
            most = uses;
            usual = static_cast<PartOfSpeech>(i);
        }
    }
    return usual;
}

std::optional<QString> WordNet::Explanation(const QString &word, PartOfSpeech partOfSpeech, int sense) const
{
    const Part &part = m_parts[IndexOf(partOfSpeech)];
    // word part senses pointers pointer… senses tagged offset…
    const QList<QByteArray> fields = part.lines.value(Lemma(word)).simplified().split(' ');
    const int senses = fields.size() > 2 ? fields[2].toInt() : 0;
    if (sense < 1 || sense > senses || fields.size() < senses)
        return std::nullopt;
    const qsizetype start = fields[fields.size() - senses + sense - 1].toLongLong();
    const qsizetype text = part.data.indexOf(" | ", start);
    const qsizetype end = part.data.indexOf('\n', start);
    if (start >= part.data.size() || text < 0 || text > end)
        return std::nullopt;
    QString explanation = QString::fromUtf8(part.data.mid(text + 3, end - text - 3));
    if (const qsizetype examples = explanation.indexOf(u"; \""_s); examples >= 0)
        explanation.truncate(examples);
    if (explanation.size() > longestExplanation) {
        const qsizetype cut = explanation.lastIndexOf(u';', longestExplanation);
        if (cut > 0)
            explanation.truncate(cut);
    }
    return explanation.trimmed();
}

QByteArray WordNet::Notice() const
{
    QByteArray notice;
    bool within = true;
    ForEachLine(m_parts.front().data, [&](const QByteArray &line) { // two spaces, number, space, text
        within = within && line.startsWith("  ");
        if (!within)
            return;
        QByteArray text = line.trimmed();
        text.remove(0, std::max<qsizetype>(text.indexOf(' '), 0));
        notice += (text.trimmed() == line.trimmed() ? QByteArray() : text.trimmed()) + '\n';
    });
    return notice;
}
