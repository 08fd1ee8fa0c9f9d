#pragma once

#include "ui/skin/SkinnedDialog.h"

#include <array>

class ElidedLabel;
class QPushButton;
class QRadioButton;
class SkinButton;

/// Chooses what the printed-text test is typed from: a printable sample text, a file of the user's own, or
/// nothing (free input). After OK it offers to print the chosen file.
class DlgTestSelect final : public SkinnedDialog
{
    Q_OBJECT

public:
    explicit DlgTestSelect(QWidget *owner);

    /// Whether the dialog was left by OK.
    bool Result() const { return m_result; }
    /// Full product path of the chosen file; empty for free input.
    QString ChosenPath() const { return m_chosenPath; }

    void accept() override;

private:
    void MakeControls();
    void ApplyChoice();
    void ChooseOwnFile();
    void OfferPrint() const;

    QRadioButton *OptBookFile;
    std::array<QRadioButton *, 4> optFile{};
    QRadioButton *optUserFile;
    QPushButton *Command1;
    ElidedLabel *lblFile;
    QRadioButton *OptFreeInput;
    SkinButton *BtnOk;
    SkinButton *BtnCancel;
    QString m_userFile;
    QString m_chosenPath;
    bool m_result = false;
};
