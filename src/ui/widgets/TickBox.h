#pragma once

#include <QCheckBox>

/// A check box in the look of the dialogs.
class TickBox final : public QCheckBox
{
    Q_OBJECT

public:
    TickBox(const QString &objectName, const QString &text, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};
