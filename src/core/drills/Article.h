#pragma once

#include <QString>
#include <functional>
#include <string>
#include <vector>

/// How a line of an article is made to fit: the width that a text takes, as a whole number, and the width of
/// the box. Without a box, 80 characters are a line.
struct LineMeasure
{
    std::function<int(const QString &)> widthOf = [](const QString &text) {
        return static_cast<int>(text.size());
    };
    int boxWidth = 80;
};

/// A text cut into tokens: its words, with the punctuation that is attached to them, and a line break after
/// each of its lines. Words are separated by blanks of any kind, as none but the space can be typed. The text
/// is kept once, whatever its size.
class Article
{
public:
    enum class Cut {
        Words,     ///< at blanks
        Characters ///< at every character beyond ASCII too: Chinese has no blanks
    };

    /// Reads a text file of any encoding and any line ends. False when it cannot be read, which changes
    /// nothing, or when it has no word; then no token is left.
    bool InitArticleData(const QString &fileName, Cut cut = Cut::Words);

    QStringView Text() const { return m_text; }

    int TokenCount() const { return static_cast<int>(m_tokens.size()); }
    bool IsLineBreak(int index) const { return At(index).length == 0; }
    /// A word, or CR LF. `index` must be below TokenCount().
    QStringView Token(int index) const;

    /// The line that begins with the token at `index`, without blanks at its end and with CR LF after it;
    /// `index` moves to the first token of the next line. A paragraph begins on a line of its own, empty ones
    /// have none. A word too wide for the box is cut to what fits. No line is longer than `MostCharacters`.
    /// Empty when there is no line any more.
    std::u32string BuildTextLine(int &index, const LineMeasure &measure) const;

    /// More than any box holds of the narrowest letters.
    static constexpr int MostCharacters = 250;

private:
    struct TextToken
    {
        quint32 start;
        quint32 length : 31;   ///< 0 for a line break
        quint32 joinsNext : 1; ///< no blank follows in the text
    };

    const TextToken &At(int index) const { return m_tokens[static_cast<std::size_t>(index)]; }
    void AddLine(qsizetype start, qsizetype end, Cut cut);
    void AddWord(qsizetype start, qsizetype end);
    void AddCharacters(qsizetype start, qsizetype end);
    QString WithBlank(int index) const;
    void SkipLineBreaks(int &index) const;

    QString m_text;
    std::vector<TextToken> m_tokens;
};
