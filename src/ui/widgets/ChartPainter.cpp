#include "ui/widgets/ChartPainter.h"

#include "ui/skin/SkinLibrary.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr qreal ChartPad = 8;
constexpr qreal ChartGap = 5;
/// Between the marks and a plot whose place is given.
constexpr qreal PlacedGap = 3;
constexpr qreal WidestBar = 44;
constexpr QColor ChartGridColor(228, 231, 238);
constexpr QColor ChartAxisColor(141, 148, 167);
constexpr QColor ChartTextColor(72, 80, 98);
constexpr QColor ChartTitleColor(40, 46, 58);

/// A control character would leave its place empty.
QString ReadableLabel(const QString &label)
{
    return label == QStringLiteral("\t") ? QStringLiteral("Tab") : label;
}

/// For the ground below a line.
QColor Faint(QColor color)
{
    color.setAlpha(28);
    return color;
}

bool BoxCrosses(const QRectF &box, const QPointF &from, const QPointF &to)
{
    // Walking along the segment is exact enough for a text's box.
    const int steps = qBound(1, static_cast<int>(QLineF(from, to).length() / 3), 400);
    for (int i = 0; i <= steps; ++i) {
        if (box.contains(from + (to - from) * i / steps))
            return true;
    }
    return false;
}

} // namespace

ChartPainter::ChartPainter(const ChartData &data, const QRectF &area, const QFont &font)
    : m_data(data)
    , m_area(area)
    , m_font(font)
    , m_titleFont(font)
    , m_scale(data.scaleParts > 0 ? ChartScale::InParts(data.maximum, data.scaleParts)
                                  : ChartScale(data.maximum, 5, data.wholeNumbers))
{
    m_titleFont.setBold(true);
    PlacePlot();
}

void ChartPainter::PlacePlot()
{
    const QFontMetricsF text(m_font);
    const qreal line = std::ceil(text.height());
    qreal widest = 0;
    for (const double mark : m_scale.Marks())
        widest = qMax(widest, text.horizontalAdvance(m_scale.MarkText(mark)));
    if (HasPlaces()) {
        m_plot = m_data.places.plot;
        m_plot.setLeft(qMax(m_plot.left(), std::ceil(m_area.left() + widest + PlacedGap)));
        return;
    }
    const qreal left = ChartPad + (m_data.valueTitle.isEmpty() ? 0 : line + ChartGap) + widest + ChartGap;
    // Above the plot there is always room for the value of its highest point.
    const qreal top = ChartPad + line + ChartGap + (m_data.title.isEmpty() ? 0 : line);
    const qreal bottom = ChartPad + line + ChartGap + (m_data.labelTitle.isEmpty() ? 0 : line + 2);
    m_plot = m_area.adjusted(std::ceil(left), top, -ChartPad - 6, -bottom);
    m_plot.setSize(m_plot.size().expandedTo(QSizeF(1, 1)));
}

bool ChartPainter::IsEmpty() const
{
    return std::none_of(m_data.values.cbegin(), m_data.values.cend(), [](double v) { return v > 0; });
}

qreal ChartPainter::SlotWidth() const
{
    if (m_data.places.slotWidth > 0)
        return m_data.places.slotWidth;
    return m_plot.width() / qreal(qMax<qsizetype>(1, m_data.values.size()));
}

qreal ChartPainter::CentreOf(qsizetype index) const
{
    return m_plot.left() + m_data.places.firstSlot + (qreal(index) + 0.5) * SlotWidth();
}

QPointF ChartPainter::PointOf(qsizetype index) const
{
    return {CentreOf(index), m_plot.bottom() - HeightOf(m_data.values[index])};
}

QSizeF ChartPainter::TextSize(const QString &text) const
{
    const QFontMetricsF metrics(m_font);
    return {metrics.horizontalAdvance(text), metrics.height()};
}

int ChartPainter::IndexAt(const QPointF &position) const
{
    if (!m_area.contains(position) || m_data.values.isEmpty())
        return -1;
    const qreal slot = std::floor((position.x() - m_plot.left() - m_data.places.firstSlot) / SlotWidth());
    return slot >= 0 && slot < qreal(m_data.values.size()) ? static_cast<int>(slot) : -1;
}

void ChartPainter::Paint(QPainter &painter) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(m_font);
    PaintGrid(painter);
    PaintTitles(painter);
    PaintLabels(painter);
    if (IsEmpty()) {
        painter.setPen(ChartTextColor);
        painter.drawText(m_plot, Qt::AlignCenter, m_data.emptyText);
    } else if (m_data.kind == ChartData::Kind::Bar) {
        PaintBars(painter);
        PaintBarValues(painter);
    } else {
        PaintLine(painter);
        PaintPointValues(painter);
    }
    painter.restore();
}

