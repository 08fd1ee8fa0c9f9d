#include "core/engine/Level.h"

#include <algorithm>
#include <array>
#include <span>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A row of the table: the least speed for it, and the level by InputKind.
struct LevelRow
{
    float speed;
    std::array<int, 3> level;
};

constexpr float anySpeed = 0; // the last row takes what is left
constexpr std::array<int, 3> expert{12, 13, 13};
constexpr std::array<int, 3> quickTyper{11, 11, 11};
constexpr std::array<int, 3> essays{3, 6, 10};
constexpr std::array<int, 3> words{2, 5, 9};
constexpr std::array<int, 3> keys{1, 4, 8};

constexpr std::array<LevelRow, 6> from80{
    {{80, expert}, {50, quickTyper}, {35, essays}, {20, words}, {10, keys}, {anySpeed, {0, 0, 7}}}};
constexpr std::array<LevelRow, 5> from50{
    {{50, expert}, {35, quickTyper}, {20, essays}, {10, words}, {anySpeed, keys}}};
constexpr std::array<LevelRow, 4> from20{{{300, expert}, {200, essays}, {100, words}, {anySpeed, keys}}};
constexpr std::array<LevelRow, 2> from10{{{200, words}, {anySpeed, keys}}};

std::array<int, 3> LevelsOf(float speed, float rate)
{
    if (rate < 10)
        return speed != 0 && rate != 0 ? essays : std::array<int, 3>{1, 4, 7};
    std::span<const LevelRow> rows = from10;
    if (rate >= 80)
        rows = from80;
    else if (rate >= 50)
        rows = from50;
    else if (rate >= 20)
        rows = from20;
    const auto reached = std::find_if(rows.begin(), rows.end() - 1,
                                      [speed](const LevelRow &row) { return speed >= row.speed; });
    return reached->level;
}

} // namespace

namespace Public_Function {

int GetLevel(InputKind kind, float speed, float rate)
{
    return LevelsOf(speed, rate)[static_cast<std::size_t>(kind)];
}

QString GetLevelName(int level)
{
    switch (level) {
    case 0:
        return u"Fresher"_s;
    case 1:
    case 8:
        return u"Beginner"_s;
    case 2:
    case 4:
    case 5:
    case 7:
    case 9:
        return u"Junior"_s;
    case 3:
    case 6:
    case 10:
        return u"Master"_s;
    case 11:
        return u"Quick Typer"_s;
    case 12:
    case 13:
        return u"Expert"_s;
    default:
        return {};
    }
}

} // namespace Public_Function
