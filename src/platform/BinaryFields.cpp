#include "platform/BinaryFields.h"

#include "platform/Files.h"

#include <limits>

namespace BinaryFields {

void AppendText(QByteArray &bytes, const QString &text)
{
    constexpr qsizetype longestText = std::numeric_limits<quint16>::max();
    QByteArray encoded = text.toUtf8();
    if (encoded.size() > longestText) {
        qsizetype end = longestText;
        while ((static_cast<uchar>(encoded[end]) & 0xC0) == 0x80) // inside a character
            --end;
        encoded.truncate(end);
    }
    Append(bytes, static_cast<quint16>(encoded.size()));
    bytes += encoded;
}

void TextDecoder::Note(QByteArrayView text)
{
    for (const char c : text) {
        if (static_cast<uchar>(c) >= 0x80) {
            m_balance += text.isValidUtf8() ? 1 : -1;
            return;
        }
    }
}

QString TextDecoder::Decode(QByteArrayView text) const
{
    QString decoded;
    if (m_balance < 0)
        decoded = Public_Function::DecodeGb18030(text.toByteArray());
    else
        decoded = text.isValidUtf8() ? QString::fromUtf8(text)
                                     : Public_Function::DecodeUnmarked(text.toByteArray());
    return decoded.remove(QChar::ByteOrderMark);
}

} // namespace BinaryFields
