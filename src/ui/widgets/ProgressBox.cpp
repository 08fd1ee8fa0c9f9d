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
    const SkinLibrary library;
    const qreal ratio = devicePixelRatioF();
    const QPixmap empty = library.Bitmap(u"PROGRESSBAR_BLUE"_s, ratio);
    const QPixmap full = library.Bitmap(u"PROGRESSBAR_GREEN"_s, ratio);
    if (empty.isNull() || full.isNull()) {
        painter.fillRect(rect(), QColor(205, 211, 222));
        painter.fillRect(0, 0, m_percent * width() / 100, height(), QColor(92, 172, 96));
        return;
    }
    painter.drawPixmap(0, 0, empty);
    const int filled = m_percent * library.BitmapSize(u"PROGRESSBAR_GREEN"_s).width() / 100;
    painter.setClipRect(0, 0, filled, height());
    painter.drawPixmap(0, 0, full);
}
