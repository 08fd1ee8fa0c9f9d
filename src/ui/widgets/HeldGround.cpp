#include "ui/widgets/HeldGround.h"

#include <QPainter>
#include <QWidget>
#include <utility>

namespace {

int Generation = 0;

} // namespace

HeldGround::HeldGround(QWidget *widget, Addition addition)
    : m_widget(widget)
    , m_addition(std::move(addition))
{
    widget->setAttribute(Qt::WA_OpaquePaintEvent);
}

void HeldGround::RenewAll()
{
    ++Generation;
}

void HeldGround::Take()
{
    const qreal ratio = m_widget->devicePixelRatioF();
    m_place = m_widget->geometry();
    m_generation = Generation;
    m_pixmap = QPixmap((QSizeF(m_place.size()) * ratio).toSize());
    m_pixmap.setDevicePixelRatio(ratio);
    m_pixmap.fill(Qt::white); // a widget that has no window has no ground
    if (QWidget *window = m_widget->parentWidget())
        window->render(&m_pixmap, {}, m_place, QWidget::RenderFlags());
    if (m_addition) {
        QPainter painter(&m_pixmap);
        m_addition(painter);
    }
}

void HeldGround::Paint(QPainter &painter, const QRect &rect)
{
    if (m_pixmap.isNull() || m_generation != Generation || m_place != m_widget->geometry() ||
        m_pixmap.devicePixelRatio() != m_widget->devicePixelRatioF())
        Take();
    const qreal ratio = m_pixmap.devicePixelRatio();
    painter.drawPixmap(
        QRectF(rect), m_pixmap,
        QRectF(rect.x() * ratio, rect.y() * ratio, rect.width() * ratio, rect.height() * ratio));
}
