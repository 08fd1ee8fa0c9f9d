#include "core/shell/UserSettings.h"

#include "core/shell/Public_Define.h"
#include "core/shell/SettingFile.h"
#include "platform/Paths.h"

#include <QFileInfo>
#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Whether a folder, ending in a separator, is an install folder and not today's.
bool IsOtherInstallDir(const QString &folder)
{
    using namespace Public_Function;
    return FileExists(folder + u"Bitmap\\1024_CH.DLL"_s) &&
           QFileInfo(NativePath(folder)) != QFileInfo(NativePath(Shared().InstallDir));
}

} // namespace

namespace Public_Function {

QString UserDir(const QString &user)
{
    return Shared().InstallDir + u"Users\\"_s + user + u'\\';
}

QString UserDir()
{
    return UserDir(Shared().CurrentUserName);
}

QString SettingFilePath()
{
    return UserDir() + u"Setting.ini"_s;
}

void LoadSoundSetting()
{
    if (Shared().CurrentUserName.isEmpty())
        return;
    const SettingFile settings(SettingFilePath());
    Shared().EnSound = settings.Integer(u"Main"_s, u"EnSound"_s, 1);
    Shared().ChSound = settings.Integer(u"Main"_s, u"ChSound"_s, 0);
}

void SaveSoundSetting()
{
    if (Shared().CurrentUserName.isEmpty())
        return;
    SettingFile settings(SettingFilePath());
    settings.Set(u"Main"_s, u"EnSound"_s, Shared().EnSound);
    settings.Set(u"Main"_s, u"ChSound"_s, Shared().ChSound);
    settings.Save(); // leaving goes on whether or not the disk takes it
}

void LoadTestSetting()
{
    Public_Define &values = Shared();
    const SettingFile settings(SettingFilePath());
    const auto integer = [&](const QString &key, int defaultValue) {
        return settings.Integer(u"Exam"_s, key, defaultValue);
    };
    values.TestSource = 0;
    values.TestDisplayMode = {integer(u"InComp"_s, 0), integer(u"OutComp"_s, 3),
                              integer(u"AuditionComp"_s, 0)};
    values.ShowOrg = integer(u"ShowOrg"_s, 1) != 0;
    values.Frequency = integer(u"Frequency"_s, 0);
    values.OverType = integer(u"OverType"_s, 0);
    values.LimitTime =
        static_cast<qint16>(std::min<int>(integer(u"LimitTime"_s, 10), std::numeric_limits<qint16>::max()));
    values.NewLine = settings.Integer(u"Main"_s, u"NewLine"_s, 0);
}

QString FindMovedPath(const QString &storedPath)
{
    if (storedPath.isEmpty())
        return storedPath;
    const bool exists = PathExists(storedPath);
    const QString path = ProductPath(storedPath);
    static const QStringList ownFolders{u"\\Data\\"_s, u"\\Users\\"_s, u"\\Sound\\"_s, u"\\Bitmap\\"_s};
    // A parent of the old install folder may have been named like one of these: try from every separator.
    for (qsizetype at = path.indexOf(u'\\'); at >= 0; at = path.indexOf(u'\\', at + 1)) {
        const QStringView rest = QStringView(path).sliced(at);
        const bool own = std::any_of(ownFolders.begin(), ownFolders.end(), [&](const QString &folder) {
            return rest.startsWith(folder, Qt::CaseInsensitive);
        });
        if (!own || (exists && !IsOtherInstallDir(path.first(at + 1))))
            continue;
        if (const QString moved = Shared().InstallDir + rest.sliced(1).toString(); PathExists(moved))
            return moved;
    }
    return storedPath;
}

} // namespace Public_Function
