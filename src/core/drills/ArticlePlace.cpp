#include "core/drills/ArticlePlace.h"

#include "core/records/IUserRecord.h"
#include "core/shell/Public_Define.h"
#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"

using namespace Qt::Literals::StringLiterals;

ArticlePlace LoadArticlePlace()
{
    const QString section = u"English"_s;
    const SettingFile file(Public_Function::SettingFilePath());
    ArticlePlace place;
    place.articleFile = Public_Function::FindMovedPath(
        file.Text(section, u"ArticleTrain_FileName"_s,
                  Shared().InstallDir + u"Data\\English\\T_Article\\Adage\\1.txt"_s));
    place.articleMessage = file.Text(section, u"ArticleTrain_ArticleMsg"_s, u"Adage：11.txt"_s);
    place.form = DisplayFormOf(file.Integer(section, u"ArticleTrain_FormType"_s, 4));
    place.soundMode = file.Integer(u"Main"_s, u"EnSound"_s, 1);
    return place;
}

void StoreArticlePlace(const ArticlePlace &place)
{
    const QString section = u"English"_s;
    SettingFile file(Public_Function::SettingFilePath());
    file.Set(section, u"ArticleTrain_FileName"_s, place.articleFile);
    file.Set(section, u"ArticleTrain_ArticleMsg"_s, place.articleMessage);
    file.Set(section, u"ArticleTrain_Index"_s, place.wordIndex);
    file.Set(section, u"ArticleTrain_FormType"_s, static_cast<int>(place.form));
    file.Set(u"Main"_s, u"EnSound"_s, place.soundMode);
    file.Save();
    Shared().EnSound = place.soundMode;
}

void StoreArticleResult(int speed, int rate, const QString &articleMessage)
{
    if (speed == 0)
        return;
    constexpr int english = 0;
    IUserRecord records;
    records.SetCurrentUser(Shared().CurrentUserName);
    records.OpenTrainingRecord(english);
    records.AddTrainingRecord(static_cast<float>(speed), static_cast<float>(rate),
                              articleMessage + u" Text Training "_s, english);
    records.SaveTrainingRecordFile(english);
}
