#include "platform/InputMethod.h"

#include "platform/Services.h"

#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsPlainLayout(const QString &id)
{
    return id.isEmpty() || id.startsWith(u"keyboard-"_s) || id.startsWith(u"xkb:"_s);
}

bool IsPinyin(const QString &text)
{
    for (const QString &sign : {u"pinyin"_s, u"shuangpin"_s, u"拼音"_s, u"双拼"_s, u"雙拼"_s}) {
        if (text.contains(sign, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

} // namespace

QString Public_Function::GetImeName()
{
    return PlatformServices().inputMethod->AskName(ImeAnswerLimit);
}

QString Public_Function::KnownImeName()
{
    return PlatformServices().inputMethod->KnownName();
}

QString ImeDisplayName(const QString &id, const QString &name)
{
    if (IsPlainLayout(id))
        return {};
    QString shown = name.isEmpty() ? id : name;
    if (!(IsPinyin(id) || IsPinyin(shown)))
        return shown;
    shown.replace(u"pinyin"_s, u"Pinyin"_s, Qt::CaseInsensitive);
    return shown.contains(u"Pinyin"_s) ? shown : shown + u" (Pinyin)"_s;
}
