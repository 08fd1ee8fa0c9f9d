#pragma once

#include <QRect>
#include <array>
#include <cstddef>

/// Where everything stands in the windows of the speed tests. All rectangles are relative to the origin of
/// the content area, 994 pixels wide: the tab strip takes its first 40 lines, the module background, 664
/// high, begins below it. The skin draws the plates, wells and box frames at these places.
namespace TestLayout {

/// How the text and what was typed of it are shown: one above the other (TEST_DANHANG_BACK), side by side
/// (TEST_DUIZHAO_BACK), typed over the text (TEST_FUGAI_BACK), or what was typed alone (the same picture).
/// Free typing is laid out like TypedAlone.
enum class DisplayMode { OneAboveTheOther = 0, SideBySide = 1, TypedOver = 2, TypedAlone = 3 };

inline constexpr int panelTop = 100;   ///< of the status row, laid out as in the drills
inline constexpr int wellTop = 160;    ///< the sunken field that all rows of text lie in
inline constexpr int wellBottom = 638; ///< exclusive
inline constexpr int mostRows = 10;

constexpr bool HasTwoBoxes(DisplayMode mode)
{
    return mode == DisplayMode::OneAboveTheOther || mode == DisplayMode::SideBySide;
}

constexpr int RowsPerPage(DisplayMode mode)
{
    return HasTwoBoxes(mode) ? 5 : mostRows;
}

/// The index into `FontSizeTable` of the text: 20 or 16 points.
constexpr std::size_t FontEntry(DisplayMode mode)
{
    return mode == DisplayMode::OneAboveTheOther ? 1 : 3;
}

/// The inside of the box that shows the text to copy. `row` counts from 0. In TypedOver it is the only box;
/// in TypedAlone there is none.
constexpr QRect PromptBox(DisplayMode mode, int row)
{
    switch (mode) {
    case DisplayMode::OneAboveTheOther:
        return {62, 169 + 94 * row, 870, 40};
    case DisplayMode::SideBySide:
        return {62, 188 + 91 * row, 425, 58};
    case DisplayMode::TypedOver:
        return {62, 168 + 47 * row, 870, 39};
    case DisplayMode::TypedAlone:
        break;
    }
    return {};
}

/// The inside of the box that shows what was typed.
constexpr QRect InputBox(DisplayMode mode, int row)
{
    switch (mode) {
    case DisplayMode::OneAboveTheOther:
        return PromptBox(mode, row).translated(0, 43);
    case DisplayMode::SideBySide:
        return PromptBox(mode, row).translated(445, 0);
    case DisplayMode::TypedOver:
    case DisplayMode::TypedAlone:
        break;
    }
    return PromptBox(DisplayMode::TypedOver, row);
}

inline constexpr QRect lessonCaption{70, 60, 470, 22};
inline constexpr QRect hint{50, 660, 285, 44};

// Upper left corners of the buttons, in the row above the status and in the row below the text: 112 x 32, the
// last one 122 wide as in the drills.
inline constexpr QPoint selectLessonButton{600, 55};
inline constexpr QPoint settingButton{840, 55};
inline constexpr QPoint scoreButton{720, 55};
inline constexpr QPoint pauseButton{350, 655};
inline constexpr QPoint saveButton{470, 655};
inline constexpr QPoint stopButton{590, 655};
inline constexpr QPoint overButton{710, 655};
inline constexpr QPoint returnButton{830, 655};

/// A tab's left edge is upright; its right edge leans through three columns, at lines 0, 20 and 40.
struct Tab
{
    int left;
    int rightTop;
    int rightMiddle;
    int rightBottom;
};
/// Screen Text, Printed Text, Simultaneous Input.
inline constexpr std::array<Tab, 3> tabs{{{0, 295, 315, 330}, {330, 610, 628, 640}, {640, 920, 938, 950}}};
inline constexpr int tabHeight = 40;

} // namespace TestLayout
