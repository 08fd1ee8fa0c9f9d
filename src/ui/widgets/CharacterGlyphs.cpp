#include "ui/widgets/CharacterGlyphs.h"

#include <QHash>
#include <QPainter>
#include <QTextLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t MostKept = 2048; ///< enough for any text but a dictionary of ideographs

} // namespace

std::shared_ptr<CharacterGlyphs> CharacterGlyphs::In(const QFont &font)
{
    static QHash<QString, std::weak_ptr<CharacterGlyphs>> known;
    std::weak_ptr<CharacterGlyphs> &kept = known[font.key()];
    std::shared_ptr<CharacterGlyphs> glyphs = kept.lock();
    if (!glyphs) {
        glyphs = std::make_shared<CharacterGlyphs>(font);
        kept = glyphs;
    }
    return glyphs;
}

QString CharacterGlyphs::DrawnForm(char32_t character)
{
    const QChar::Category kind = QChar::category(character);
    const bool blank =
        kind == QChar::Other_Control || kind == QChar::Separator_Line || kind == QChar::Separator_Paragraph;
    return blank ? u" "_s : QString::fromUcs4(&character, 1);
}

bool CharacterGlyphs::IsBlank(char32_t character)
{
    return character == 0x3000 || QChar::isSpace(character);
}

const CharacterGlyphs::Glyph &CharacterGlyphs::Of(char32_t character)
{
    const auto known = m_glyphs.find(character);
    if (known != m_glyphs.end())
        return known->second;
    if (m_glyphs.size() >= MostKept)
        m_glyphs.clear();
    return m_glyphs.emplace(character, LayOut(character)).first->second;
}

CharacterGlyphs::Glyph CharacterGlyphs::LayOut(char32_t character) const
{
    const QString text = DrawnForm(character);
    QTextLayout layout(text, m_font);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(Qt::LeftToRight);
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    Glyph glyph;
    glyph.ascent = line.ascent();
    // A character of a script that runs to the left begins at its right end.
    glyph.advance = qAbs(line.cursorToX(static_cast<int>(text.size())) - line.cursorToX(0));
    if (!IsBlank(character))
        glyph.runs = layout.glyphRuns();
    return glyph;
}

void CharacterGlyphs::Draw(QPainter &painter, const QPointF &baseline, char32_t character)
{
    const Glyph &glyph = Of(character);
    for (const QGlyphRun &run : glyph.runs)
        painter.drawGlyphRun(baseline - QPointF(0, glyph.ascent), run);
}
