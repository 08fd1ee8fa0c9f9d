#pragma once

#include "core/drills/KeyMistakeStore.h"
#include "core/drills/KeyMistakes.h"
#include "ui/drills/KeyCapDrill.h"

/// The key drill for juniors, on the main keyboard. What was missed becomes the user's mistake records and
/// the lesson "fallible key training".
class frmEn_KeyTrain_Basic final : public KeyCapDrill
{
    Q_OBJECT

public:
    frmEn_KeyTrain_Basic(Navigator &navigator, QWidget *owner);

protected:
    void InitLayout() override;
    void SaveTrainData() override;
    void ChangeSettings() override;
    FingerHint HintFor(char32_t character) const override;
    void FillLessonList(DlgEn_KeyLesson &dialog) const override;
    void OnKeyChecked(bool right) override;

private:
    KeyMistakes MistakeCount;
    KeyMistakeStore m_mistakeStore;
    class OnScreenKeyboard *CXKeyBoard1;
};
