#include "core/drills/KeyLesson.h"
#include "core/speedtest/PlacementWords.h"
#include "fuzz/FuzzTarget.h"
#include "platform/BinaryFields.h"
#include "platform/Files.h"
#include "support/TestInstall.h"

using namespace Qt::Literals::StringLiterals;
using namespace Public_Function;

namespace {

void ReadEncoding(const QByteArray &bytes)
{
    const QString text = DecodeText(bytes);
    Require(text.isValidUtf16(), "a text holds whole characters");
    Require(text.size() <= bytes.size(), "a text is no longer than its bytes");
    Require(!text.startsWith(QChar::ByteOrderMark), "a byte order mark is no text");
    Require(DecodeText(text.toUtf8()) == text, "a text that is written is read the same");
    if (bytes.isValidUtf8() && !bytes.startsWith("\xEF\xBB\xBF"))
        Require(text.toUtf8() == bytes, "UTF-8 is read as it is");
    Require(DecodeGb18030(bytes).isValidUtf16(), "GB18030 gives whole characters");

    qsizetype length = 0;
    for (const QString &line : SplitLines(text)) {
        Require(!line.contains(u'\r') && !line.contains(u'\n'), "a line holds no line end");
        length += line.size();
    }
    Require(length == text.size() - text.count(u'\r') - text.count(u'\n'), "lines hold the whole text");
}

const FuzzTarget encodingTarget("encoding", ReadEncoding);

/// Any numbers of 32 bits, as a text may hold what no character has.
void ReadWords(const QByteArray &bytes)
{
    std::u32string text;
    BinaryFields::Reader reader(bytes);
    for (char32_t c = reader.Take<quint32>(); reader.IsIntact(); c = reader.Take<quint32>())
        text += c;
    for (const char c : bytes)
        text += static_cast<uchar>(c);
    const int words = CountWords(text);
    Require(words >= 0 && static_cast<std::size_t>(words) <= text.size(), "a word has a character");
    const int closed = CountWords(text + U' ');
    Require(closed == words || closed == words + 1, "a blank ends one word at the most");
    Require(CountWords(text + U' ' + text) == closed + words, "words are counted alike anywhere");
}

const FuzzTarget wordsTarget("words", ReadWords);

void ReadLesson(const QByteArray &bytes)
{
    static const TestInstall install;
    const QString path = install.Write(u"lesson.txt"_s, bytes);
    const auto [lesson, error] = LoadKeyLesson(path);
    Require(lesson.groups.isEmpty() == (error == LessonError::NoGroups),
            "only a lesson without a group is refused");
    for (const QString &group : lesson.groups)
        Require(!group.isEmpty() && !group.contains(u' ') && !group.contains(u'\t'), "a group is a word");
    if (!lesson.title.isEmpty())
        Require(ReadLessonTitle(path) == lesson.title, "a lesson is listed by its title");

    install.Write(u"lesson.txt"_s, (lesson.title + u"\r\n"_s + lesson.groups.join(u' ')).toUtf8());
    const KeyLesson again = LoadKeyLesson(path).lesson;
    Require(again.title == lesson.title && again.groups == lesson.groups,
            "a lesson that is written is the same");
}

const FuzzTarget lessonTarget("lesson", ReadLesson);

} // namespace
