#include "core/drills/WordTrainPlace.h"

#include "core/drills/DictionaryCatalogue.h"
#include "core/shell/Public_Define.h"
#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"

using namespace Qt::Literals::StringLiterals;

WordTrainPlace LoadWordTrainPlace()
{
    const SettingFile file(Public_Function::SettingFilePath());
    const auto text = [&file](const QString &key, const QString &defaultValue) {
        return file.Text(u"English"_s, key, defaultValue);
    };
    WordTrainPlace place;
    place.dictionaryPath =
        Public_Function::FindMovedPath(text(u"WordTrain_Path"_s, DictionaryCatalogue::ExplainedPath()));
    place.dictionaryFile = text(u"WordTrain_FileName"_s, u"TOEFL"_s);
    place.dictionaryName = text(u"WordTrain_DictionaryName"_s, u"TOEFL"_s);
    place.wordIndex = file.Integer(u"English"_s, u"WordTrain_Index"_s, 0);
    place.showExplanation = file.Integer(u"English"_s, u"WordTrain_ShowExplanation"_s, 0) != 0;
    place.soundMode = file.Integer(u"Main"_s, u"EnSound"_s, 1);
    return place;
}

void StoreWordTrainPlace(const WordTrainPlace &place)
{
    SettingFile file(Public_Function::SettingFilePath());
    const auto set = [&file](const QString &key, const auto &value) { file.Set(u"English"_s, key, value); };
    set(u"WordTrain_Path"_s, place.dictionaryPath);
    set(u"WordTrain_FileName"_s, place.dictionaryFile);
    set(u"WordTrain_DictionaryName"_s, place.dictionaryName);
    set(u"WordTrain_Index"_s, place.wordIndex);
    set(u"WordTrain_ShowExplanation"_s, place.showExplanation ? 1 : 0);
    file.Set(u"Main"_s, u"EnSound"_s, place.soundMode);
    file.Save();
    Shared().EnSound = place.soundMode;
}
