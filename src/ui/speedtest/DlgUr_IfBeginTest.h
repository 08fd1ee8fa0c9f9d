#pragma once

#include "ui/skin/SkinnedDialog.h"

class QGroupBox;
class QLabel;
class QRadioButton;
class SkinButton;
class TickBox;

/// Asks after a login whether to measure the typing speed first. The user can forbid the question there.
class DlgUr_IfBeginTest final : public SkinnedDialog
{
    Q_OBJECT

public:
    explicit DlgUr_IfBeginTest(QWidget *owner);

    /// 6 for Yes, 7 for No.
    qint16 ResultVal() const { return m_nResultVal; }
    /// The language to test, when the answer was yes.
    bool IsEnglishTest() const { return m_bEnglishTest; }

    void accept() override;

private:
    void PlaceControls();
    void ForbidQuestion();

    QLabel *LabText;
    QGroupBox *m_testFor;
    QRadioButton *OptEnglish;
    QRadioButton *OptChinese;
    TickBox *ChkNotDisplay;
    SkinButton *XBtnYes;
    SkinButton *XBtnNo;
    qint16 m_nResultVal = 7;
    bool m_bEnglishTest = true;
};
