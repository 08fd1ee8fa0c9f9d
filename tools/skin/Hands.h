#pragma once

class QPainter;
class Theme;

/// Both hands from above, 525 x 160, their fingers each in the strip of columns from which it is lit.
/// `lit`: every finger in the accent.
void DrawHands(QPainter &painter, const Theme &theme, bool lit);
