#pragma once

#include <cstddef>
#include <vector>

/// The order in which an exchange sort leaves entries with these keys, smallest key first: for each place i,
/// for each later place j, the two are exchanged when the key at j is smaller. Entries with equal keys change
/// places among each other on the way, and what users see depends on it.
///
/// Returns for each place in the sorted list the place that its entry had before. No key may be NaN. Takes
/// O(n log n).
std::vector<std::size_t> ExchangeOrder(const std::vector<double> &keys);

/// Puts `list` in that order by `key`, a function from an entry to a number.
template <typename Entry, typename Key>
void ExchangeSort(std::vector<Entry> &list, Key key)
{
    std::vector<double> keys;
    keys.reserve(list.size());
    for (const Entry &entry : list)
        keys.push_back(static_cast<double>(key(entry)));
    std::vector<Entry> sorted;
    sorted.reserve(list.size());
    for (const std::size_t place : ExchangeOrder(keys))
        sorted.push_back(std::move(list[place]));
    list = std::move(sorted);
}
