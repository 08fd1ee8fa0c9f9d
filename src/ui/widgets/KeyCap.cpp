#include "ui/widgets/KeyCap.h"

#include "ui/widgets/CharacterGlyphs.h"
#include "ui/widgets/PaintedAccess.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

KeyCap::KeyCap(int index, KeyCapLook &look, QWidget *parent)
    : QWidget(parent)
    , m_look(look)
{
    Public_Function::SetAccessibleRole(this, QAccessible::StaticText);
    setObjectName(u"PromptKey"_s + QString::number(index));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void KeyCap::Show(char32_t character, State state)
{
    const char32_t upper = QChar::toUpper(character);
    if (m_character != upper) {
        m_character = upper;
        setAccessibleName(QString::fromUcs4(&upper, 1));
        update();
    }
    SetState(state);
}

void KeyCap::SetState(State state)
{
    if (m_state == state && !accessibleDescription().isEmpty())
        return;
    m_state = state;
    update();
    DescribeState();
}

void KeyCap::DescribeState()
{
    switch (m_state) {
    case State::Waiting:
        setAccessibleDescription(tr("to type"));
        break;
    case State::Expected:
        setAccessibleDescription(tr("type this key now"));
        break;
    case State::Typed:
        setAccessibleDescription(tr("typed"));
        break;
    }
}

void KeyCap::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    HeldPicture &picture = m_state == State::Expected ? m_look.on : m_look.normal;
    if (picture.For(devicePixelRatioF()).hasAlphaChannel())
        painter.fillRect(rect(), QColor(233, 233, 233));
    if (!picture.Draw(painter, QPoint(0, 0), rect())) {
        painter.fillRect(rect(), QColor(141, 148, 167));
        painter.fillRect(rect().adjusted(1, 1, -1, -1),
                         m_state == State::Expected ? QColor(255, 214, 170) : QColor(233, 233, 233));
    }
    painter.setPen(m_state == State::Typed ? QColor(255, 164, 84) : QColor(Qt::black));
    // A wide character moves left until it stands centred.
    const int centred = (width() - qRound(m_look.glyphs->Advance(m_character))) / 2;
    const QPoint origin(qMin(m_look.characterOrigin.x(), centred), m_look.characterOrigin.y());
    m_look.glyphs->Draw(painter, origin, m_character);
}
