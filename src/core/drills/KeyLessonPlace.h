#pragma once

#include <QString>

/// Which settings keys, of section `English`, keep the place in the lessons of one kind of key drill.
struct KeyLessonSettings
{
    QString fileKey;
    QString indexKey;
    QString defaultFile; ///< below `InstallDir`
};

/// The settings that the junior and the senior key drill share.
KeyLessonSettings MainKeyLessonSettings();
/// Those of the numeric keypad drill.
KeyLessonSettings KeypadLessonSettings();

/// Where a key drill goes on.
struct KeyLessonPlace
{
    QString lessonFile; ///< full path
    int itemIndex = 0;  ///< of the key group
    int soundMode = 1;  ///< `EnSound`: 0 no sound, 1 key sounds, 2 music keyboard
};

/// Reads the place from the settings of the user who is logged in.
KeyLessonPlace LoadKeyLessonPlace(const KeyLessonSettings &settings);

/// Writes it, all three values at once. A failure is nobody's to see: the drill is being left. The sound mode
/// becomes the shared value as well, which is what is stored when the user logs out.
void StoreKeyLessonPlace(const KeyLessonSettings &settings, const KeyLessonPlace &place);
