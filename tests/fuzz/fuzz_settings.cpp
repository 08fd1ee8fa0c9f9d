#include "core/drills/ArticlePlace.h"
#include "core/drills/KeyLessonPlace.h"
#include "core/drills/WordTrainPlace.h"
#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"
#include "core/speedtest/TestMaterial.h"
#include "fuzz/FuzzTarget.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "support/TestInstall.h"

#include <algorithm>

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
    const std::u32string characters = value.section(QChar(u'\0'), 0, 0).toStdU32String();
    return QString::fromStdU32String(characters.substr(0, 1023));
}

/// All lines but one stay.
void CheckOtherLines(const QStringList &before, const QStringList &after)
{
    const auto start = std::ranges::mismatch(before, after);
    const auto end = std::mismatch(before.rbegin(), std::make_reverse_iterator(start.in1), after.rbegin(),
                                   std::make_reverse_iterator(start.in2));
    Require(end.first.base() - start.in1 <= 1, "only the line of the key is changed");
    Require(end.second.base() - start.in2 <= 2, "only a key and its section are added");
}

void ReadSettings(const QByteArray &bytes)
{
    static const TestInstall install(u"Ann"_s);
    install.Write(u"Users/Ann/Setting.ini"_s, bytes);
    Public_Function::LoadSoundSetting();
    Public_Function::LoadTestSetting();
    Require(Shared().LimitTime >= 0 && Shared().EnSound >= 0 && Shared().NewLine >= 0,
            "no number is negative");
    LoadWordTrainPlace();
    LoadArticlePlace();

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

/// A path that is kept in the settings, which people may change.
void ReadPath(const QByteArray &bytes)
{
    static const TestInstall install;
    static const QString lesson = install.Write(u"Data/English/Professional/Law/1.txt"_s, "law");
    const QString path = QString::fromUtf8(bytes.left(2000));
    const QString moved = Public_Function::FindMovedPath(path);
    Require(moved == path || Public_Function::PathExists(moved), "a path is changed to one that exists");
    const TestMaterial::Place place = TestMaterial::PlaceOf(path);
    Require(!place.folder.contains(u'\\') && !place.folder.contains(u'/'), "a field is one folder");
    TestMaterial::Files(place);
}

const FuzzTarget pathsTarget("paths", ReadPath);

} // namespace
