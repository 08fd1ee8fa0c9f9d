#pragma once

#include <QSize>

/// The windows are laid out for a screen of at least this many logical pixels; where the desktop's scale
/// leaves fewer, the program lowers its own.
inline constexpr QSize SmallestLayout{1024, 748};

/// The factor by which the scale must change so that the layout fits a screen of `logical` pixels, each of
/// `devicePixelRatio` real ones: 1 when it fits. The scale never goes below one real pixel for a logical one,
/// where the toolkit no longer paints right. A screen with too few real pixels across stays as it is; it is
/// refused.
double ScaleToFit(const QSize &logical, double devicePixelRatio);

/// Changes the toolkit's scale by `factor` for an application object that is made after this call.
void ChangeScale(double factor);
