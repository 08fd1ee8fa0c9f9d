#include "ui/widgets/KeyCapRow.h"

#include "core/shell/Public_Define.h"
#include "ui/skin/Fonts.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/widgets/CharacterGlyphs.h"

#include <QFontMetrics>
#include <QPaintEvent>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

KeyCapRow::KeyCapRow(const DrillLayout &layout, QWidget *parent)
    : QWidget(parent)
    , m_pitch(layout.Pick(60, 70))
{
    setObjectName(u"PromptKeys"_s);
    setAccessibleName(tr("Keys to type"));
    const QFont font = Public_Function::DisplayFont(Shared().FontSizeTable[layout.Pick<std::size_t>(5, 4)]);
    m_look.glyphs = CharacterGlyphs::In(font);
    m_look.characterOrigin =
        layout.Pick(QPoint(14, 4), QPoint(18, 5)) + QPoint(0, QFontMetrics(font).ascent());
    m_capSize = SkinLibrary().BitmapSize(u"ICON_KEY_NORMAL"_s);
    if (m_capSize.isEmpty())
        m_capSize = layout.Pick(QSize(52, 52), QSize(62, 62));
}

void KeyCapRow::SetCentre(int centre)
{
    m_centre = centre;
    PlaceCaps();
}

void KeyCapRow::ShowGroup(const std::u32string &group, int promptIndex)
{
    m_count = static_cast<int>(group.size());
    m_promptIndex = promptIndex;
    m_scroll = 0;
    while (m_caps.size() < m_count)
        m_caps += new KeyCap(static_cast<int>(m_caps.size()), m_look, this);
    KeepPromptVisible();
    PlaceCaps();
    for (int i = 0; i < m_caps.size(); ++i) {
        m_caps[i]->setVisible(i < m_count);
        if (i < m_count)
            m_caps[i]->Show(group[static_cast<std::size_t>(i)], StateAt(i));
    }
    QString text = QString::fromStdU32String(group);
    setAccessibleDescription(text);
}

void KeyCapRow::ShowPrompt(int promptIndex)
{
    const bool onlyForward = promptIndex >= m_promptIndex;
    const int first = onlyForward ? qMax(0, m_promptIndex) : 0;
    const int last = onlyForward ? promptIndex : m_count - 1;
    m_promptIndex = promptIndex;
    for (int i = first; i <= last && i < m_count; ++i)
        m_caps[i]->SetState(StateAt(i));
    const int before = m_scroll;
    KeepPromptVisible();
    if (m_scroll != before)
        PlaceCaps();
}

KeyCap::State KeyCapRow::StateAt(int index) const
{
    if (index == m_promptIndex)
        return KeyCap::State::Expected;
    return index < m_promptIndex ? KeyCap::State::Typed : KeyCap::State::Waiting;
}

int KeyCapRow::LeftEdge() const
{
    const int groupWidth = m_pitch * m_count;
    if (groupWidth > width())
        return -m_scroll;
    return (m_centre < 0 ? width() / 2 : m_centre) - groupWidth / 2;
}

void KeyCapRow::KeepPromptVisible()
{
    const int groupWidth = m_pitch * m_count;
    if (groupWidth <= width()) {
        m_scroll = 0;
        return;
    }
    // Moves on by most of the row at a time, so that the caps stand still while they are typed; two of the
    // keys that follow are always in sight.
    const int left = m_pitch * qMax(0, m_promptIndex);
    const bool visible = left - m_scroll >= m_pitch && left + 3 * m_pitch <= m_scroll + width();
    if (!visible)
        m_scroll = qBound(0, left - 2 * m_pitch, groupWidth - width());
}

void KeyCapRow::PlaceCaps()
{
    const int left = LeftEdge();
    for (int i = 0; i < m_count && i < m_caps.size(); ++i)
        m_caps[i]->setGeometry(QRect(QPoint(left + m_pitch * i, 0), m_capSize));
}

void KeyCapRow::resizeEvent(QResizeEvent *)
{
    KeepPromptVisible();
    PlaceCaps();
}

void KeyCapRow::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    m_ground.Paint(painter, event->rect());
}
