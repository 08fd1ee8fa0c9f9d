#pragma once

#include <QPoint>
#include <QSize>

/// How a drill window is laid out.
enum class LayoutMode {
    None = 0,   ///< the screen is too narrow: no control is placed
    Narrow = 1, ///< for screens 800 pixels wide
    Wide = 2    ///< for screens from 1024 pixels on
};

/// The mode and the place of the skin's content area in a window that covers the usable screen.
struct DrillLayout
{
    LayoutMode mode = LayoutMode::None;
    QPoint origin; ///< null in mode None

    bool IsWide() const { return mode == LayoutMode::Wide; }

    /// The value of the two that belongs to the mode; `narrow` in mode None.
    template <typename T>
    T Pick(T narrow, T wide) const
    {
        return IsWide() ? wide : narrow;
    }
};

/// `area` is the size of the usable screen in pixels.
DrillLayout CalcLayoutMode(const QSize &area);
