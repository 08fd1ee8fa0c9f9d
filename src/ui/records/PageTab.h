#pragma once

#include "ui/widgets/SkinButton.h"

/// A button that shows one of several pages and stays pressed while it does. Choosing is all it is for, so
/// Enter is left to the window.
class PageTab final : public SkinButton
{
    Q_OBJECT

public:
    using SkinButton::SkinButton;

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
