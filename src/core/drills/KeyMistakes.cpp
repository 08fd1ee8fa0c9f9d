#include "core/drills/KeyMistakes.h"

#include <limits>

void KeyMistakes::Add(char32_t character)
{
    if (character < First || character > Last)
        return;
    qint16 &count = m_counts[character - First];
    if (count < std::numeric_limits<qint16>::max())
        ++count;
}

qint16 KeyMistakes::Count(char16_t character) const
{
    return m_counts[static_cast<std::size_t>(character - First)];
}

QString KeyMistakes::MistakeString() const
{
    QString mistakes;
    for (char16_t character = First; character <= Last; ++character)
        mistakes += QString(Count(character), QChar(character));
    return mistakes;
}
