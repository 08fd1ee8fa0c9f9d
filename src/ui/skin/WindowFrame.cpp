#include "ui/skin/WindowFrame.h"

#include "core/shell/Public_Define.h"
#include "platform/Prefault.h"
#include "ui/skin/SkinLibrary.h"

#include <QBackingStore>
#include <QKeyEvent>
#include <QPainter>
#include <QWidget>
#include <array>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

struct ModulePictures
{
    QLatin1StringView label;
    QLatin1StringView background;
};

constexpr std::array<ModulePictures, 25> Modules{{
    {"EN_LABEL_KEY_B"_L1, "EN_KEY_BACK_B"_L1},
    {"EN_LABEL_KEY_E"_L1, "EN_KEY_BACK_E"_L1},
    {"EN_LABEL_WORD"_L1, "EN_WORD_BACK"_L1},
    {"EN_LABEL_ARTICLE"_L1, "EN_ARTICLE_PAIRS_BACK"_L1},
    {"EN_LABEL_ARTICLE"_L1, "EN_ARTICLE_PAGES_BACK"_L1},
    {"EN_LABEL_ARTICLE"_L1, "EN_ARTICLE_OVER_BACK"_L1},
    {"PINYIN_LABEL_YINJIE"_L1, "PINYIN_YINJIE_BACK"_L1},
    {"PINYIN_LABEL_CIHUI"_L1, "TEST_DANHANG_BACK"_L1},
    {"PINYIN_LABEL_WENZHANG"_L1, "TEST_DANHANG_BACK"_L1},
    {"PINYIN_LABEL_WENZHANG"_L1, "TEST_DUIZHAO_BACK"_L1},
    {"PINYIN_LABEL_WENZHANG"_L1, "TEST_FUGAI_BACK"_L1},
    {"WUBI_LABEL_ZIGEN"_L1, "EN_KEY_BACK_E"_L1},
    {"WUBI_LABEL_DANZI"_L1, "EN_KEY_BACK_E"_L1},
    {"WUBI_LABEL_CIZU"_L1, "EN_KEY_BACK_E"_L1},
    {"WUBI_LABEL_WENZHANG"_L1, "TEST_DANHANG_BACK"_L1},
    {"WUBI_LABEL_WENZHANG"_L1, "TEST_DUIZHAO_BACK"_L1},
    {"WUBI_LABEL_WENZHANG"_L1, "TEST_FUGAI_BACK"_L1},
    {"TEST_LABEL_NEIBU"_L1, "TEST_DANHANG_BACK"_L1},
    {"TEST_LABEL_NEIBU"_L1, "TEST_DUIZHAO_BACK"_L1},
    {"TEST_LABEL_NEIBU"_L1, "TEST_FUGAI_BACK"_L1},
    {"TEST_LABEL_WAIBU"_L1, "TEST_FUGAI_BACK"_L1},
    {"TEST_LABEL_TINGDA"_L1, "TEST_DANHANG_BACK"_L1},
    {"TEST_LABEL_TINGDA"_L1, "TEST_DUIZHAO_BACK"_L1},
    {"TEST_LABEL_TINGDA"_L1, "TEST_FUGAI_BACK"_L1},
    {"BEGINTEST_LABEL"_L1, "BEGINTEST_BACK"_L1},
}};

struct PlacedPicture
{
    QString name;
    QRect place;
};

/// The ground may show through a panel in squares of this size at its rounded corners, and nowhere else.
constexpr int RoundedCorner = 16;

bool ShowsGround(const QRect &panel, const QRect &rect)
{
    const QRect betweenSides = panel.adjusted(RoundedCorner, 0, -RoundedCorner, 0);
    const QRect betweenEnds = panel.adjusted(0, RoundedCorner, 0, -RoundedCorner);
    return !betweenSides.contains(rect) && !betweenEnds.contains(rect);
}

