#include "core/drills/KeyLessonPlace.h"

#include "core/shell/Public_Define.h"
#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"

using namespace Qt::Literals::StringLiterals;

KeyLessonSettings MainKeyLessonSettings()
{
    return {u"KeyTrain_FileName"_s, u"KeyTrain_Index"_s, u"Data\\English\\T_Character\\Standard\\00.txt"_s};
}

KeyLessonSettings KeypadLessonSettings()
{
    return {u"NumPadTrain_FileName"_s, u"NumpadTrain_Index"_s,
            u"Data\\English\\T_Character\\Numpad\\00.txt"_s};
}

KeyLessonPlace LoadKeyLessonPlace(const KeyLessonSettings &settings)
{
    const SettingFile file(Public_Function::SettingFilePath());
    const QString stored =
        file.Text(u"English"_s, settings.fileKey, Shared().InstallDir + settings.defaultFile);
    return {Public_Function::FindMovedPath(stored), file.Integer(u"English"_s, settings.indexKey, 0),
            file.Integer(u"Main"_s, u"EnSound"_s, 1)};
}

void StoreKeyLessonPlace(const KeyLessonSettings &settings, const KeyLessonPlace &place)
{
    SettingFile file(Public_Function::SettingFilePath());
    file.Set(u"English"_s, settings.fileKey, place.lessonFile);
    file.Set(u"English"_s, settings.indexKey, place.itemIndex);
    file.Set(u"Main"_s, u"EnSound"_s, place.soundMode);
    file.Save();
    Shared().EnSound = place.soundMode;
}
