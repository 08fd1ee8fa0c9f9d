#include "ui/widgets/ProgressBox.h"

#include "ui/skin/SkinLibrary.h"
#include "ui/widgets/PaintedAccess.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

ProgressBox::ProgressBox(QWidget *parent)
    : QWidget(parent)
{
    Public_Function::SetAccessibleRole(this, QAccessible::ProgressBar);
    setObjectName(u"picProgress"_s);
    setAccessibleName(tr("Progress"));
    setToolTip(u"00 %"_s);
    setAccessibleDescription(toolTip());
    resize(sizeHint());
}

QSize ProgressBox::sizeHint() const
{
    const QSize size = SkinLibrary().BitmapSize(u"PROGRESSBAR_BLUE"_s);
    return size.isEmpty() ? QSize(200, 14) : size;
}

void ProgressBox::SetPercent(int percent)
{
    const int shown = qBound(0, percent, 100);
    const QString text = QString::number(shown) + " %"_L1;
    if (text == toolTip())
        return;
    m_percent = shown;
    setToolTip(text);
    setAccessibleDescription(text);
    update();
}

void ProgressBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_ground.Paint(painter, rect());
    const int filled = m_percent * width() / 100;
    if (m_full.For(devicePixelRatioF()).isNull() || !m_empty.Draw(painter, {}, rect())) {
        painter.fillRect(rect(), QColor(205, 211, 222));
        painter.fillRect(0, 0, filled, height(), QColor(92, 172, 96));
        return;
    }
    painter.setClipRect(0, 0, filled, height());
    m_full.Draw(painter, {}, rect());
}
