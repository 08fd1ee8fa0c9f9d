#pragma once

#include "WordList.h"

/// Writes the word list `<base>.ID` and the entry file `<base>.Dat`; false when one cannot be written.
bool WriteDictionary(const QString &base, const std::vector<DictionaryWord> &words);
