#pragma once

class QWidget;

namespace Public_Function {

/// Paints at once what the widgets of this window have asked to be painted anew, and lets the display show
/// it. For the answer to a key: what a person looks at is on the screen before sounds, pictures and figures
/// are worked on.
void PaintNow(QWidget *widget);

} // namespace Public_Function
