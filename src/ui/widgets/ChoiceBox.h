#pragma once

#include <QComboBox>

/// A drop-down box in the look of the dialogs.
class ChoiceBox final : public QComboBox
{
    Q_OBJECT

public:
    ChoiceBox(const QString &objectName, const QString &accessibleName, QWidget *parent);

    void hidePopup() override;

Q_SIGNALS:
    /// Another entry was chosen from the open list, not by keys in the closed box.
    void ChosenFromList();

protected:
    void paintEvent(QPaintEvent *event) override;
};
