#pragma once

#include "ui/drills/DrillDialog.h"

class OptionColumn;

/// Chooses how the text drill shows a text, and what it sounds like.
class DlgEn_ArticleTrainSetting final : public DrillDialog
{
    Q_OBJECT

public:
    explicit DlgEn_ArticleTrainSetting(QWidget *owner);

    /// The display form: 3 line pairs, 4 a page with a page below, 5 a page that is typed over. Their
    /// counterparts 8 to 10 mean the same; any other value checks no option.
    void SetTrainMode(int nMode);
    /// 0 no sound, 1 key sounds, 2 music keyboard; any other value checks no option.
    void SetSoundEffect(int nSoundEffect);

    /// 3, 4 or 5, unless another mode was set and none chosen.
    int TrainMode() const { return m_trainMode; }
    int SoundEffect() const { return m_soundEffect; }

    void accept() override;

private:
    OptionColumn *m_forms;
    OptionColumn *m_sounds;
    int m_trainMode = 3;
    int m_soundEffect = 1;
};
