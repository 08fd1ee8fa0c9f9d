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
    if (text.isValidUtf8() && m_balance >= 0)
        return QString::fromUtf8(text);
    return m_balance < 0 ? Public_Function::DecodeGb18030(text.toByteArray())
                         : Public_Function::DecodeText(text.toByteArray());
}

} // namespace BinaryFields
