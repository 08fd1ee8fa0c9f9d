#pragma once

#include <QRect>
#include <array>

/// Where things are on the pages of a user's records, in logical pixels from a page's top left corner. The
/// maker of the skin draws the backgrounds of the pages by it.
namespace ManageLayout {

constexpr QSize page(560, 372);
constexpr int headerHeight = 28;
constexpr int buttonTop = 332;
constexpr int margin = 16;

constexpr QSize tab(150, 38);
constexpr int tabStep = 43;

// The overview: four lines of text.
constexpr int overviewLeft = 23;
constexpr int overviewLine = 22;
constexpr std::array<int, 4> overviewTops{48, 78, 111, 141};

// Pages of records: the chart, five rows below it, the buttons.
constexpr int tenths = 10;
constexpr int tenthHeight = 14;
constexpr QRect recordPlot(30, 35, 480, tenths *tenthHeight);
constexpr int rowHeight = 26;
constexpr int rowBoxLeft = 16;
constexpr int rowNumberLeft = 33;
constexpr int rowTextLeft = 55;
constexpr int rowDateLeft = 460;
constexpr int rowRight = 548;

/// The stripe of the row; its text begins at 26 × row + 195.
constexpr QRect Row(int row)
{
    return {margin - 4, 189 + row * rowHeight, rowRight - margin + 4, rowHeight};
}

// The page of mistyped keys: a bar and a box each.
constexpr int mostKeys = 10;
constexpr QRect keyPlot(32, 43, 469, 219);
constexpr QPoint keyCaption(446, 269);
constexpr int barLeft = 53;
constexpr int barStep = 40;
constexpr QSize bar(26, 64);

// The page of mistyped characters: a box with the character beside it.
constexpr int mostCharacters = 50;
constexpr int charactersPerRow = 10;

constexpr QPoint CharacterBox(int index)
{
    return {50 * (index % charactersPerRow) + 32, 38 * (index / charactersPerRow) + 85};
}

} // namespace ManageLayout
