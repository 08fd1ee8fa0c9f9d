#include "Pictures.h"
#include "Shapes.h"
#include "Theme.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

// From the outside in: the dark line, the frame's own colour, the light line at the dialog's ground.
QList<QColor> EdgeColors(const Theme &theme)
{
    return {theme.Color(u"dialog.edgeDark"_s), theme.Color(u"dialog.edge"_s),
            theme.Color(u"dialog.edgeLight"_s)};
}

Picture MakeEdge(const Theme &theme, const QString &name, const QSize &size,
                 const std::function<QRect(int line)> &lineRect)
{
    return {name, size, [&theme, lineRect](QPainter &painter) {
                const QList<QColor> colors = EdgeColors(theme);
                for (int line = 0; line < colors.size(); ++line)
                    painter.fillRect(lineRect(line), colors.at(line));
            }};
}

} // namespace

// The title is stretched from its middle columns and the edges along their length, so their colours never
// change in the direction in which they are stretched.
void AddDialogFrame(PictureList &list, const Theme &theme)
{
    const int width = 8;
    const int height = theme.Integer(u"dialog.titleHeight"_s);
    list.append({u"DIALOG_TITLE"_s, QSize(width, height), [=, &theme](QPainter &painter) {
                     painter.fillRect(0, 0, width, height,
                                      Shapes::Vertical(QRectF(0, 0, width, height),
                                                       theme.Color(u"dialog.titleTop"_s),
                                                       theme.Color(u"dialog.titleBottom"_s)));
                     painter.fillRect(0, 0, width, 1, theme.Color(u"dialog.edgeDark"_s));
                     painter.fillRect(0, 1, width, 1, theme.Color(u"dialog.titleShine"_s));
                     painter.fillRect(0, height - 1, width, 1, theme.Color(u"dialog.titleLine"_s));
                     for (const int x : {0, width - 1})
                         painter.fillRect(x, 0, 1, height, theme.Color(u"dialog.edgeDark"_s));
                 }});

    const int edge = static_cast<int>(EdgeColors(theme).size());
    const int length = 8;
    list.append(MakeEdge(theme, u"EDGE_LEFT"_s, QSize(edge, length),
                         [=](int line) { return QRect(line, 0, 1, length); }));
    list.append(MakeEdge(theme, u"EDGE_RIGHT"_s, QSize(edge, length),
                         [=](int line) { return QRect(edge - 1 - line, 0, 1, length); }));
    list.append(MakeEdge(theme, u"EDGE_BOTTOM"_s, QSize(length, edge),
                         [=](int line) { return QRect(0, edge - 1 - line, length, 1); }));
    list.append(MakeEdge(theme, u"EDGE_LEFTDOWN"_s, QSize(edge, edge),
                         [=](int line) { return QRect(line, 0, edge - line, edge - line); }));
    list.append(MakeEdge(theme, u"EDGE_RIGHTDOWN"_s, QSize(edge, edge),
                         [=](int line) { return QRect(0, 0, edge - line, edge - line); }));
}
