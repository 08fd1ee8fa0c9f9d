#pragma once

#include "core/drills/ArticleSession.h"

/// What the text drill keeps from one time to the next, in section `English` of the user's settings.
struct ArticlePlace
{
    QString articleFile;    ///< full path
    QString articleMessage; ///< its description, folder:name
    int wordIndex = 0;      ///< the word reached; it is only stored
    DisplayForm form = DisplayForm::PageAndInput;
    int soundMode = 1; ///< `EnSound` of section `Main`: 0 no sound, 1 key sounds, 2 music keyboard
};

/// Reads the settings of the user who is logged in.
ArticlePlace LoadArticlePlace();

/// Writes them all at once. A failure is nobody's to see: the drill is being left. The sound mode becomes the
/// shared value as well, which is what is stored when the user logs out.
void StoreArticlePlace(const ArticlePlace &place);

/// Adds a result of the text drill to the user's training records; a speed of 0 is none.
void StoreArticleResult(int speed, int rate, const QString &articleMessage);
