#pragma once

#include <QString>

/// What the typing engines and their windows know about characters and columns.
namespace Public_Function {

/// An ideographic space (U+3000) alone becomes an ordinary space; any other text stays.
void ConvertFullSpace(QString &text);
void ConvertFullSpace(std::u32string &text);
char32_t OrdinarySpace(char32_t character);

/// Whether the first character is a letter of ASCII.
bool IsLetter(const QString &text);
bool IsLetter(char32_t character);

/// Columns that a text takes: 1 for each character of ASCII, 2 for any other. At most 32,767.
qint16 GetTextWidth(const QString &text);
int GetTextWidth(char32_t character);

/// The whole quotient of `a` and `b`, both rounded first (halves to even), and one more when a / b is
/// greater. 0 where `b` rounds to 0; within the limits of its type.
qint16 CeilDiv(float a, float b);

/// The nearest whole number, halves to the even neighbour.
qint64 RoundHalfEven(double number);

} // namespace Public_Function
