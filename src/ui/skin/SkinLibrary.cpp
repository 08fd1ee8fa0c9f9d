#include "ui/skin/SkinLibrary.h"

#include "core/shell/Public_Define.h"
#include "platform/Paths.h"

#include <QDateTime>
#include <QFileInfo>
#include <QHash>
#include <QPixmapCache>
#include <QtEndian>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Sizes and colours that have been asked for, by the keys of the pixmap cache. A few hundred small entries.
struct Facts
{
    QHash<QString, QSize> sizes;
    QHash<QString, QColor> colors;
};

Facts &KnownFacts()
{
    static Facts facts;
    return facts;
}

constexpr auto LibraryFile = "Bitmap\\1024_CH.DLL"_L1;

/// Width and height stand big-endian behind the signature and the head of a PNG's first chunk.
QSize PngSize(const QByteArray &head)
{
    if (head.size() < 24 || !head.startsWith("\x89PNG"))
        return {};
    return QSize(qFromBigEndian<qint32>(head.constData() + 16),
                 qFromBigEndian<qint32>(head.constData() + 20));
}

} // namespace

SkinLibrary::SkinLibrary()
    : m_path(Public_Function::NativePath(Shared().InstallDir + LibraryFile))
{
    const QFileInfo file(m_path);
    m_keyPrefix = u"%1|%2|%3|"_s.arg(m_path, QString::number(file.lastModified().toMSecsSinceEpoch()),
                                     QString::number(file.size()));
}

const SqliteFile &SkinLibrary::File() const
{
    if (!m_file)
        m_file.emplace(m_path);
    return *m_file;
}

QPixmap SkinLibrary::Drawn(const QString &name, qreal devicePixelRatio) const
{
    const int scale = devicePixelRatio > 1.0 ? 2 : 1;
    const QString key = m_keyPrefix + name + (scale == 2 ? "@2"_L1 : "@1"_L1);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    QByteArray png;
    File().Query("SELECT png FROM bitmap WHERE name = ? AND scale = ?", {name, scale},
                 [&png](const SqliteFile::Row &row) {
                     png = row.Bytes(0);
                     return false;
                 });
    if (png.isEmpty() || !pixmap.loadFromData(png, "PNG"))
        return {};
    pixmap.setDevicePixelRatio(scale);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QPixmap SkinLibrary::Bitmap(const QString &name, qreal devicePixelRatio) const
{
    return Frame(name, 0, 1, devicePixelRatio);
}

QPixmap SkinLibrary::Frame(const QString &strip, int frame, int frames, qreal devicePixelRatio) const
{
    const bool isFitted = devicePixelRatio != 1.0 && devicePixelRatio != 2.0;
    if (!isFitted && frames == 1)
        return Drawn(strip, devicePixelRatio);
    const QString key = u"%1%2/%3/%4@%5"_s.arg(m_keyPrefix, strip, QString::number(frame),
                                               QString::number(frames), QString::number(devicePixelRatio));
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    const QPixmap drawn = Drawn(strip, devicePixelRatio);
    if (drawn.isNull())
        return {};
    // Cut out before it is fitted: else the colours of the next frame would run into this one's edge.
    const int width = drawn.width() / frames;
    pixmap = drawn.copy(frame * width, 0, width, drawn.height());
    if (isFitted) {
        const QSize device = (pixmap.deviceIndependentSize() * devicePixelRatio).toSize();
        pixmap = pixmap.scaled(device, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        pixmap.setDevicePixelRatio(devicePixelRatio);
    }
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QSize SkinLibrary::BitmapSize(const QString &name) const
{
    const QString key = m_keyPrefix + name;
    QHash<QString, QSize> &sizes = KnownFacts().sizes;
    if (const auto known = sizes.constFind(key); known != sizes.constEnd())
        return *known;
    QSize size;
    File().Query("SELECT substr(png, 1, 24) FROM bitmap WHERE name = ? AND scale = 1", {name},
                 [&size](const SqliteFile::Row &row) {
                     size = PngSize(row.Bytes(0));
                     return false;
                 });
    sizes.insert(key, size);
    return size;
}

QColor SkinLibrary::Color(const QString &key, const QColor &fallback) const
{
    const QString fullKey = m_keyPrefix + key;
    QHash<QString, QColor> &colors = KnownFacts().colors;
    if (const auto known = colors.constFind(fullKey); known != colors.constEnd())
        return known->isValid() ? *known : fallback;
    QColor color;
    File().Query("SELECT value FROM theme WHERE key = ?", {key}, [&color](const SqliteFile::Row &row) {
        color = QColor(row.Text(0));
        return false;
    });
    colors.insert(fullKey, color);
    return color.isValid() ? color : fallback;
}

bool SkinLibrary::IsUsable() const
{
    return !BitmapSize(u"MAIN_BG"_s).isEmpty();
}
