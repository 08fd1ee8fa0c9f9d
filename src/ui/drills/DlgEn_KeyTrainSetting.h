#pragma once

#include "ui/drills/DialogAnswer.h"
#include "ui/skin/SkinnedDialog.h"

#include <array>

class QRadioButton;
class SkinButton;

/// Chooses the key sound of the key drills: 0 none, 1 key sounds, 2 music keyboard.
class DlgEn_KeyTrainSetting final : public SkinnedDialog
{
    Q_OBJECT

public:
    explicit DlgEn_KeyTrainSetting(QWidget *owner);

    /// Selects the option of that mode; any other value selects none.
    void SetSoundEffect(int mode);

    DialogAnswer ReturnValue() const { return m_returnValue; }
    int SoundEffect() const { return m_soundEffect; }

    void accept() override;

private:
    std::array<QRadioButton *, 3> opnSetting{};
    SkinButton *BtnOk;
    SkinButton *BtnCancel;
    int m_soundEffect = 0;
    DialogAnswer m_returnValue = DialogAnswer::Cancelled;
};
