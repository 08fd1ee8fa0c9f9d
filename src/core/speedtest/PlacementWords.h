#pragma once

#include <string_view>

namespace Public_Function {

/// The words of a text, as the placement test counts them. Letters and digits of ASCII in a row are one word,
/// once something ends it: a word that is still open at the end does not count. Punctuation of ASCII, and
/// every character beyond ASCII, is a word of its own.
int CountWords(std::u32string_view text);

} // namespace Public_Function
