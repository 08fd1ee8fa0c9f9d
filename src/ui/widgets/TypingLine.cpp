#include "ui/widgets/TypingLine.h"

#include "ui/skin/Fonts.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/widgets/CharacterGlyphs.h"

#include <QAccessibleWidget>
#include <QPaintEvent>
#include <QPainter>
#include <QTimerEvent>
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int SidePadding = 6;
constexpr int LineCaretWidth = 2;
constexpr int MostPlaced = 256; ///< more than the widest box holds of the narrowest letters
constexpr int KeptBehind = 10;  ///< characters in sight before the typing position after the view has moved
constexpr int KeptAhead = 3;    ///< and at least behind it before it moves
constexpr int SettleTime = 15;  ///< milliseconds; less than there are between two keys of anybody

/// What was typed and what comes next, for those who cannot see the colours.
class TypingLineAccess final : public QAccessibleWidget
{
public:
    explicit TypingLineAccess(TypingLine *line)
        : QAccessibleWidget(line, QAccessible::StaticText)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        auto *line = static_cast<TypingLine *>(widget());
        return kind == QAccessible::Description || kind == QAccessible::Value ? line->ShownText()
                                                                              : QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface *MakeTypingLineAccess(const QString &, QObject *object)
{
    auto *line = qobject_cast<TypingLine *>(object);
    return line ? new TypingLineAccess(line) : nullptr;
}

const QColor &InkOf(TypingLine::Look look)
{
    static const std::array<QColor, 3> inks{Qt::black, QColor(177, 177, 177), QColor(255, 0, 0)};
    return inks[static_cast<std::size_t>(look)];
}

} // namespace

TypingLine::TypingLine(const QString &objectName, const QString &accessibleName, QWidget *parent)
    : QWidget(parent)
    , m_paper(SkinLibrary().Color(u"panel.textBox"_s, Qt::white))
    , m_lit(SkinLibrary().Color(u"palette.accent"_s, QColor(255, 164, 84)))
{
    static const bool installed = (QAccessible::installFactory(MakeTypingLineAccess), true);
    Q_UNUSED(installed)
    setObjectName(objectName);
    setAccessibleName(accessibleName);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
    TakeFont();
}

QFont TypingLine::TextFont(int scaledPoints)
{
    QFont font = Public_Function::DisplayFont(scaledPoints);
    // A text is as wide as its characters, which are drawn one by one.
    font.setKerning(false);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1.0 / 64);
    return font;
}

void TypingLine::TakeFont()
{
    const QFontMetrics metrics(font());
    m_glyphs = CharacterGlyphs::In(font());
    m_letterWidth = metrics.horizontalAdvance(u'a');
    m_ascent = metrics.ascent();
    m_descent = metrics.descent();
    m_stale = true;
    update();
}

int TypingLine::Columns() const
{
    return (width() - 2 * SidePadding) / qMax(1, m_letterWidth);
}

bool TypingLine::Fits(const std::u32string &text) const
{
    qreal wide = 0;
    for (const char32_t character : text)
        wide += m_glyphs->Advance(character);
    return wide <= width() - 2 * SidePadding;
}

void TypingLine::SetLine(std::u32string text, std::vector<Look> looks)
{
    m_text = std::move(text);
    m_looks = std::move(looks);
    m_looks.resize(m_text.size(), Look::Untyped);
    m_position = -1;
    m_marked = false;
    m_first = 0;
    m_stale = true;
    update();
}

void TypingLine::SetCharacter(int position, char32_t character, Look look)
{
    const auto index = static_cast<std::size_t>(position);
    if (position < 0 || index > m_text.size())
        return;
    const QRect before = CellRect(position);
    const bool added = index == m_text.size();
    if (added) {
        m_text += character;
        m_looks.push_back(look);
        PlaceAdded();
    } else {
        m_stale = m_stale || m_glyphs->Advance(m_text[index]) != m_glyphs->Advance(character);
        m_text[index] = character;
        m_looks[index] = look;
    }
    const QRect after = CellRect(position);
    if (added || before.width() == after.width())
        UpdateCells(before | after);
    else
        UpdateFrom(before.left());
}

void TypingLine::Truncate(int length)
{
    if (length < 0 || length >= Length())
        return;
    const QRect from = CellRect(length);
    m_text.resize(static_cast<std::size_t>(length));
    m_looks.resize(static_cast<std::size_t>(length));
    if (length < m_first)
        m_stale = true;
    else if (length < ShownEnd())
        m_lefts.resize(static_cast<std::size_t>(length - m_first) + 1);
    UpdateFrom(from.left());
}

void TypingLine::SetPosition(int position, bool marked)
{
    UpdatePlace();
    m_position = position;
    m_marked = marked && position >= 0;
    if (position >= 0)
        Follow();
    UpdatePlace();
}

void TypingLine::SetCaret(bool shown)
{
    if (std::exchange(m_caret, shown) != shown)
        UpdateCells(CellRect(m_position));
}

