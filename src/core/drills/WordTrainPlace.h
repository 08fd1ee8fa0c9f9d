#pragma once

#include <QString>

/// Where the word drill goes on, as the user's settings keep it.
struct WordTrainPlace
{
    QString dictionaryPath; ///< full path of its folder, with a separator at its end
    QString dictionaryFile; ///< without extension
    QString dictionaryName; ///< as people read it
    int wordIndex = 0;
    bool showExplanation = false;
    int soundMode = 1; ///< `EnSound`: 0 no sound, 1 key sounds, 2 music keyboard
};

/// Reads the place from the settings of the user who is logged in.
WordTrainPlace LoadWordTrainPlace();

/// Writes it, all values at once; the rest as for StoreKeyLessonPlace.
void StoreWordTrainPlace(const WordTrainPlace &place);
