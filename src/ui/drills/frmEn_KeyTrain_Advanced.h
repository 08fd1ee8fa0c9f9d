#pragma once

#include "core/drills/KeyMistakeStore.h"
#include "core/drills/KeyMistakes.h"
#include "ui/drills/LineDrill.h"

/// The key drill for seniors: the key groups of the juniors' lessons as lines of text. It shares the juniors'
/// settings, place in the lesson and mistake records.
class frmEn_KeyTrain_Advanced final : public LineDrill
{
    Q_OBJECT

public:
    frmEn_KeyTrain_Advanced(Navigator &navigator, QWidget *owner);

    /// Loads a lesson file and shows its title. False when it is missing, which changes nothing, or has no
    /// group: then nothing can be typed.
    bool InitKeyData(const QString &fileName);

protected:
    void LoadTrainData() override;
    void SaveTrainData() override;
    void UpdateStatus(bool reset) override;
    void SelectLesson() override;
    void ChangeSettings() override;
    void OnKeyChecked(bool right) override;
    bool IsEnterTheLastSpace() const override { return true; }
    QString InputMethodHint(const QString &name) const override;

private:
    KeyMistakes MistakeCount;
    KeyMistakeStore m_mistakeStore;
    QString m_lessonFile;
};
