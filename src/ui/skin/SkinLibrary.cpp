#include "ui/skin/SkinLibrary.h"

#include "core/shell/Public_Define.h"
#include "platform/Paths.h"
#include "ui/skin/Png.h"
#include "ui/skin/ReadyPictures.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QHash>
#include <QPixmapCache>
#include <QTimer>
#include <QtEndian>
#include <future>
#include <map>
#include <optional>

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

/// What was opened last, and the prefix of its keys.
struct OpenFiles
{
    QString keyPrefix;
    std::optional<SqliteFile> library;
    std::optional<ReadyPictures> ready;
};

/// Those of the library whose keys have this prefix.
OpenFiles &Opened(const QString &keyPrefix)
{
    static OpenFiles opened;
    if (opened.keyPrefix != keyPrefix) {
        opened = {keyPrefix, std::nullopt, std::nullopt};
        // Not longer: some systems do not let a file be replaced that is open.
        QTimer::singleShot(0, QCoreApplication::instance(), [] { opened = {}; });
    }
    return opened;
}

/// What is being decoded ahead, by the keys of the pixmap cache.
struct PicturesAhead
{
    std::map<QString, std::future<QImage>> pictures;
    std::future<void> worker; ///< waits for its thread when it is destroyed, so it is the last to be declared
};

PicturesAhead &Ahead()
{
    static PicturesAhead ahead;
    return ahead;
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

int ScaleFor(qreal devicePixelRatio)
{
    return devicePixelRatio > 1.0 ? 2 : 1;
}

QByteArray ReadPng(const SqliteFile &file, const QString &name, int scale)
{
    QByteArray png;
    file.Query("SELECT png FROM bitmap WHERE name = ? AND scale = ?", {name, scale},
               [&png](const SqliteFile::Row &row) {
                   png = row.Bytes(0);
                   return false;
               });
    return png;
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
    std::optional<SqliteFile> &library = Opened(m_keyPrefix).library;
    if (!library || !library->IsOpen())
        library.emplace(m_path);
    return *library;
}

const ReadyPictures &SkinLibrary::Ready() const
{
    std::optional<ReadyPictures> &ready = Opened(m_keyPrefix).ready;
    if (!ready)
        ready.emplace(m_path);
    return *ready;
}

QString SkinLibrary::PictureKey(const QString &name, int scale) const
{
    return m_keyPrefix + name + (scale == 2 ? "@2"_L1 : "@1"_L1);
}

void SkinLibrary::DecodeAhead(const QStringList &names, qreal devicePixelRatio)
{
    const SkinLibrary library;
    const int scale = ScaleFor(devicePixelRatio);
    PicturesAhead &ahead = Ahead();
    std::vector<std::pair<QString, std::promise<QImage>>> work;
    for (const QString &name : names) {
        const QString key = library.PictureKey(name, scale);
        QPixmap known;
        const bool isReady = scale == 1 && !library.Ready().Size(name).isEmpty();
        if (!isReady && ahead.pictures.count(key) == 0 && !QPixmapCache::find(key, &known)) {
            work.emplace_back(name, std::promise<QImage>());
            ahead.pictures[key] = work.back().second.get_future();
        }
    }
    if (work.empty())
        return;
    ahead.worker =
        std::async(std::launch::async, [path = library.m_path, scale, work = std::move(work)]() mutable {
            const SqliteFile file(path);
            for (auto &[name, picture] : work)
                picture.set_value(Public_Function::DecodePng(ReadPng(file, name, scale))
                                      .convertToFormat(QImage::Format_ARGB32_Premultiplied));
        });
}

QPixmap SkinLibrary::Drawn(const QString &name, qreal devicePixelRatio) const
{
    const int scale = ScaleFor(devicePixelRatio);
    const QString key = PictureKey(name, scale);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    auto &ahead = Ahead().pictures;
    if (const auto begun = ahead.find(key); begun != ahead.end()) {
        pixmap = QPixmap::fromImage(begun->second.get());
        ahead.erase(begun);
    } else {
        QImage image = Ready().Picture(name, scale);
        if (image.isNull())
            image = Public_Function::DecodePng(ReadPng(File(), name, scale));
        pixmap = QPixmap::fromImage(std::move(image));
    }
    if (pixmap.isNull())
        return {};
    pixmap.setDevicePixelRatio(scale);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QString SkinLibrary::FrameKey(const QString &strip, int frame, int frames, qreal devicePixelRatio) const
{
    return u"%1%2/%3/%4@%5"_s.arg(m_keyPrefix, strip, QString::number(frame), QString::number(frames),
                                  QString::number(devicePixelRatio));
}

void SkinLibrary::LetGo(const QStringList &names, qreal devicePixelRatio) const
{
    for (const QString &name : names) {
        QPixmapCache::remove(PictureKey(name, ScaleFor(devicePixelRatio)));
        QPixmapCache::remove(FrameKey(name, 0, 1, devicePixelRatio));
    }
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
    const QString key = FrameKey(strip, frame, frames, devicePixelRatio);
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
    QSize size = Ready().Size(name);
    if (size.isEmpty())
        size = SizeInLibrary(name);
    sizes.insert(key, size);
    return size;
}

QSize SkinLibrary::SizeInLibrary(const QString &name) const
{
    QSize size;
    File().Query("SELECT substr(png, 1, 24) FROM bitmap WHERE name = ? AND scale = 1", {name},
                 [&size](const SqliteFile::Row &row) {
                     size = PngSize(row.Bytes(0));
                     return false;
                 });
    return size;
}

QColor SkinLibrary::Color(const QString &key, const QColor &fallback) const
{
    const QString fullKey = m_keyPrefix + key;
    QHash<QString, QColor> &colors = KnownFacts().colors;
    if (const auto known = colors.constFind(fullKey); known != colors.constEnd())
        return known->isValid() ? *known : fallback;
    QColor color = Ready().Color(key);
    if (!color.isValid()) {
        File().Query("SELECT value FROM theme WHERE key = ?", {key}, [&color](const SqliteFile::Row &row) {
            color = QColor(row.Text(0));
            return false;
        });
    }
    colors.insert(fullKey, color);
    return color.isValid() ? color : fallback;
}

bool SkinLibrary::IsUsable() const
{
    return !SizeInLibrary(u"MAIN_BG"_s).isEmpty();
}
