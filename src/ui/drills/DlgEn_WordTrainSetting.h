#pragma once

#include "ui/drills/DrillDialog.h"

class OptionColumn;
class TickBox;

/// Chooses what the word drill sounds like and whether it explains the words.
class DlgEn_WordTrainSetting final : public DrillDialog
{
    Q_OBJECT

public:
    explicit DlgEn_WordTrainSetting(QWidget *owner);

    /// 0 no sound, 1 key sounds, 2 music keyboard; any other value checks no option.
    void SetSoundEffect(int nSoundEffect);
    /// 1 for shown, 0 for not; only dictionaries with explanations let it be changed.
    void SetShowExplanation(int nShow, bool bEnableSetting);

    int SoundEffect() const { return m_nRetSoundEffect; }
    int ShowExplanation() const { return m_nShowExplanation; }

    void accept() override;

private:
    OptionColumn *m_sounds;
    TickBox *chkShowExplanation;
    int m_nRetSoundEffect = 1;
    int m_nShowExplanation = 0;
};
