#pragma once

#include <QString>
#include <functional>
#include <string>
#include <vector>

/// The items of a lesson (key groups, words) that are typed as one line, each followed by one space.
/// Positions count characters, one outside the basic plane being one.
struct PromptLine
{
    using ItemText = std::function<QString(int index)>;
    /// Whether a line, with the space at its end, fits its box.
    using Fits = std::function<bool(const std::u32string &line)>;

    std::u32string text;
    int first = 0;         ///< index of its first item
    std::vector<int> ends; ///< of each item the position of the space behind it

    /// Index of the first item that is not on the line any more.
    int Next() const { return first + static_cast<int>(ends.size()); }
    /// The item being typed when `position` characters were typed: the one behind a space as soon as the
    /// space was typed, Next() when the whole line was.
    int ItemAt(int position) const;

    int Length() const { return static_cast<int>(text.size()); }
};

/// As many of the items from `first` to `count` as fit, but always one. Costs no more in a long lesson.
PromptLine BuildPromptLine(const PromptLine::ItemText &item, int first, int count,
                           const PromptLine::Fits &fits);