void DrawFrame(QPainter &painter, const QRect &rect, const QColor &color)
{
    // Filled, not stroked: a pen is antialiased and doubled differently at each device pixel ratio.
    painter.fillRect(rect.left(), rect.top(), rect.width(), 1, color);
    painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, color);
    painter.fillRect(rect.left(), rect.top(), 1, rect.height(), color);
    painter.fillRect(rect.right(), rect.top(), 1, rect.height(), color);
}

} // namespace

int Public_Function::ScreenMode()
{
    return Shared().LayoutWidth() < 1023 ? 1 : 2;
}

void Public_Function::CoverScreen(QWidget *window)
{
    // The geometry serves where there is no window manager, full screen where there is one.
    window->setGeometry(Shared().ScreenRect);
    window->showFullScreen();
}

void Public_Function::PrepareToPaint(QWidget *window, const QRect &exposed)
{
    QBackingStore *store = window->backingStore();
    QPaintDevice *device = store && exposed == window->rect() ? store->paintDevice() : nullptr;
    if (device && device->devType() == QInternal::Image) {
        const auto *image = static_cast<const QImage *>(device);
        Prefault(const_cast<uchar *>(image->constBits()), static_cast<std::size_t>(image->sizeInBytes()));
    }
}

void Public_Function::DrawWindowEdge(QPainter &painter, const QSize &window)
{
    const QRect outer(QPoint(0, 0), window);
    DrawFrame(painter, outer, QColor(141, 148, 167));
    DrawFrame(painter, outer.adjusted(1, 1, -1, -1), QColor(211, 214, 224));
}

void Public_Function::TileMainGround(QPainter &painter, const QRect &rect, const SkinLibrary &library)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QPixmap tile = library.Bitmap(u"MAIN_BG"_s, ratio);
    if (tile.isNull()) {
        painter.fillRect(rect, PlainGround);
        return;
    }
    if (ratio != std::floor(ratio)) { // tiles may begin inside a pixel
        painter.drawTiledPixmap(rect, tile, rect.topLeft());
        return;
    }
    // Tile by tile is copying; as a pattern it would be shared out to threads and waited for.
    const QSize size = tile.deviceIndependentSize().toSize();
    for (int y = rect.top() - rect.top() % size.height(); y <= rect.bottom(); y += size.height()) {
        for (int x = rect.left() - rect.left() % size.width(); x <= rect.right(); x += size.width())
            painter.drawPixmap(x, y, tile);
    }
}

void Public_Function::PaintDrillWindow(int kind, QPainter &painter, const QRegion &exposed,
                                       const QList<QPoint> &positions)
{
    const SkinLibrary library;
    QList<PlacedPicture> pictures;
    QRect panel;
    if (kind >= 0 && kind < static_cast<int>(Modules.size()) && positions.size() >= 6) {
        const ModulePictures &module = Modules[static_cast<std::size_t>(kind)];
        qsizetype i = 0;
        for (const QLatin1StringView name : {module.label, module.background, "ICON_TIME"_L1, "ICON_SPEED"_L1,
                                             "ICON_SCHEDULE"_L1, "ICON_VERACITY"_L1}) {
            pictures.append({name, QRect(positions[i], library.BitmapSize(name))});
            ++i;
        }
        panel = pictures[1].place;
    }
    // Rectangle by rectangle: pictures are copied much faster through a clip that is one rectangle.
    const qreal ratio = painter.device()->devicePixelRatioF();
    for (const QRect &rect : exposed) {
        painter.setClipRect(rect);
        if (ShowsGround(panel, rect))
            TileMainGround(painter, rect, library);
        for (const PlacedPicture &picture : pictures) {
            if (picture.place.intersects(rect))
                painter.drawPixmap(picture.place.topLeft(), library.Bitmap(picture.name, ratio));
        }
    }
    painter.setClipping(false);
}

bool Public_Function::IsCloseKey(const QKeyEvent *event)
{
    return event->key() == Qt::Key_F4 && event->modifiers().testFlag(Qt::AltModifier);
}
