#include "core/speedtest/PlacementWords.h"
#include "fuzz/FuzzTarget.h"
#include "platform/BinaryFields.h"

#include <string>

namespace {

/// Any numbers of 32 bits, as a text may hold what no character has.
void ReadWords(const QByteArray &bytes)
{
    std::u32string text;
    BinaryFields::Reader reader(bytes);
    for (char32_t c = reader.Take<quint32>(); reader.IsIntact(); c = reader.Take<quint32>())
        text += c;
    for (const char c : bytes)
        text += static_cast<uchar>(c);
    const int words = Public_Function::CountWords(text);
    Require(words >= 0 && static_cast<std::size_t>(words) <= text.size(), "a word has a character");
    const int closed = Public_Function::CountWords(text + U' ');
    Require(closed == words || closed == words + 1, "a blank ends one word at the most");
    Require(Public_Function::CountWords(text + U' ' + text) == closed + words,
            "words are counted alike anywhere");
}

const FuzzTarget wordsTarget("words", ReadWords);

} // namespace
