#include "core/drills/ArticlePlace.h"
#include "core/drills/KeyLessonPlace.h"
#include "core/drills/WordTrainPlace.h"
#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"
#include "fuzz/FuzzTarget.h"
#include "platform/Files.h"
#include "support/TestInstall.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList StoredLines()
{
    return Public_Function::SplitLines(
        Public_Function::ReadTextFile(Public_Function::SettingFilePath()).value_or(QString()));
}

/// The most that a value holds, and the end that it cannot hold.
QString AsStored(const QString &value)
{
    constexpr qsizetype longest = 1023;
    qsizetype end = 0;
    while (end < value.size() && value[end] != u'\0')
        ++end;
    QList<uint> characters = value.first(end).toUcs4();
    characters.resize(std::min(characters.size(), longest));
    return QString::fromUcs4(reinterpret_cast<const char32_t *>(characters.constData()), characters.size());
}

/// What the windows take from the file.
void LoadEverything()
{
    Public_Function::LoadSoundSetting();
    Public_Function::LoadTestSetting();
    Require(Shared().LimitTime >= 0 && Shared().EnSound >= 0 && Shared().NewLine >= 0,
            "no number is negative");
    LoadWordTrainPlace();
    LoadArticlePlace();
}

/// All lines but one stay.
void CheckOtherLines(const QStringList &before, const QStringList &after)
{
    qsizetype start = 0;
    while (start < before.size() && start < after.size() && before[start] == after[start])
        ++start;
    qsizetype end = 0;
    while (end < before.size() - start && end < after.size() - start &&
           before[before.size() - 1 - end] == after[after.size() - 1 - end])
        ++end;
    Require(before.size() - start - end <= 1, "only the line of the key is changed");
    Require(after.size() - start - end <= 2, "only a key and its section are added");
}

void ReadSettings(const QByteArray &bytes)
{
    static const TestInstall install(u"Ann"_s);
    install.Write(u"Users/Ann/Setting.ini"_s, bytes);
    LoadEverything();

    const QStringList before = StoredLines();
    const QString value = before.isEmpty() ? QString() : before.last();
    SettingFile settings(Public_Function::SettingFilePath());
    settings.Set(u"Main"_s, u"Title"_s, value);
    Require(settings.Text(u"Main"_s, u"Title"_s, QString()) == AsStored(value), "a value is what was set");
    Require(settings.Save(), "settings can be saved");
    const QStringList once = StoredLines();
    CheckOtherLines(before, once);
    const SettingFile again(Public_Function::SettingFilePath());
    Require(again.Text(u"MAIN"_s, u"title"_s, u"none"_s) == AsStored(value), "a value that is saved is kept");

    settings.Set(u"English"_s, u"KeyTrain_Index"_s, 12);
    Require(settings.Save(), "settings can be saved twice");
    CheckOtherLines(once, StoredLines());
    const SettingFile third(Public_Function::SettingFilePath());
    Require(third.Integer(u"English"_s, u"KeyTrain_Index"_s, 0) == 12, "a number that is saved is kept");
}

const FuzzTarget settingsTarget("settings", ReadSettings);

} // namespace
