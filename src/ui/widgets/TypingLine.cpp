#include "ui/widgets/TypingLine.h"

#include "ui/skin/Fonts.h"
#include "ui/skin/SkinLibrary.h"

#include <QAccessibleWidget>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int SidePadding = 6;
constexpr int LineCaretWidth = 2;
constexpr int MostLaidOut = 256; ///< more than the widest box holds of the narrowest letters
constexpr int KeptBehind = 10;   ///< characters in sight before the typing position after the view has moved
constexpr int KeptAhead = 3;     ///< and at least behind it before it moves

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

bool IsBlank(char32_t character)
{
    return character == 0x3000 || QChar::isSpace(character);
}

/// A line break inside the line, or another control character, is drawn as a space.
QString DrawnForm(char32_t character)
{
    const QChar::Category kind = QChar::category(character);
    const bool blank =
        kind == QChar::Other_Control || kind == QChar::Separator_Line || kind == QChar::Separator_Paragraph;
    return blank ? u" "_s : QString::fromUcs4(&character, 1);
}

QTextCharFormat FormatOf(TypingLine::Look look, bool blank)
{
    QTextCharFormat format;
    if (look == TypingLine::Look::Untyped) {
        format.setForeground(Qt::black);
    } else if (look == TypingLine::Look::Right) {
        format.setForeground(QColor(177, 177, 177));
    } else {
        format.setForeground(QColor(255, 0, 0));
        if (blank) // red ink would not show
            format.setBackground(QColor(255, 190, 190));
    }
    return format;
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
}

QFont TypingLine::TextFont(int scaledPoints)
{
    QFont font = Public_Function::DisplayFont(scaledPoints);
    // Pairs and ligatures would come apart, and the text would move, where the colour changes between them.
    font.setKerning(false);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1.0 / 64);
    return font;
}

int TypingLine::Columns() const
{
    return (width() - 2 * SidePadding) / qMax(1, fontMetrics().horizontalAdvance(u'a'));
}

bool TypingLine::Fits(const std::u32string &text) const
{
    QString drawn;
    for (const char32_t character : text)
        drawn += DrawnForm(character);
    return QFontMetricsF(font()).horizontalAdvance(drawn) <= width() - 2 * SidePadding;
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
    } else {
        m_text[index] = character;
        m_looks[index] = look;
    }
    m_stale = true;
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
    m_stale = true;
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
    m_caret = shown;
    UpdatePlace();
}

void TypingLine::UpdatePlace()
{
    if (m_marked || m_caret)
        UpdateCells(CellRect(m_position));
}

/// How far a character reaches into its neighbours' places, as the hook of a j does.
int TypingLine::Overhang() const
{
    return fontMetrics().height() / 8 + 1;
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
    EnsureLayout();
    const int ahead = std::min(m_position + KeptAhead, Length());
    const bool hiddenLeft = m_first > 0 && m_position <= m_first;
    const bool hiddenRight = ahead > ShownEnd() || LeftOf(ahead) > width() - SidePadding;
    if (!hiddenLeft && !hiddenRight)
        return;
    const int first = std::max(0, m_position - KeptBehind);
    if (first == m_first)
        return;
    m_first = first;
    m_stale = true;
    update();
}

QList<QTextLayout::FormatRange> TypingLine::Colours() const
{
    QList<QTextLayout::FormatRange> ranges;
    const auto first = static_cast<std::size_t>(m_first);
    const std::size_t count = m_offsets.size() - 1;
    const auto sameLook = [&](std::size_t a, std::size_t b) {
        return m_looks[first + a] == m_looks[first + b] &&
               (m_looks[first + a] != Look::Wrong ||
                IsBlank(m_text[first + a]) == IsBlank(m_text[first + b]));
    };
    for (std::size_t start = 0; start < count;) {
        std::size_t end = start + 1;
        while (end < count && sameLook(start, end))
            ++end;
        ranges.append({m_offsets[start], m_offsets[end] - m_offsets[start],
                       FormatOf(m_looks[first + start], IsBlank(m_text[first + start]))});
        start = end;
    }
    return ranges;
}

void TypingLine::EnsureLayout()
{
    if (!m_stale)
        return;
    m_stale = false;
    m_first = std::min(m_first, Length());
    const int end = std::min(Length(), m_first + MostLaidOut);
    QString shown;
    m_offsets.clear();
    for (int i = m_first; i < end; ++i) {
        m_offsets.push_back(static_cast<int>(shown.size()));
        shown += DrawnForm(m_text[static_cast<std::size_t>(i)]);
    }
    m_offsets.push_back(static_cast<int>(shown.size()));
    m_laidOutSoFar += end - m_first;

    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(Qt::LeftToRight);
    m_layout.setTextOption(option);
    m_layout.setFont(font());
    m_layout.setText(shown);
    m_layout.setFormats(Colours());
    m_layout.beginLayout();
    m_layout.createLine();
    m_layout.endLayout();
}

qreal TypingLine::LeftOf(int position) const
{
    const auto offset = static_cast<std::size_t>(position - m_first);
    return SidePadding + (m_layout.lineCount() > 0 ? m_layout.lineAt(0).cursorToX(m_offsets[offset]) : 0.0);
}

QRect TypingLine::CellRect(int position)
{
    EnsureLayout();
    if (position < m_first || position > ShownEnd())
        return {};
    const int left = static_cast<int>(std::floor(LeftOf(position)));
    if (position == ShownEnd())
        return {left, 0, fontMetrics().horizontalAdvance(u'a'), height()};
    // One pixel more where the character ends inside one.
    const int right = static_cast<int>(std::ceil(LeftOf(position + 1)));
    return {std::min(left, right), 0, std::max(1, std::abs(right - left)), height()};
}

/// Between the box's edge and the line of text.
int TypingLine::CellMargin() const
{
    return qMax(0, (height() - fontMetrics().height()) / 2 - 1);
}

QString TypingLine::ShownText()
{
    EnsureLayout();
    return m_layout.text();
}

void TypingLine::paintEvent(QPaintEvent *event)
{
    EnsureLayout();
    QPainter painter(this);
    painter.fillRect(event->rect(), m_paper);
    if (m_marked && m_position < Length()) {
        painter.fillRect(CellRect(m_position).adjusted(0, CellMargin(), 0, -CellMargin()), m_lit);
    }
    if (m_caret && m_position >= 0) {
        const QRect cell = CellRect(m_position).adjusted(0, CellMargin(), 0, -CellMargin());
        painter.fillRect(cell.left(), cell.top(), LineCaretWidth, cell.height(), QColor(40, 46, 58));
    }
    if (m_layout.lineCount() == 0)
        return;
    const QFontMetricsF metrics(font());
    const qreal baseline = std::round((height() + metrics.ascent() - metrics.descent()) / 2);
    m_layout.draw(&painter, QPointF(SidePadding, baseline - m_layout.lineAt(0).ascent()), {}, event->rect());
}

void TypingLine::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange) {
        m_stale = true;
        update();
    }
    QWidget::changeEvent(event);
}
