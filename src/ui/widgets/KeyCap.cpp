#include "ui/widgets/KeyCap.h"

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
    const QString text = QString::fromUcs4(&upper, 1);
    if (m_text != text) {
        m_text = text;
        setAccessibleName(text);
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
    painter.setFont(m_look.font);
    painter.setPen(m_state == State::Typed ? QColor(255, 164, 84) : QColor(Qt::black));
    const QFontMetrics metrics(m_look.font);
    // A wide character moves left until it stands centred.
    const int x = qMin(m_look.characterOffset.x(), (width() - metrics.horizontalAdvance(m_text)) / 2);
    painter.drawText(QPoint(x, m_look.characterOffset.y() + metrics.ascent()), m_text);
}
