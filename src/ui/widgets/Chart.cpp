#include "ui/widgets/Chart.h"

#include "ui/skin/Fonts.h"
#include "ui/widgets/ChartPainter.h"
#include "ui/widgets/PaintedAccess.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

using namespace Qt::Literals::StringLiterals;

Chart::Chart(const QString &objectName, const QString &accessibleName, QWidget *parent)
    : QWidget(parent)
    , m_textFont(Public_Function::InterfaceFont(9))
{
    Public_Function::SetAccessibleRole(this, QAccessible::Chart);
    setObjectName(objectName);
    setAccessibleName(accessibleName);
}

void Chart::SetData(const ChartData &chart)
{
    m_data = chart;
    setAccessibleDescription(chart.Description());
    update();
}

void Chart::SetTextSize(qreal points)
{
    m_textFont = Public_Function::InterfaceFont(points);
    update();
}

void Chart::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_panel) {
        painter.setPen(QPen(QColor(141, 148, 167), 1));
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
    }
    ChartPainter(m_data, rect(), m_textFont).Paint(painter);
}

bool Chart::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const int index = ChartPainter(m_data, rect(), m_textFont).IndexAt(help->pos());
    if (index < 0) {
        QToolTip::hideText();
        event->ignore();
        return true;
    }
    const QString label = m_data.Label(index);
    QToolTip::showText(
        help->globalPos(),
        (label.isEmpty() ? QString() : label + u": "_s) + ChartScale::Text(m_data.values[index]), this);
    return true;
}
