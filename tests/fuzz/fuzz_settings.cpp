#include "core/drills/ArticlePlace.h"
#include "core/drills/KeyLessonPlace.h"
#include "core/drills/WordTrainPlace.h"
#include "core/shell/Public_Define.h"
#include "core/shell/SettingFile.h"
#include "core/shell/UserList.h"
#include "core/shell/UserSettings.h"
#include "core/speedtest/TestMaterial.h"
#include "fuzz/FuzzTarget.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "support/TestInstall.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using namespace Public_Function;

namespace {

QStringList StoredLines()
{
    return SplitLines(ReadTextFile(SettingFilePath()).value_or(QString()));
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
    LoadSoundSetting();
    LoadTestSetting();
    Require(Shared().LimitTime >= 0 && Shared().EnSound >= 0 && Shared().NewLine >= 0,
            "no number is negative");
    LoadWordTrainPlace();
    LoadArticlePlace();

    const QStringList before = StoredLines();
    const QString value = before.isEmpty() ? QString() : before.last();
    SettingFile settings(SettingFilePath());
    settings.Set(u"Main"_s, u"Title"_s, value);
    Require(settings.Text(u"Main"_s, u"Title"_s, QString()) == AsStored(value), "a value is what was set");
    Require(settings.Save(), "settings can be saved");
    const QStringList once = StoredLines();
    CheckOtherLines(before, once);
    const SettingFile again(SettingFilePath());
    Require(again.Text(u"MAIN"_s, u"title"_s, u"none"_s) == AsStored(value), "a value that is saved is kept");

    settings.Set(u"English"_s, u"KeyTrain_Index"_s, 12);
    Require(settings.Save(), "settings can be saved twice");
    CheckOtherLines(once, StoredLines());
    const SettingFile third(SettingFilePath());
    Require(third.Integer(u"English"_s, u"KeyTrain_Index"_s, 0) == 12, "a number that is saved is kept");
}

const FuzzTarget settingsTarget("settings", ReadSettings);

/// A path that is kept in the settings, which people may change.
void ReadPath(const QByteArray &bytes)
{
    static const TestInstall install;
    static const QString lesson = install.Write(u"Data/English/Professional/Law/1.txt"_s, "law");
    const QString path = QString::fromUtf8(bytes.left(2000));
    const QString moved = FindMovedPath(path);
    Require(moved == path || PathExists(moved), "a path is changed to one that exists");
    const TestMaterial::Place place = TestMaterial::PlaceOf(path);
    Require(!place.folder.contains(u'\\') && !place.folder.contains(u'/'), "a field is one folder");
    TestMaterial::Files(place);
}

const FuzzTarget pathsTarget("paths", ReadPath);

/// A user comes and goes, and the others stay.
void AddAndDelete(const QString &name)
{
    UserList users;
    const QStringList before = users.Names();
    const bool isNew = !users.IsInvalidName(name) && !before.contains(name, Qt::CaseInsensitive);
    Require(users.AddUser(name) == isNew, "a new name with a valid spelling is added");
    if (!isNew)
        return;
    Require(users.Names() == before + QStringList(name), "a user comes behind the others");
    Require(users.DeleteUser(name).deleted, "a user can be deleted");
    Require(users.Names() == before, "the other users stay");
}

void ReadUsers(const QByteArray &bytes)
{
    static const TestInstall install;
    install.Write(u"keep"_s, "keep");
    // The first line is a name that somebody types.
    install.Write(u"user.ini"_s, bytes);
    const QStringList lines = SplitLines(DecodeText(bytes));
    AddAndDelete(lines.isEmpty() ? QString() : lines.first());
    install.Write(u"user.ini"_s, QByteArray());
    AddAndDelete(lines.isEmpty() ? QString() : lines.last());

    install.Write(u"user.ini"_s, bytes);
    const UserList all;
    QStringList names = all.Names();
    Require(!names.contains(QString()), "a user has a name");
    for (int deletions = 0; deletions < 3 && !names.isEmpty(); ++deletions) {
        const QString name = names.first();
        Require(all.UserExists(name), "a user on the list exists");
        UserList().DeleteUser(name);
        names.removeIf([&](const QString &other) { return other.compare(name, Qt::CaseInsensitive) == 0; });
        Require(all.Names() == names, "only the deleted user goes");
    }
    Require(install.Read(u"keep"_s) == "keep", "nothing outside the user folders is deleted");
}

const FuzzTarget usersTarget("users", ReadUsers);

} // namespace
