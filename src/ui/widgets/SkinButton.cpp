#include "ui/widgets/SkinButton.h"

#include "ui/skin/Fonts.h"
#include "ui/skin/SkinLibrary.h"

#include <QKeyEvent>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize PlainSize(100, 30);
constexpr QSize PlainWindowButtonSize(44, 24);

QSize PlainSizeFor(const QString &bitmap)
{
    const bool windowButton =
        bitmap.endsWith("_CLOSE"_L1) || bitmap.endsWith("_MIN"_L1) || bitmap.endsWith("_HELP"_L1);
    return windowButton ? PlainWindowButtonSize : PlainSize;
}

enum Frame { Normal = 0, Hovered = 1, Pressed = 2, Disabled = 3, Focused = 4 };

} // namespace

SkinButton::SkinButton(const QString &objectName, const QString &name, QWidget *parent)
    : QAbstractButton(parent)
    , m_frameSize(PlainSize)
{
    setObjectName(objectName);
    SetName(name);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    resize(m_frameSize);
}

void SkinButton::SetName(const QString &name)
{
    setShortcut(QKeySequence::mnemonic(name));
    setAccessibleName(QString(name).remove(u'&'));
}

void SkinButton::SetButton(const QString &bitmap, const SkinLibrary &library, int frames)
{
    m_bitmap = bitmap;
    m_frames = qMax(1, frames);
    const QSize strip = library.BitmapSize(bitmap);
    m_frameSize = strip.isEmpty() ? PlainSizeFor(bitmap) : QSize(strip.width() / m_frames, strip.height());
    m_focusColor = library.Color(u"focus"_s, QColor(255, 164, 84));
    m_innerFocusColor = library.Color(u"focus.inner"_s, QColor(40, 52, 76));
    resize(m_frameSize);
    update();
}

QPixmap SkinButton::Look(int frame) const
{
    return SkinLibrary().Frame(m_bitmap, qMin(frame, m_frames - 1), m_frames, devicePixelRatioF());
}

void SkinButton::LoadLook() const
{
    Look(Normal);
}

QSize SkinButton::sizeHint() const
{
    return m_frameSize;
}

void SkinButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    int frame = Normal;
    if (!isEnabled())
        frame = Disabled;
    else if (isDown() || isChecked())
        frame = Pressed;
    else if (underMouse())
        frame = Hovered;
    else if (hasFocus() && m_frames > Focused)
        frame = Focused;

    const QPixmap look = Look(frame);
    if (look.isNull()) {
        painter.fillRect(rect(), frame == Pressed ? QColor(190, 195, 206) : QColor(226, 229, 236));
        painter.setPen(isEnabled() ? QColor(60, 70, 90) : QColor(150, 155, 165));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        painter.setFont(Public_Function::InterfaceFont(9));
        const QString name = painter.fontMetrics().elidedText(accessibleName(), Qt::ElideRight, width() - 6);
        painter.drawText(rect(), Qt::AlignCenter, name);
    } else {
        painter.drawPixmap(0, 0, look);
    }
    // A strip of five frames brings its own focus look; it is not shown while the button is hovered or
    // pressed.
    if (hasFocus() && frame != Focused) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(m_focusColor, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
        // The dark line inside makes the ring plain to see on light buttons too.
        painter.setPen(QPen(m_innerFocusColor, 1));
        painter.drawRoundedRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5), 3, 3);
    }
}

void SkinButton::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && !event->isAutoRepeat())
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void SkinButton::enterEvent(QEnterEvent *event)
{
    Q_EMIT MouseEntered();
    QAbstractButton::enterEvent(event);
}

void SkinButton::leaveEvent(QEvent *event)
{
    Q_EMIT MouseLeft();
    QAbstractButton::leaveEvent(event);
}
