#pragma once

#include <QFont>

/// The fonts of the install folder, so that texts have the same widths on every machine.
namespace Public_Function {

/// Makes the fonts of `Fonts\` known, unless Qt knows them, and sets the application's font. Missing ones are
/// replaced by what the machine has.
void LoadFonts(bool areKnown = false);

/// The interface font in a size of points at 96 dots per inch, whatever the screen's.
QFont InterfaceFont(qreal points, bool bold = false);

/// The font of phonetic symbols, called "Quorvex Phonetic": one that has all signs of the International
/// Phonetic Alphabet.
QFont PhoneticFont(qreal points);

/// The interface font in a size that is already scaled, as the entries of `FontSizeTable` are.
QFont DisplayFont(int scaledPoints, bool bold = false);

} // namespace Public_Function
