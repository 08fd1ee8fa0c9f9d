#include "ui/widgets/TypingBox.h"

#include "ui/skin/WindowFrame.h"
#include "ui/widgets/KeyStroke.h"
#include "ui/widgets/PaintedAccess.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <utility>

namespace {

constexpr int NarrowestWidth = 2;
constexpr int CompositionPadding = 4;
constexpr QColor InkColor(28, 78, 140);

bool IsEnter(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

} // namespace

TypingBox::TypingBox(const QString &objectName, QWidget *parent)
    : QWidget(parent)
{
    Public_Function::SetAccessibleRole(this, QAccessible::EditableText);
    setObjectName(objectName);
    setAccessibleName(tr("Type here"));
    setAttribute(Qt::WA_InputMethodEnabled);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
}

void TypingBox::PlaceAt(const QRect &cell, int rightLimit, Composition composition)
{
    m_cell = cell;
    m_rightLimit = rightLimit;
    m_composition = composition;
    if (m_preedit.isEmpty())
        PlaceSoon();
    else
        Place();
}

void TypingBox::Place()
{
    QRect area(m_cell.left(), m_cell.top(), NarrowestWidth, m_cell.height());
    if (!m_preedit.isEmpty()) {
        const int wide = fontMetrics().horizontalAdvance(m_preedit) + 2 * CompositionPadding;
        area.setWidth(wide);
        if (area.right() > m_rightLimit)
            area.moveLeft(qMax(0, m_rightLimit - wide));
        if (m_composition == Composition::Below)
            area.setHeight(m_cell.height() + fontMetrics().height() + 2);
    }
    if (geometry() != area)
        setGeometry(area);
    update();
    QGuiApplication::inputMethod()->update(Qt::ImCursorRectangle);
}

void TypingBox::PlaceSoon()
{
    if (std::exchange(m_placingSoon, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_placingSoon = false;
            Place();
        },
        Qt::QueuedConnection);
}

QRect TypingBox::PreeditRect() const
{
    if (m_composition == Composition::InLine)
        return rect().adjusted(0, 2, 0, -2);
    return {0, m_cell.height(), width(), height() - m_cell.height()};
}

void TypingBox::CancelComposition()
{
    if (m_preedit.isEmpty())
        return;
    m_preedit.clear();
    QGuiApplication::inputMethod()->reset();
    Place();
}

QVariant TypingBox::inputMethodQuery(Qt::InputMethodQuery query) const
{
    switch (query) {
    case Qt::ImCursorRectangle: {
        // As high as all that must stay in sight: candidates open below it.
        const int before = fontMetrics().horizontalAdvance(m_preedit.left(m_preeditCursor));
        return QRect(m_preedit.isEmpty() ? 0 : CompositionPadding + before, 0, 1, height());
    }
    case Qt::ImFont:
        return font();
    case Qt::ImCursorPosition:
    case Qt::ImAnchorPosition:
        return 0;
    case Qt::ImSurroundingText:
    case Qt::ImCurrentSelection:
        return QString();
    default:
        return QWidget::inputMethodQuery(query);
    }
}

void TypingBox::Tell(const QString &text)
{
    const QPointer<TypingBox> self(this);
    for (const char32_t character : text.toStdU32String()) {
        if (character == U'\r' || character == U'\n')
            continue;
        Q_EMIT CharacterTyped(QString::fromUcs4(&character, 1));
        if (!self)
            return;
    }
}

void TypingBox::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    Q_EMIT KeyPressed();
    if (IsEnter(event)) {
        m_enterDown = true;
        Q_EMIT EnterPressed();
        return;
    }
    if (event->key() == Qt::Key_Space)
        m_spaceDown = true;
    const Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (event->key() == Qt::Key_Backspace) {
        if (!(event->modifiers() & commands))
            Q_EMIT BackspacePressed();
        return;
    }
    if (event->key() == Qt::Key_Pause || event->key() == Qt::Key_F1 || Public_Function::IsCloseKey(event)) {
        event->ignore(); // the window's
        return;
    }
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Delete)
        return;
    Tell(QString::fromStdU32String(TypedCharacters(*event)));
}

void TypingBox::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
    if (event->isAutoRepeat())
        return;
    if (IsEnter(event)) {
        if (std::exchange(m_enterDown, false))
            Q_EMIT EnterReleased();
    } else if (event->key() == Qt::Key_Space) {
        if (std::exchange(m_spaceDown, false))
            Q_EMIT SpaceReleased();
    }
}

void TypingBox::inputMethodEvent(QInputMethodEvent *event)
{
    event->accept();
    const bool composing = !m_preedit.isEmpty();
    const QString committed = event->commitString();
    m_preedit = event->preeditString();
    m_preeditCursor = static_cast<int>(m_preedit.size());
    for (const QInputMethodEvent::Attribute &attribute : event->attributes()) {
        if (attribute.type == QInputMethodEvent::Cursor)
            m_preeditCursor = attribute.start;
    }
    // Some input methods pass a plain space on as a commit; its release is a Space like any other.
    if (!composing && (committed == QChar(u' ') || committed == QChar(u'\u3000')))
        m_spaceDown = true;
    Place();
    Tell(committed);
}

void TypingBox::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    Q_EMIT FocusChanged(true);
}

void TypingBox::focusOutEvent(QFocusEvent *event)
{
    m_enterDown = false;
    m_spaceDown = false;
    QWidget::focusOutEvent(event);
    Q_EMIT FocusChanged(false);
}

void TypingBox::paintEvent(QPaintEvent *)
{
    if (m_preedit.isEmpty())
        return;
    QPainter painter(this);
    const QRect box = PreeditRect();
    painter.fillRect(box, QColor(255, 244, 226));
    painter.setPen(InkColor);
    painter.drawText(box.adjusted(CompositionPadding, 0, -CompositionPadding, 0), Qt::AlignVCenter,
                     m_preedit);
    painter.fillRect(QRect(box.left() + 1, box.bottom() - 2, box.width() - 2, 1), InkColor);
}
