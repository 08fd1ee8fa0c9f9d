#pragma once

#include "ui/widgets/HeldGround.h"

#include <QLabel>

/// A label that changes while people type, on the picture of its window.
class StatusLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit StatusLabel(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    HeldGround m_ground{this};
};
