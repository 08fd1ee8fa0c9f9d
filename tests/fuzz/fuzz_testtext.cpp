#include "core/engine/KTest.h"
#include "core/engine/TextUnits.h"
#include "core/records/IUserRecord.h"
#include "fuzz/FuzzTarget.h"
#include "platform/Files.h"
#include "support/TestInstall.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using namespace Public_Function;

namespace {

/// The characters of the text as they are to be typed.
std::u32string Expected(const QString &text)
{
    std::u32string characters = text.toStdU32String();
    std::erase_if(characters, [](char32_t c) { return c == U'\r' || c == U'\n' || c == 0xFEFF; });
    std::replace(characters.begin(), characters.end(), char32_t(0x3000), U' ');
    return characters;
}

/// Types the whole text, with a miss at every seventh character that is taken back.
void TypeText(KTest &test)
{
    test.StartType();
    int typed = 0;
    do {
        while (!test.IsLineDone()) {
            const char32_t c = test.TestLine(test.CurrentLine())[static_cast<std::size_t>(test.m_nCurCol)];
            if (++typed % 7 == 0) {
                test.CheckString(c == U'x' ? u"y"_s : u"x"_s);
                test.BackSpace();
            }
            test.CheckString(QString::fromUcs4(&c, 1));
        }
    } while (test.SetNextLine());
    test.StopType();
    Require(typed == 0 || test.GetProgress() == 100, "the whole text was typed");
}

void ReadTestText(const QByteArray &bytes)
{
    static const TestInstall install;
    const QString path = install.Write(u"texts/test.txt"_s, bytes);
    Shared().TestFile[0] = path;
    for (const int width : {1, 12, 1000}) {
        KTest test;
        test.m_nMaxCols = width;
        Require(test.LoadLesson(), "a text can be read");
        Require(test.m_sTip == u"texts: test.txt"_s, "a text has its place as a caption");
        const int most = std::min(width, TypingSession::MostCols);
        std::u32string all;
        for (int number = 1; number <= test.LineCount(); ++number) {
            const std::u32string_view line = test.TestLine(number);
            int columns = 0;
            for (const char32_t c : line)
                columns += GetTextWidth(c);
            Require(columns < most || line.size() == 1 ||
                        std::ranges::all_of(line, [](char32_t c) { return IsLetter(c); }),
                    "a line of several units is narrower than its box");
            all += line;
        }
        Require(all == Expected(*ReadTextFile(path)), "lines hold every character");
        TypeText(test);
    }
}

const FuzzTarget testTextTarget("testtext", ReadTestText);

} // namespace
