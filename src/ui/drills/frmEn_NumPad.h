#pragma once

#include "ui/drills/KeyCapDrill.h"

/// The key drill for the numeric keypad, with the right hand alone. Nothing is recorded of it but the place
/// in the lesson.
class frmEn_NumPad final : public KeyCapDrill
{
    Q_OBJECT

public:
    frmEn_NumPad(Navigator &navigator, QWidget *owner);

protected:
    void InitLayout() override;
    void SaveTrainData() override;
    void DrillKeyDown(QKeyEvent *event) override;
    bool IsSwallowed(const QKeyEvent &event) const override;
    FingerHint HintFor(char32_t character) const override;
    bool HasPromptKey(char32_t character) const override;
    void FillLessonList(DlgEn_KeyLesson &dialog) const override;

private:
    class OnScreenKeypad *XNumBoard1;
};
