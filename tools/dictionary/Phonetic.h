#pragma once

#include <QString>

/// What is wrong with a phonetic in General American IPA; empty when nothing is. See docs/dictionaries.md for
/// the signs.
QString PhoneticFault(const QString &phonetic);
