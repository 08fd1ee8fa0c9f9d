#pragma once

#include "ui/drills/DrillDialog.h"

class OptionColumn;

/// Chooses what a key drill sounds like.
class DlgEn_KeyTrainSetting final : public DrillDialog
{
    Q_OBJECT

public:
    explicit DlgEn_KeyTrainSetting(QWidget *owner);

    /// 0 no sound, 1 key sounds, 2 music keyboard; any other value checks no option.
    void SetSoundEffect(int mode);
    /// The option that was chosen, or the mode that was set when none was.
    int SoundEffect() const { return m_soundEffect; }

    void accept() override;

private:
    OptionColumn *m_sounds;
    int m_soundEffect = 1;
};
