#pragma once

#include "core/speedtest/TestMaterial.h"

/// The texts that the placement test takes one of.
namespace PlacementTexts {

/// Full paths of all professional texts and articles of a language, folder by folder.
QStringList Candidates(TestMaterial::Language language);

/// One of the candidates, by the program's random generator; empty when there is none. Of several English
/// texts never the last.
QString Choose(TestMaterial::Language language);

} // namespace PlacementTexts
