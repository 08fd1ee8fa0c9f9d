#include "core/drills/FallibleKeyLesson.h"

#include "core/shell/Public_Define.h"
#include "platform/Files.h"
#include "platform/Services.h"

#include <random>
#include <string>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int groupLength = 6;
constexpr int blockCount = 9;

} // namespace

namespace Public_Function {

bool WriteFallibleKeyLesson(const QString &mistakes)
{
    if (mistakes.isEmpty())
        return false;
    const std::u32string keys = mistakes.toStdU32String();
    std::uniform_int_distribution<std::size_t> position(0, keys.size() - 1);

    QString lesson = u"fallible key training\r\n\r\n"_s;
    for (int block = 0; block < blockCount; ++block) {
        std::u32string group;
        for (int key = 0; key < groupLength; ++key)
            group += keys[position(PlatformServices().random)];
        const std::u32string reversed(group.rbegin(), group.rend());
        for (const std::u32string &line : {group, group, reversed, reversed})
            lesson += QString::fromStdU32String(line) + u"\r\n"_s;
    }
    const QString path = Shared().InstallDir + u"Data\\English\\T_Character\\Standard\\02"_s;
    return ReplaceFile(path + u".txt"_s, path + u".tmp"_s, lesson.toUtf8());
}

} // namespace Public_Function
