#include "core/records/ExchangeOrder.h"

#include <algorithm>
#include <bit>
#include <numeric>

namespace {

/// Which of the numbers 0 to size - 1 are in a set, with ranks in O(log size).
class RankedSet
{
public:
    explicit RankedSet(std::size_t size)
        : m_sums(size + 1)
    {
    }

    void Insert(std::size_t number) { Change(number, 1); }
    void Remove(std::size_t number) { Change(number, -1); }

    /// How many members are smaller than `number`.
    std::size_t CountBelow(std::size_t number) const
    {
        std::ptrdiff_t count = 0;
        for (std::size_t i = number; i > 0; i &= i - 1)
            count += m_sums[i];
        return static_cast<std::size_t>(count);
    }

    /// The member that exactly `rank` members are smaller than.
    std::size_t Member(std::size_t rank) const
    {
        std::size_t position = 0;
        auto left = static_cast<std::ptrdiff_t>(rank);
        for (std::size_t step = std::bit_floor(m_sums.size()); step > 0; step /= 2) {
            if (position + step < m_sums.size() && m_sums[position + step] <= left) {
                position += step;
                left -= m_sums[position];
            }
        }
        return position;
    }

private:
    void Change(std::size_t number, std::ptrdiff_t by)
    {
        for (std::size_t i = number + 1; i < m_sums.size(); i += i & (~i + 1))
            m_sums[i] += by;
    }

    std::vector<std::ptrdiff_t> m_sums;
};

/// Orders the entries with one and the same key. `entries` are their places, ascending; `smaller` holds the
/// places of all entries with smaller keys.
///
/// Each exchange pass for a smaller key takes the first such place, and the first of the equal entries before
/// it moves there, behind its equals. So, going through the list from the front, the equals that were met are
/// a queue, and each smaller entry that is met moves the head of the queue to its end. Where the queue is
/// long, turning it step by step is slow; going backwards instead, the entry that joined last is known to
/// stand at the end before the last turn, which fixes its final place among those that are still free.
void OrderEquals(std::vector<std::size_t> &entries, const RankedSet &smaller, std::size_t smallerCount)
{
    RankedSet freePlaces(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i)
        freePlaces.Insert(i);
    std::vector<std::size_t> ordered(entries.size());
    std::size_t head = 0; // rank among the free places where the queue starts
    std::size_t met = smallerCount;
    for (std::size_t length = entries.size(); length > 0; --length) {
        const std::size_t entry = entries[length - 1];
        const std::size_t before = smaller.CountBelow(entry);
        head = (head + length - (met - before) % length) % length;
        met = before;
        const std::size_t place = freePlaces.Member((head + length - 1) % length);
        freePlaces.Remove(place);
        ordered[place] = entry;
        if (head > 0)
            --head;
    }
    entries = std::move(ordered);
}

} // namespace

std::vector<std::size_t> ExchangeOrder(const std::vector<double> &keys)
{
    std::vector<std::size_t> order(keys.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    if (std::is_sorted(keys.begin(), keys.end()))
        return order;
    std::stable_sort(order.begin(), order.end(), [&](auto a, auto b) { return keys[a] < keys[b]; });

    RankedSet smaller(keys.size());
    for (auto start = order.begin(); start != order.end();) {
        const auto end = std::find_if(start, order.end(), [&](auto i) { return keys[i] > keys[*start]; });
        if (end - start > 1) {
            std::vector<std::size_t> equals(start, end);
            OrderEquals(equals, smaller, static_cast<std::size_t>(start - order.begin()));
            std::copy(equals.begin(), equals.end(), start);
        }
        for (; start != end; ++start)
            smaller.Insert(*start);
    }
    return order;
}
