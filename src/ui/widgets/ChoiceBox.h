#pragma once

#include <QComboBox>

/// A drop-down box in the look of the dialogs.
class ChoiceBox final : public QComboBox
{
    Q_OBJECT

public:
    ChoiceBox(const QString &objectName, const QString &accessibleName, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};
