#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QString>
#include <memory>
#include <unordered_map>

class QPainter;

/// The characters of one font, each laid out once and by itself, since each is judged and coloured by itself:
/// what stands beside it changes neither its shape nor its width. Drawing one again is copying its glyph.
class CharacterGlyphs
{
public:
    explicit CharacterGlyphs(const QFont &font)
        : m_font(font)
    {
    }

    /// The one that all who draw in this font share while one of them lives.
    static std::shared_ptr<CharacterGlyphs> In(const QFont &font);

    /// How far the next character is from this one, in logical pixels.
    qreal Advance(char32_t character) { return Of(character).advance; }
    /// Draws the character in the painter's pen, from the left end of its base line.
    void Draw(QPainter &painter, const QPointF &baseline, char32_t character);

    /// A line break, or another control character, is drawn as a space.
    static QString DrawnForm(char32_t character);
    static bool IsBlank(char32_t character);

private:
    struct Glyph
    {
        QList<QGlyphRun> runs; ///< more than one where several fonts make the character
        qreal ascent = 0;      ///< of the line in which the runs are placed
        qreal advance = 0;
    };

    const Glyph &Of(char32_t character);
    Glyph LayOut(char32_t character) const;

    QFont m_font;
    std::unordered_map<char32_t, Glyph> m_glyphs;
};
