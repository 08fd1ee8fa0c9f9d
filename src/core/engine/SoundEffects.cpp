#include "core/engine/SoundEffects.h"

#include "core/shell/Public_Define.h"
#include "platform/Paths.h"
#include "platform/Services.h"
#include "platform/SoundPlayer.h"

#include <QStringView>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int HighestMusicKey = 73;

void PlayInstalledSound(const QString &name, bool wait)
{
    const QString path = Shared().InstallDir + u"\\Sound\\"_s + name;
    if (Public_Function::FileExists(path))
        PlatformServices().sound->Play(Public_Function::NativePath(path), wait);
}

/// The position of `key` in a row of keys given as pairs of characters, unshifted and shifted; -1: none of
/// them.
int PositionInRow(QStringView pairs, char16_t key)
{
    const qsizetype found = pairs.indexOf(QChar(key));
    return found < 0 ? -1 : static_cast<int>(found / 2);
}

} // namespace

void Public_Function::PlayEffect(const QString &name, bool wait)
{
    PlayInstalledSound(u"SoundEffect\\"_s + name, wait);
}

void Public_Function::PlayMusicKey(char16_t keyAscii)
{
    int index = GetMusicKeyIndex(keyAscii);
    if (index < 0 || index > HighestMusicKey)
        index = 0;
    PlayInstalledSound(u"MusicKeyboard\\%1.wav"_s.arg(index), false);
}

int Public_Function::GetMusicKeyIndex(char16_t keyAscii)
{
    if (keyAscii >= u'a' && keyAscii <= u'z')
        return keyAscii - u'a';
    if (keyAscii >= u'A' && keyAscii <= u'Z')
        return keyAscii - u'A';
    if (keyAscii == u' ')
        return 26;
    if (const int key = PositionInRow(u";:,<.>/?\r\r\t\t`~", keyAscii); key >= 0)
        return 27 + key;
    if (const int key = PositionInRow(u"1!2@3#4$5%6^7&8*9(0)-_=+\b\b\\|'\"[{]}", keyAscii); key >= 0)
        return 41 + key;
    return 0;
}
