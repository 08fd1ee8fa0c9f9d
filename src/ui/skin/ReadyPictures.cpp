#include "ui/skin/ReadyPictures.h"

#include "platform/Prefault.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QtEndian>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Signature[] = "QVXPIX1\n";
constexpr qint64 SignatureSize = 8;
constexpr qint64 HeadSize = SignatureSize + 4; ///< and the length of the index
constexpr quint32 LongestIndex = 1 << 20;
constexpr int LargestSide = 8192;
constexpr qint64 SqliteHead = 100;

QString FileFor(const QString &library)
{
    const QFileInfo file(library);
    return file.path() + u'/' + file.completeBaseName() + u".PIX"_s;
}

/// What tells one state of a library from another: SQLite counts its changes in the head of its file, and the
/// maker puts a sum of the content there.
QString StateOf(const QString &library)
{
    QFile file(library);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::number(file.size()) + u' ' + QString::fromLatin1(file.read(SqliteHead).toHex());
}

} // namespace

ReadyPictures::ReadyPictures(const QString &library)
{
    auto file = std::make_unique<QFile>(FileFor(library));
    if (Q_BYTE_ORDER != Q_LITTLE_ENDIAN || !file->open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return;
    const QByteArray head = file->read(HeadSize);
    if (head.size() < HeadSize || !head.startsWith(Signature))
        return;
    const auto length = qFromLittleEndian<quint32>(head.constData() + SignatureSize);
    if (length > LongestIndex)
        return;
    const QJsonObject index = QJsonDocument::fromJson(file->read(length)).object();
    if (index.value("library"_L1).toString() != StateOf(library))
        return;
    m_index = index;
    m_file = std::move(file);
}

ReadyPictures::ReadyPictures(ReadyPictures &&) noexcept = default;
ReadyPictures &ReadyPictures::operator=(ReadyPictures &&) noexcept = default;
ReadyPictures::~ReadyPictures() = default;

QImage ReadyPictures::Picture(const QString &name, int scale) const
{
    const QSize size = Size(name);
    if (size.isEmpty() || scale != 1)
        return {};
    const qint64 bytes = qint64(4) * size.width() * size.height();
    const qint64 at = m_index.value("pictures"_L1)[name]["at"_L1].toInteger(-1);
    if (at < HeadSize || at > m_file->size() - bytes)
        return {};
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    Public_Function::Prefault(image.bits(), static_cast<std::size_t>(bytes));
    const bool isRead =
        m_file->seek(at) && m_file->read(reinterpret_cast<char *>(image.bits()), bytes) == bytes;
    return isRead ? image : QImage();
}

QSize ReadyPictures::Size(const QString &name) const
{
    const QJsonValue picture = m_index.value("pictures"_L1)[name];
    const QSize size(picture["width"_L1].toInt(), picture["height"_L1].toInt());
    return size.width() <= LargestSide && size.height() <= LargestSide ? size : QSize();
}

QColor ReadyPictures::Color(const QString &key) const
{
    return QColor(m_index.value("colors"_L1)[key].toString());
}

QString ReadyPictures::Write(const QString &library, const QList<std::pair<QString, QImage>> &pictures,
                             const QMap<QString, QColor> &theme)
{
    QJsonObject colors;
    for (auto entry = theme.cbegin(); entry != theme.cend(); ++entry)
        colors.insert(entry.key(), entry.value().name(QColor::HexArgb));
    QJsonObject index{{u"library"_s, StateOf(library)}, {u"colors"_s, colors}};

    // The index says where pictures lie and has a length that depends on it: the pictures begin behind its
    // limit.
    QByteArray pixels;
    QJsonObject places;
    constexpr qint64 begin = 64 * 1024;
    for (const auto &[name, image] : pictures) {
        const QImage painted = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        places.insert(name, QJsonObject{{u"at"_s, begin + pixels.size()},
                                        {u"width"_s, painted.width()},
                                        {u"height"_s, painted.height()}});
        pixels.append(reinterpret_cast<const char *>(painted.constBits()), painted.sizeInBytes());
    }
    index.insert(u"pictures"_s, places);
    const QByteArray text = QJsonDocument(index).toJson(QJsonDocument::Compact);
    QByteArray head(begin, '\0');
    if (HeadSize + text.size() > begin)
        return u"too many pictures for the index"_s;
    std::memcpy(head.data(), Signature, SignatureSize);
    qToLittleEndian<quint32>(static_cast<quint32>(text.size()), head.data() + SignatureSize);
    std::memcpy(head.data() + HeadSize, text.constData(), static_cast<std::size_t>(text.size()));

    QFile file(FileFor(library));
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(head) == head.size() &&
                           file.write(pixels) == pixels.size() && file.flush();
    return isWritten ? QString() : file.errorString();
}
