#include "KeyShapes.h"
#include "Pictures.h"
#include "Theme.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

// The program prints a character of 32 points on the cap with its top left corner at (18, 5); the face ends
// below its deepest descender.
void AddKeyCaps(PictureList &list, const Theme &theme)
{
    const QSize size(theme.Integer(u"keyCap.width"_s), theme.Integer(u"keyCap.height"_s));
    const QRectF box(QPointF(0, 0), QSizeF(size));
    for (const QString &state : {u"normal"_s, u"on"_s}) {
        const QString name = state == u"on"_s ? u"ICON_KEY_ON"_s : u"ICON_KEY_NORMAL"_s;
        list.append({name, size, [=, &theme](QPainter &painter) {
                         const QString key = u"keyCap.%1."_s.arg(state);
                         painter.fillRect(box, theme.Color(u"panel.keyCapWell"_s));
                         DrawKey(painter, box,
                                 {theme.Color(key + u"face"_s), theme.Color(key + u"edge"_s),
                                  theme.Color(key + u"border"_s), theme.Number(u"keyCap.lip"_s),
                                  theme.Number(u"keyCap.radius"_s)});
                     }});
    }
}
