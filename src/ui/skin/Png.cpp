#include "ui/skin/Png.h"

#include "platform/Prefault.h"
#include <QBuffer>
#include <QFile>
#include <QImageReader>

namespace {

constexpr int LargestPngSide = 8192;
constexpr qsizetype LargeImage = 128 * 1024; // bytes: smaller ones mostly find memory that was in use before

} // namespace

QImage Public_Function::DecodePng(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, "png");
    reader.setAutoDetectImageFormat(
        false); // which asks every decoder that is installed, even for a named format
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > LargestPngSide || size.height() > LargestPngSide)
        return {};
    QImage image(size, QImage::Format_ARGB32);
    if (image.sizeInBytes() >= LargeImage)
        Prefault(image.bits(), static_cast<std::size_t>(image.sizeInBytes()));
    return reader.read(&image) ? image : QImage();
}

QImage Public_Function::OwnPicture(const QString &resource)
{
    QFile file(resource);
    return file.open(QIODevice::ReadOnly) ? DecodePng(file.readAll()) : QImage();
}
