#include "Panel.h"
#include "Pictures.h"
#include "Shapes.h"
#include "Theme.h"
#include "ui/speedtest/TestLayout.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;
using TestLayout::DisplayMode;

namespace {

/// From a box's inside to the outer edge of its frame.
constexpr int frameMargin = 2;

QRectF FrameOf(const QRect &inside)
{
    return QRectF(inside).adjusted(-frameMargin, -frameMargin, frameMargin, frameMargin);
}

// The line to copy and the typing below it share one frame.
void DrawPairFrame(QPainter &painter, const Theme &theme, const QRect &prompt, const QRect &input)
{
    const QRectF frame = FrameOf(prompt).united(FrameOf(input));
    Panel::DrawTextBoxFrame(painter, theme, frame);
    const qreal middle = QRectF(prompt).bottom() + (input.top() - QRectF(prompt).bottom() - 1) / 2;
    painter.fillRect(QRectF(frame.left() + 1, middle, frame.width() - 2, 1),
                     theme.Color(u"panel.innerBorder"_s));
}

// From the text on the left to the typing on the right.
void DrawArrow(QPainter &painter, const Theme &theme, const QPointF &center)
{
    QPainterPath arrow(center + QPointF(-2.5, -5));
    arrow.lineTo(center + QPointF(2.5, 0));
    arrow.lineTo(center + QPointF(-2.5, 5));
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme.Color(u"panel.border"_s), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(arrow);
    painter.restore();
}

void DrawRow(QPainter &painter, const Theme &theme, DisplayMode mode, int row)
{
    const QRect prompt = TestLayout::PromptBox(mode, row);
    const QRect input = TestLayout::InputBox(mode, row);
    switch (mode) {
    case DisplayMode::OneAboveTheOther:
        DrawPairFrame(painter, theme, prompt, input);
        break;
    case DisplayMode::SideBySide:
        Panel::DrawTextBoxFrame(painter, theme, FrameOf(prompt));
        Panel::DrawTextBoxFrame(painter, theme, FrameOf(input));
        DrawArrow(painter, theme, QRectF(prompt.united(input)).center());
        break;
    case DisplayMode::TypedOver:
    case DisplayMode::TypedAlone:
        Panel::DrawTextBoxFrame(painter, theme, FrameOf(input));
        break;
    }
}

Picture MakeTestPanel(const Theme &theme, const QString &name, DisplayMode mode)
{
    return Panel::Make(name, [&theme, mode](QPainter &painter) {
        Panel::DrawBody(painter, theme);
        Panel::DrawTitlePlate(painter, theme);
        Panel::DrawStatusRow(painter, theme, TestLayout::panelTop);
        Panel::DrawWell(painter, theme, TestLayout::wellTop, TestLayout::wellBottom, u"panel.keyCapWell"_s);
        for (int row = 0; row < TestLayout::RowsPerPage(mode); ++row)
            DrawRow(painter, theme, mode, row);
        Panel::DrawHintMark(painter, theme);
    });
}

} // namespace

void AddTestPanels(PictureList &list, const Theme &theme)
{
    list.append(MakeTestPanel(theme, u"TEST_DANHANG_BACK"_s, DisplayMode::OneAboveTheOther));
    list.append(MakeTestPanel(theme, u"TEST_DUIZHAO_BACK"_s, DisplayMode::SideBySide));
    list.append(MakeTestPanel(theme, u"TEST_FUGAI_BACK"_s, DisplayMode::TypedOver));
}
