#include "core/drills/Article.h"

#include "platform/Files.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr quint32 lengthMask = 0x7FFFFFFF;

/// What no key, or only the space bar types.
bool SeparatesWords(QChar character)
{
    if (character > u' ' && character <= u'~')
        return false;
    return character.isSpace() || character.category() == QChar::Other_Control;
}

/// Whether a line may end between these two characters of a text without blanks: not inside a run of ASCII
/// or a pair of surrogates, not before a closing mark, not after an opening one.
bool IsBreakable(QChar before, QChar after)
{
    constexpr QStringView closing = u"，。、！？：；）》」』】〉”’…—％";
    constexpr QStringView opening = u"（《「『【〈“‘";
    const bool ascii = before < QChar(128) && after < QChar(128);
    return !ascii && !after.isLowSurrogate() && !closing.contains(after) && !opening.contains(before);
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

bool Article::InitArticleData(const QString &fileName, Cut cut)
{
    std::optional<QString> text = Public_Function::ReadTextFile(fileName);
    if (!text)
        return false;
    m_text = std::move(text->remove(QChar::ByteOrderMark)); // where files were joined; no key types it
    m_tokens.clear();
    const qsizetype end = m_text.size();
    const auto isLineEnd = [](QChar character) { return character == u'\r' || character == u'\n'; };
    for (qsizetype start = 0; start < end;) {
        const qsizetype lineEnd =
            std::find_if(m_text.cbegin() + start, m_text.cend(), isLineEnd) - m_text.cbegin();
        AddLine(start, lineEnd, cut);
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

void Article::AddLine(qsizetype start, qsizetype end, Cut cut)
{
    while (start < end) {
        if (SeparatesWords(m_text.at(start))) {
            ++start;
            continue;
        }
        qsizetype wordEnd = start + 1;
        while (wordEnd < end && !SeparatesWords(m_text.at(wordEnd)))
            ++wordEnd;
        if (cut == Cut::Words)
            AddWord(start, wordEnd);
        else
            AddCharacters(start, wordEnd);
        start = wordEnd;
    }
    AddWord(end, end);
}

void Article::AddWord(qsizetype start, qsizetype end)
{
    m_tokens.push_back({static_cast<quint32>(start), static_cast<quint32>(end - start) & lengthMask, 0});
}

void Article::AddCharacters(qsizetype start, qsizetype end)
{
    while (start < end) {
        qsizetype tokenEnd = start + 1;
        while (tokenEnd < end && !IsBreakable(m_text.at(tokenEnd - 1), m_text.at(tokenEnd)))
            ++tokenEnd;
        AddWord(start, tokenEnd);
        m_tokens.back().joinsNext = tokenEnd < end;
        start = tokenEnd;
    }
}

/// The token with the blank that follows it in the text.
QString Article::WithBlank(int index) const
{
    const QString token = Token(index).left(MostCharacters + 1).toString();
    return At(index).joinsNext ? token : token + u' ';
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
    QString line = WithBlank(index++);
    if (line.size() > MostCharacters || measure.widthOf(line) > measure.boxWidth)
        line = CutToFit(line.first(std::min<qsizetype>(line.size(), MostCharacters)), measure);
    while (index < TokenCount() && !IsLineBreak(index)) {
        if (line.size() + Token(index).size() >= MostCharacters)
            break;
        const QString candidate = line + WithBlank(index);
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