void ChartPainter::PaintGrid(QPainter &painter) const
{
    const qreal lineHeight = QFontMetricsF(m_font).height();
    const qreal gap = HasPlaces() ? PlacedGap : ChartGap;
    for (const double mark : m_scale.Marks()) {
        // Half a pixel down, a line of one pixel is sharp.
        const qreal y = std::floor(m_plot.bottom() - HeightOf(mark)) + 0.5;
        painter.setPen(QPen(mark > 0 ? ChartGridColor : ChartAxisColor, 1));
        painter.drawLine(QPointF(m_plot.left(), y), QPointF(m_plot.right(), y));
        painter.setPen(ChartTextColor);
        painter.drawText(
            QRectF(m_area.left(), y - lineHeight / 2, m_plot.left() - gap - m_area.left(), lineHeight),
            Qt::AlignRight | Qt::AlignVCenter, m_scale.MarkText(mark));
    }
    painter.setPen(QPen(ChartAxisColor, 1));
    const qreal x = std::floor(m_plot.left()) + 0.5;
    painter.drawLine(QPointF(x, m_plot.top()), QPointF(x, m_plot.bottom()));
}

void ChartPainter::PaintTitles(QPainter &painter) const
{
    const qreal line = std::ceil(QFontMetricsF(m_font).height());
    painter.setPen(ChartTitleColor);
    if (HasPlaces()) {
        const qreal ascent = QFontMetricsF(m_font).ascent();
        painter.drawText(m_data.places.valueTitle + QPointF(0, ascent), m_data.valueTitle);
        painter.drawText(m_data.places.labelTitle + QPointF(0, ascent), m_data.labelTitle);
        return;
    }
    painter.setFont(m_titleFont);
    painter.drawText(QRectF(m_plot.left(), m_area.top() + ChartPad - 2, m_plot.width(), line),
                     Qt::AlignCenter, m_data.title);
    painter.setFont(m_font);
    painter.drawText(QRectF(m_plot.left(), m_area.bottom() - ChartPad - line, m_plot.width(), line),
                     Qt::AlignCenter, m_data.labelTitle);
    painter.save();
    painter.translate(m_area.left() + ChartPad, m_plot.center().y());
    painter.rotate(-90);
    const qreal length = m_area.height() - 2 * ChartPad;
    painter.drawText(QRectF(-length / 2, 0, length, line), Qt::AlignCenter, m_data.valueTitle);
    painter.restore();
}

void ChartPainter::PaintLabels(QPainter &painter) const
{
    const qsizetype count = m_data.values.size();
    qreal widest = 1;
    // Of very many labels some are as good as all, and measuring takes time.
    const qsizetype step = count / 200 + 1;
    for (qsizetype i = 0; i < count; i += step)
        widest = qMax(widest, TextSize(ReadableLabel(m_data.Label(i))).width());
    const qreal width = SlotWidth() * qreal(count);
    const qsizetype most = qMax<qsizetype>(1, qsizetype(width / (widest + 8)));
    const auto stride = qMax<qsizetype>(
        1, qsizetype(ChartScale(double(count), static_cast<int>(most), true).Marks().value(1)));
    // A page with its own layout has its list close below the line.
    const bool close = HasPlaces() && m_data.kind == ChartData::Kind::Line;
    const qreal top = m_plot.bottom() + (close ? 1 : ChartGap);
    painter.setPen(ChartTextColor);
    for (qsizetype i = stride - 1; i < count; i += stride) {
        const QString label = ReadableLabel(m_data.Label(i));
        const QSizeF size = TextSize(label);
        // A label at the edge moves inwards rather than out of the picture.
        const qreal x = qMin(CentreOf(i) - size.width() / 2, m_area.right() - size.width() - 2);
        painter.drawText(QRectF(QPointF(x, top), QSizeF(size.width() + 2, size.height())),
                         Qt::AlignLeft | Qt::AlignTop, label);
    }
}

void ChartPainter::PaintBars(QPainter &painter) const
{
    // Whole pixels: bars of fractions would be pale and of unequal widths.
    const qreal free = std::round(qMin(WidestBar, SlotWidth() * 0.64));
    const qreal width = m_data.places.barWidth > 0 ? m_data.places.barWidth : qMax(1.0, free);
    const QPixmap picture =
        m_data.barPicture.isEmpty()
            ? QPixmap()
            : SkinLibrary().Bitmap(m_data.barPicture, painter.device()->devicePixelRatioF());
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_data.color);
    for (qsizetype i = 0; i < m_data.values.size(); ++i) {
        const qreal height = HeightOf(m_data.values[i]);
        if (height <= 0)
            continue;
        const qreal round = width > 8 ? qMin(3.0, height) : 0;
        const qreal top = std::floor(m_plot.bottom() - height);
        const QRectF bar(std::round(CentreOf(i) - width / 2), top, width, std::floor(m_plot.bottom()) - top);
        if (!picture.isNull()) {
            painter.drawPixmap(bar, picture, picture.rect());
            continue;
        }
        // The foot is square: its round corners lie below the axis.
        painter.save();
        painter.setClipRect(bar);
        painter.drawRoundedRect(bar.adjusted(0, 0, 0, round), round, round);
        painter.restore();
    }
}

