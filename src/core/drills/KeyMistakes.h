#pragma once

#include <QString>
#include <array>

/// How often each character from "!" to "~" was missed while a drill window was open.
class KeyMistakes
{
public:
    static constexpr char16_t First = u'!';
    static constexpr char16_t Last = u'~';

    /// Counts one miss; a character outside "!" to "~" has no counter. A full counter stays full.
    void Add(char32_t character);

    /// `character` must lie between "!" and "~".
    qint16 Count(char16_t character) const;

    /// Every missed character as often as it was missed, in the order of their codes.
    QString MistakeString() const;

private:
    std::array<qint16, Last - First + 1> m_counts{};
};
