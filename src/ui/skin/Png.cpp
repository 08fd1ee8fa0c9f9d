#include "ui/skin/Png.h"

#include "platform/Prefault.h"
#include <QBuffer>
#include <QFile>
#include <QImageReader>

QImage Public_Function::DecodePng(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, "png");
    reader.setAutoDetectImageFormat(
        false); // which asks every decoder that is installed, even for a named format
    QImage image(reader.size(), QImage::Format_ARGB32);
    if (image.sizeInBytes() >= 128 * 1024 && !getenv("NOPREF"))
        Public_Function::Prefault(image.bits(), size_t(image.sizeInBytes()));
    reader.read(&image);
    return image;
}

QImage Public_Function::OwnPicture(const QString &resource)
{
    QFile file(resource);
    return file.open(QIODevice::ReadOnly) ? DecodePng(file.readAll()) : QImage();
}