void TypingLine::UpdatePlace()
{
    if (m_marked || m_caret)
        UpdateCells(CellRect(m_position));
}

/// How far a character reaches into its neighbours' places, as the hook of a j does.
int TypingLine::Overhang() const
{
    return (m_ascent + m_descent) / 8 + 1;
}

void TypingLine::UpdateCells(const QRect &cells)
{
    if (!cells.isNull())
        update(cells.adjusted(-Overhang(), 0, Overhang(), 0));
}

void TypingLine::UpdateFrom(int left)
{
    update(QRect(QPoint(qMax(0, left - Overhang()), 0), rect().bottomRight()));
}

void TypingLine::Follow()
{
    PlaceCharacters();
    const int ahead = std::min(m_position + KeptAhead, Length());
    const bool hiddenLeft = m_first > 0 && m_position <= m_first;
    const bool hiddenRight = !hiddenLeft && (ahead > ShownEnd() || LeftOf(ahead) > width() - SidePadding);
    if (!hiddenLeft && !hiddenRight)
        return;
    const int first = std::max(0, m_position - KeptBehind);
    if (first == m_first)
        return;
    m_first = first;
    m_stale = true;
    update();
}

/// Sums up the places of the shown part, which begins at m_first.
void TypingLine::PlaceCharacters()
{
    if (!m_stale)
        return;
    m_stale = false;
    m_first = std::min(m_first, Length());
    m_lefts.assign(1, SidePadding);
    const int end = std::min(Length(), m_first + MostPlaced);
    for (int i = m_first; i < end; ++i)
        m_lefts.push_back(m_lefts.back() + m_glyphs->Advance(CharacterAt(i)));
    m_placedSoFar += end - m_first;
}

/// The same where only the last character is new.
void TypingLine::PlaceAdded()
{
    if (m_stale || ShownEnd() != Length() - 1 || Length() - m_first > MostPlaced) {
        m_stale = true;
        return;
    }
    m_lefts.push_back(m_lefts.back() + m_glyphs->Advance(m_text.back()));
    ++m_placedSoFar;
}

QRect TypingLine::CellRect(int position)
{
    PlaceCharacters();
    if (position < m_first || position > ShownEnd())
        return {};
    const int left = static_cast<int>(std::floor(LeftOf(position)));
    if (position == ShownEnd())
        return {left, 0, m_letterWidth, height()};
    // One pixel more where the character ends inside one.
    const int right = static_cast<int>(std::ceil(LeftOf(position + 1)));
    return {left, 0, std::max(1, right - left), height()};
}

/// The character's place, as high as the text.
QRect TypingLine::TextRect(int position)
{
    const int margin = qMax(0, (height() - m_ascent - m_descent) / 2 - 1);
    return CellRect(position).adjusted(0, margin, 0, -margin);
}

QString TypingLine::ShownText()
{
    PlaceCharacters();
    QString shown;
    for (int i = m_first; i < ShownEnd(); ++i)
        shown += CharacterGlyphs::DrawnForm(CharacterAt(i));
    return shown;
}

void TypingLine::paintEvent(QPaintEvent *event)
{
    PlaceCharacters();
    QPainter painter(this);
    const QRect exposed = event->rect();
    painter.fillRect(exposed, m_paper);
    int first = m_first;
    while (first < ShownEnd() && LeftOf(first + 1) < exposed.left() - Overhang())
        ++first;
    int end = first;
    for (; end < ShownEnd() && LeftOf(end) <= exposed.right() + Overhang(); ++end) {
        if (LookAt(end) == Look::Wrong &&
            CharacterGlyphs::IsBlank(CharacterAt(end))) // red ink would not show
            painter.fillRect(TextRect(end), QColor(255, 190, 190));
    }
    if (m_marked && m_position < Length())
        painter.fillRect(TextRect(m_position), m_lit);
    if (m_caret && m_position >= 0) {
        const QRect cell = TextRect(m_position);
        painter.fillRect(cell.left(), cell.top(), LineCaretWidth, cell.height(), QColor(40, 46, 58));
    }
    if (exposed.width() > 1 && exposed != rect()) {
        m_painted = exposed;
        m_settle.start(SettleTime, this);
    }
    const qreal baseline = std::round((height() + m_ascent - m_descent) / 2.0);
    std::optional<Look> ink;
    for (int i = first; i < end; ++i) {
        if (std::exchange(ink, LookAt(i)) != LookAt(i))
            painter.setPen(InkOf(LookAt(i)));
        m_glyphs->Draw(painter, QPointF(LeftOf(i), baseline), CharacterAt(i));
    }
}

/// Before a place is painted again it is waited for until the display has read from memory what was painted
/// there before. Painting one pixel of it between two keys, one that the next key leaves alone, takes that
/// wait out of the answer to a key.
void TypingLine::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_settle.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    m_settle.stop();
    update(QRect(m_painted.topLeft(), QSize(1, 1)));
}

void TypingLine::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        TakeFont();
    QWidget::changeEvent(event);
}
