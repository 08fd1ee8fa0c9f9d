#pragma once

#include <QString>

/// The sounds of the typing windows. Whether one is wanted is the window's business.
namespace Public_Function {

/// Plays `Sound\SoundEffect\<name>` when there is such a file ("Type.WAV", "Error.wav").
void PlayEffect(const QString &name, bool wait = false);

/// Plays the music keyboard's note of a typed character.
void PlayMusicKey(char16_t keyAscii);

/// 0 to 73: the number of the note that belongs to a character; both characters of one key share it. 0 for
/// any other.
int GetMusicKeyIndex(char16_t keyAscii);

} // namespace Public_Function
