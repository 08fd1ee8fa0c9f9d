#include "core/engine/ModuleName.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

QString Public_Function::GetModuleName(int level)
{
    static const std::array<QString, 14> names{
        u"Type Tutorial"_s,       u"Type Keyboard Training"_s, u"Type Word Training"_s,
        u"Type Essay Training"_s, u"拼音打字 音节练习"_s,      u"拼音打字 词组练习"_s,
        u"拼音打字 文章练习"_s,   u"五笔打字 字根练习"_s,      u"五笔打字 单字练习"_s,
        u"五笔打字 词组练习"_s,   u"五笔打字 文章打字"_s,      u"Type Game Junior"_s,
        u"Type Game Senior"_s,    u"中文测试 同声录入"_s,
    };
    const auto index = static_cast<std::size_t>(level);
    return level >= 0 && index < names.size() ? names[index] : QString();
}

QString Public_Function::GetPracticeModuleName(int level)
{
    return GetModuleName(level);
}