void ChartPainter::PaintLine(QPainter &painter) const
{
    const qsizetype count = m_data.values.size();
    if (count == 0)
        return;
    if (SlotWidth() < 1) {
        PaintBand(painter);
        return;
    }
    QPolygonF line;
    line.reserve(count);
    for (qsizetype i = 0; i < count; ++i)
        line += PointOf(i);
    QPolygonF ground = line;
    ground += QPointF(line.constLast().x(), m_plot.bottom());
    ground += QPointF(line.constFirst().x(), m_plot.bottom());
    painter.setPen(Qt::NoPen);
    painter.setBrush(Faint(m_data.color));
    painter.drawPolygon(ground);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(m_data.color, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(line);
    // Where points stand closer together than this, they would be a thick line.
    if (SlotWidth() < 10)
        return;
    painter.setBrush(Qt::white);
    for (const QPointF &point : std::as_const(line))
        painter.drawEllipse(point, 3.5, 3.5);
}

void ChartPainter::PaintBand(QPainter &painter) const
{
    const QColor under = Faint(m_data.color);
    for (qsizetype i = 0; i < m_data.values.size();) {
        const qreal column = std::floor(PointOf(i).x());
        // It begins where the column before it has ended.
        qreal high = PointOf(qMax<qsizetype>(0, i - 1)).y();
        qreal low = high;
        for (; i < m_data.values.size() && std::floor(PointOf(i).x()) == column; ++i) {
            high = qMin(high, PointOf(i).y());
            low = qMax(low, PointOf(i).y());
        }
        painter.fillRect(QRectF(column, high - 1, 1, low - high + 2), m_data.color);
        painter.fillRect(QRectF(column, low + 1, 1, qMax(0.0, m_plot.bottom() - low - 1)), under);
    }
}

void ChartPainter::PaintBarValues(QPainter &painter) const
{
    qreal widest = 0;
    for (const double value : m_data.values)
        widest = qMax(widest, TextSize(ChartScale::Text(value)).width());
    if (widest + 4 > SlotWidth())
        return;
    painter.setPen(ChartTitleColor);
    for (qsizetype i = 0; i < m_data.values.size(); ++i) {
        if (!(m_data.values[i] > 0))
            continue;
        const QSizeF size = TextSize(ChartScale::Text(m_data.values[i]));
        const QPointF at(CentreOf(i) - size.width() / 2, PointOf(i).y() - size.height() - 1);
        painter.drawText(QRectF(at, size + QSizeF(2, 0)), Qt::AlignLeft | Qt::AlignVCenter,
                         ChartScale::Text(m_data.values[i]));
    }
}

bool ChartPainter::IsCrossed(const QRectF &box, qsizetype near) const
{
    const auto reach = static_cast<qsizetype>(box.width() / SlotWidth()) + 2;
    const qsizetype last = qMin(near + reach, m_data.values.size() - 1);
    for (qsizetype i = qMax<qsizetype>(0, near - reach); i < last; ++i) {
        if (BoxCrosses(box, PointOf(i), PointOf(i + 1)))
            return true;
    }
    return false;
}

void ChartPainter::PaintPointValues(QPainter &painter) const
{
    // With this many points numbers say nothing any more.
    if (SlotWidth() < 10)
        return;
    painter.setPen(ChartTitleColor);
    const qsizetype count = m_data.values.size();
    QList<QRectF> taken;
    for (qsizetype i = 0; i < count; ++i) {
        if (!(m_data.values[i] > 0))
            continue;
        const QPointF point = PointOf(i);
        const QSizeF size = TextSize(ChartScale::Text(m_data.values[i]));
        const auto isFree = [&](const QRectF &box) {
            return std::none_of(taken.crbegin(), taken.crend(),
                                [&](const QRectF &other) { return box.intersects(other); }) &&
                   box.left() >= m_plot.left() + 2 && box.right() <= m_area.right() - 2 &&
                   box.top() >= m_area.top() && box.bottom() < m_plot.bottom() - 1 && !IsCrossed(box, i);
        };
        const qreal up = -size.height() - 5;
        const qreal middle = -size.width() / 2;
        const qreal left = -size.width() - 2;
        const std::array<QPointF, 6> offsets{QPointF(middle, up), {middle, 5}, {left, up}, {2, up},
                                             {left, 5},           {2, 5}};
        // Where points are close together, a value beside its point would seem to be its neighbour's.
        const auto last = size.width() > SlotWidth() ? offsets.cbegin() + 2 : offsets.cend();
        const auto offset = std::find_if(offsets.cbegin(), last,
                                         [&](const QPointF &by) { return isFree(QRectF(point + by, size)); });
        if (offset == last)
            continue;
        const QRectF place(point + *offset, size);
        painter.drawText(place.adjusted(0, 0, 2, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         ChartScale::Text(m_data.values[i]));
        taken += place.adjusted(-3, 0, 3, 0);
    }
}
