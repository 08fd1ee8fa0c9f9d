#include "core/drills/PromptLine.h"

#include <algorithm>

int PromptLine::ItemAt(int position) const
{
    const auto end = std::lower_bound(ends.begin(), ends.end(), position);
    return first + static_cast<int>(end - ends.begin());
}

PromptLine BuildPromptLine(const PromptLine::ItemText &item, int first, int count,
                           const PromptLine::Fits &fits)
{
    PromptLine line;
    line.first = first;
    for (int index = first; index < count; ++index) {
        std::u32string candidate = line.text + item(index).toStdU32String() + U' ';
        if (index > first && !fits(candidate))
            break;
        line.text = std::move(candidate);
        line.ends.push_back(line.Length() - 1);
    }
    return line;
}
