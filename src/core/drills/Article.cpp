#include "core/drills/Article.h"

#include "platform/Files.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What no key, or only the space bar types.
bool SeparatesWords(QChar character)
{
    return character.isSpace() || character.category() == QChar::Other_Control;
}

/// As much of the text's start as fits into the box, at least one character.
QString CutToFit(const QString &text, const LineMeasure &measure)
{
    qsizetype fits = 1;
    for (qsizetype tooLong = text.size(); tooLong - fits > 1;) {
        const qsizetype middle = fits + (tooLong - fits) / 2;
        (measure.widthOf(text.first(middle)) > measure.boxWidth ? tooLong : fits) = middle;
    }
    // No character outside the basic plane is cut in half.
    if (text.at(fits - 1).isHighSurrogate())
        fits += fits == 1 ? 1 : -1;
    return text.first(std::min(fits, text.size()));
}

} // namespace

bool Article::InitArticleData(const QString &fileName)
{
    std::optional<QString> text = Public_Function::ReadTextFile(fileName);
    if (!text)
        return false;
    m_text = std::move(*text);
    m_tokens.clear();
    const qsizetype end = m_text.size();
    const auto isLineEnd = [](QChar character) { return character == u'\r' || character == u'\n'; };
    for (qsizetype start = 0; start < end;) {
        const qsizetype lineEnd =
            std::find_if(m_text.cbegin() + start, m_text.cend(), isLineEnd) - m_text.cbegin();
        AddLine(start, lineEnd);
        const bool two = lineEnd + 1 < end && m_text.at(lineEnd) == u'\r' && m_text.at(lineEnd + 1) == u'\n';
        start = lineEnd + (two ? 2 : 1);
    }
    const bool hasWord = std::any_of(m_tokens.cbegin(), m_tokens.cend(),
                                     [](const TextToken &token) { return token.length > 0; });
    if (!hasWord)
        m_tokens.clear();
    m_tokens.shrink_to_fit();
    return hasWord;
}

void Article::AddLine(qsizetype start, qsizetype end)
{
    while (start < end) {
        if (SeparatesWords(m_text.at(start))) {
            ++start;
            continue;
        }
        qsizetype wordEnd = start + 1;
        while (wordEnd < end && !SeparatesWords(m_text.at(wordEnd)))
            ++wordEnd;
        m_tokens.push_back({static_cast<quint32>(start), static_cast<quint32>(wordEnd - start)});
        start = wordEnd;
    }
    m_tokens.push_back({static_cast<quint32>(end), 0});
}

QStringView Article::Token(int index) const
{
    if (IsLineBreak(index))
        return u"\r\n";
    return QStringView(m_text).mid(At(index).start, At(index).length);
}

void Article::SkipLineBreaks(int &index) const
{
    while (index < TokenCount() && IsLineBreak(index))
        ++index;
}

std::u32string Article::BuildTextLine(int &index, const LineMeasure &measure) const
{
    SkipLineBreaks(index);
    if (index >= TokenCount())
        return {};
    const QStringView first = Token(index++);
    QString line = first.left(MostCharacters + 1).toString() + u' ';
    if (line.size() > MostCharacters || measure.widthOf(line) > measure.boxWidth)
        line = CutToFit(line.first(std::min<qsizetype>(line.size(), MostCharacters)), measure);
    while (index < TokenCount() && !IsLineBreak(index)) {
        const QStringView next = Token(index);
        if (line.size() + next.size() >= MostCharacters)
            break;
        QString candidate = line;
        candidate.append(next).append(u' ');
        if (measure.widthOf(candidate) >= measure.boxWidth)
            break;
        line = candidate;
        ++index;
    }
    SkipLineBreaks(index);
    while (line.endsWith(u' '))
        line.chop(1);
    return (line + u"\r\n"_s).toStdU32String();
}
