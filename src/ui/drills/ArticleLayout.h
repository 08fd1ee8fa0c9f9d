#pragma once

#include "core/drills/ArticleSession.h"

#include <QRect>

/// Where the boxes of the text drill stand, relative to the origin of the content area. The skin draws the
/// wells and box frames of the wide layout at these places.
namespace ArticleLayout {

inline constexpr int narrowPanelTop = 76; ///< of the status row
inline constexpr int widePanelTop = 92;

/// LinePairs has a prompt box and the input box to it in turn, PageAndInput one of each.
constexpr int BoxCount(DisplayForm form)
{
    switch (form) {
    case DisplayForm::LinePairs:
        return 10;
    case DisplayForm::PageAndInput:
        return 2;
    case DisplayForm::InPlace:
        break;
    }
    return 1;
}

/// The inside of the box `RTB<index>`.
constexpr QRect Box(DisplayForm form, int index, bool wide)
{
    switch (form) {
    case DisplayForm::LinePairs:
        return wide ? QRect(70, 156 + index / 2 * 103 + index % 2 * 38, 850, 38)
                    : QRect(50, 124 + index / 2 * 80 + index % 2 * 31, 670, 31);
    case DisplayForm::PageAndInput:
        return wide ? QRect(70, index == 0 ? 170 : 415, 850, 180)
                    : QRect(50, index == 0 ? 133 : 325, 670, 145);
    case DisplayForm::InPlace:
        break;
    }
    return wide ? QRect(70, 170, 850, 440) : QRect(50, 125, 670, 355);
}

constexpr bool IsInputBox(DisplayForm form, int index)
{
    return form != DisplayForm::InPlace && index % 2 == 1;
}

} // namespace ArticleLayout
