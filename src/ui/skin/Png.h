#pragma once

#include <QByteArray>
#include <QImage>

namespace Public_Function {

/// The picture in the bytes of a PNG file, null when they are damaged. No other decoder is loaded to look at
/// them, which at the start would take longer than the decoding.
QImage DecodePng(const QByteArray &bytes);

/// The picture in a PNG file of the program itself, as `:/message/APP_ICON.png`.
QImage OwnPicture(const QString &resource);

} // namespace Public_Function
