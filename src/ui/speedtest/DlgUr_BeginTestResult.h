#pragma once

#include "ui/skin/SkinnedDialog.h"

class QLabel;
class SkinButton;

/// Says how fast and how rightly the user typed in the placement test, and what to practise.
class DlgUr_BeginTestResult final : public SkinnedDialog
{
    Q_OBJECT

public:
    enum class Choice : qint16 { Home = 1, Again = 4, Accept = 6 };

    /// `english` tells what was typed.
    DlgUr_BeginTestResult(bool english, QWidget *owner);

    /// Words a minute, and percent; before the dialog is shown.
    void SetSpeed_Veracity(float sglSpeed, float sglVeracity);
    /// The level that the two values mean, see GetLevel.
    int Level() const;
    Choice RtnVal() const { return m_nRtnVal; }

    void accept() override;

private:
    void PlaceControls();

    const bool m_english;
    float m_sglSpeed = 0;
    float m_sglVeracity = 0;
    Choice m_nRtnVal = Choice::Home;
    QLabel *LabResult;
    QLabel *LabSuggestion;
    SkinButton *XBtnAccept;
    SkinButton *XBtnAgain;
    SkinButton *XBtnHome;
};
