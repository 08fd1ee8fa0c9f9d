#pragma once

#include "ui/widgets/ChartData.h"
#include "ui/widgets/ChartScale.h"

#include <QFont>
#include <QRectF>

class QPainter;

/// Lays a chart out in a rectangle and paints it: a line with points, or bars, with axes, grid, titles,
/// labels as far apart as they are legible, and the values where there is room for them.
class ChartPainter
{
public:
    ChartPainter(const ChartData &data, const QRectF &area, const QFont &font);

    void Paint(QPainter &painter) const;

    /// The index of the value shown at this place of the plot, -1 outside it.
    int IndexAt(const QPointF &position) const;

private:
    void PaintGrid(QPainter &painter) const;
    void PaintTitles(QPainter &painter) const;
    void PaintLabels(QPainter &painter) const;
    void PaintBars(QPainter &painter) const;
    void PaintLine(QPainter &painter) const;
    void PaintBarValues(QPainter &painter) const;
    void PaintPointValues(QPainter &painter) const;
    /// The line of more values than there are columns of pixels: from the lowest to the highest of each.
    void PaintBand(QPainter &painter) const;

    void PlacePlot();
    /// Whether a part of the line near this value runs through the box.
    bool IsCrossed(const QRectF &box, qsizetype near) const;
    bool HasPlaces() const { return m_data.places.plot.isValid(); }
    qreal SlotWidth() const;
    qreal CentreOf(qsizetype index) const;
    qreal HeightOf(double value) const { return m_plot.height() * m_scale.Share(value); }
    QPointF PointOf(qsizetype index) const;
    QSizeF TextSize(const QString &text) const;
    bool IsEmpty() const;

    const ChartData &m_data;
    QRectF m_area;
    QFont m_font;
    QFont m_titleFont;
    QRectF m_plot;
    ChartScale m_scale;
};
