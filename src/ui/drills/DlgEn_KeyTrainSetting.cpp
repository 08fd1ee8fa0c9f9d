#include "ui/drills/DlgEn_KeyTrainSetting.h"

#include "ui/drills/OptionColumn.h"

using namespace Qt::Literals::StringLiterals;

DlgEn_KeyTrainSetting::DlgEn_KeyTrainSetting(QWidget *owner)
    : DrillDialog(u"DlgEn_KeyTrainSetting"_s, QSize(320, 240), owner)
    , m_sounds(MakeSoundOptions(this))
{
    m_sounds->setGeometry(ContentArea());
    FinishDialog(m_sounds->Options());
}

void DlgEn_KeyTrainSetting::SetSoundEffect(int mode)
{
    m_soundEffect = mode;
    m_sounds->Choose(mode);
    m_sounds->FocusChosen();
}

void DlgEn_KeyTrainSetting::accept()
{
    if (m_sounds->Chosen() >= 0)
        m_soundEffect = m_sounds->Chosen();
    DrillDialog::accept();
}
