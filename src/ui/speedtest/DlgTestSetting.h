#pragma once

#include "ui/skin/SkinnedDialog.h"

#include <array>
#include <optional>

class QGroupBox;
class QLineEdit;
class QRadioButton;
class SkinButton;
class TickBox;

/// "Test setting": the line-break rule, the display mode, the end of a test and the key sound. It only
/// collects the choices: the window fills it before it is shown, and reads it after OK. The display modes and
/// the end options are disabled until the window sets them.
class DlgTestSetting final : public SkinnedDialog
{
    Q_OBJECT

public:
    explicit DlgTestSetting(QWidget *owner);

    /// True after OK.
    bool ReturnValue() const { return m_nRetVal; }

    /// 0 goes on at once at the end of a line, 1 waits for Enter, 2 for Space.
    void SetNewLine(int rule);
    int NewLine() const;

    /// Enables the three display modes (`chkComp` ticked) and selects one, 0 to 2.
    void SetDisplayMode(int mode);
    /// Nothing when no mode is selected, as when SetDisplayMode was not called.
    std::optional<int> DisplayMode() const;

    /// Enables the end options: 0 ends a test with its text, 1 at the time limit, which is shown then.
    void SetEndOption(int overType, int limitMinutes);
    /// Nothing when no option is selected, as when SetEndOption was not called.
    std::optional<int> EndOption() const;
    /// What the minutes box holds, as it was typed.
    QString MinutesText() const;
    /// The minutes box as a time limit: its first three characters as a number, rounded (halves to the even
    /// neighbour); nothing when that is below 1 or no number.
    std::optional<int> Minutes() const;

    void SetKeySound(bool on);
    bool KeySound() const;

    void accept() override;
    void reject() override;

private:
    void MakeControls();
    void ChooseComparison(bool separate);
    void ChooseEnd();

    std::array<QRadioButton *, 3> optNewLine{};
    QGroupBox *m_displayGroup;
    TickBox *chkComp;
    std::array<QRadioButton *, 3> optComp{};
    QGroupBox *m_endGroup;
    std::array<QRadioButton *, 2> optOverType{};
    QLineEdit *txtMinutes;
    TickBox *chkKeySound;
    SkinButton *BtnOk;
    SkinButton *BtnCancel;
    bool m_nRetVal = false;
};
