#pragma once

#include "core/speedtest/TestMaterial.h"

/// The texts that the placement test takes one of.
namespace PlacementTexts {

/// Full paths of all professional texts and articles of a language, folder by folder.
QStringList Candidates(TestMaterial::Language language);

/// Which of so many candidates to take, by the program's random generator: of several English texts never
/// the last. `count` must be above 0.
qsizetype Choose(qsizetype count, TestMaterial::Language language);

} // namespace PlacementTexts
