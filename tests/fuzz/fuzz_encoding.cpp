#include "fuzz/FuzzTarget.h"
#include "platform/Files.h"

namespace {

void CheckText(const QString &text, const QByteArray &bytes)
{
    Require(text.isValidUtf16(), "a text holds whole characters");
    Require(text.size() <= bytes.size(), "a text is no longer than its bytes");
    Require(!text.startsWith(QChar::ByteOrderMark), "a byte order mark is no text");
    Require(Public_Function::DecodeText(text.toUtf8()) == text, "a text that is written is read the same");

    const QStringList lines = Public_Function::SplitLines(text);
    qsizetype length = 0;
    for (const QString &line : lines) {
        Require(!line.contains(u'\r') && !line.contains(u'\n'), "a line holds no line end");
        length += line.size();
    }
    Require(length == text.size() - text.count(u'\r') - text.count(u'\n'), "lines hold the whole text");
}

void ReadEncoding(const QByteArray &bytes)
{
    const QString text = Public_Function::DecodeText(bytes);
    CheckText(text, bytes);
    if (bytes.isValidUtf8() && !bytes.startsWith("\xEF\xBB\xBF"))
        Require(text.toUtf8() == bytes, "UTF-8 is read as it is");
    Require(Public_Function::DecodeGb18030(bytes).isValidUtf16(), "GB18030 gives whole characters");
}

const FuzzTarget encodingTarget("encoding", ReadEncoding);

} // namespace
