#pragma once

#include <QString>

/// Where the user's files are, and the settings that are loaded at login into the shared values.
namespace Public_Function {

/// The folder of a user, ending in a separator.
QString UserDir(const QString &user);
/// The folder of the user who is logged in.
QString UserDir();
/// The settings file in UserDir().
QString SettingFilePath();

/// Read and write `Main`/`EnSound` and `ChSound`; nothing happens while nobody is logged in.
void LoadSoundSetting();
void SaveSoundSetting();
/// Sets `TestSource` to 0 and reads the speed test settings.
void LoadTestSetting();

/// A stored full path after its install folder was moved or copied. When the part of it from one of the
/// program's own folders (Data, Users, Sound, Bitmap) on exists below today's `InstallDir`, and `storedPath`
/// does not exist or belongs to another install folder, which the copy is no longer to touch: the path below
/// today's. Else `storedPath` unchanged.
QString FindMovedPath(const QString &storedPath);

} // namespace Public_Function
