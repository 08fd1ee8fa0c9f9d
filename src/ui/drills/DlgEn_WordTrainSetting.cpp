#include "ui/drills/DlgEn_WordTrainSetting.h"

#include "ui/drills/OptionColumn.h"
#include "ui/widgets/TickBox.h"

using namespace Qt::Literals::StringLiterals;

DlgEn_WordTrainSetting::DlgEn_WordTrainSetting(QWidget *owner)
    : DrillDialog(u"DlgEn_WordTrainSetting"_s, QSize(320, 286), owner)
    , m_sounds(MakeSoundOptions(this))
    , chkShowExplanation(new TickBox(u"chkShowExplanation"_s, tr("Show &Explanation"), this))
{
    const QRect area = ContentArea();
    m_sounds->setGeometry(area.adjusted(0, 0, 0, -40));
    chkShowExplanation->move(area.left() + 10, area.bottom() - 28);
    chkShowExplanation->resize(chkShowExplanation->sizeHint().width(), 26);
    FinishDialog(m_sounds->Options() << chkShowExplanation);
}

void DlgEn_WordTrainSetting::SetSoundEffect(int nSoundEffect)
{
    m_nRetSoundEffect = nSoundEffect;
    m_sounds->Choose(nSoundEffect);
    m_sounds->FocusChosen();
}

void DlgEn_WordTrainSetting::SetShowExplanation(int nShow, bool bEnableSetting)
{
    chkShowExplanation->setChecked(nShow != 0);
    chkShowExplanation->setEnabled(bEnableSetting);
    chkShowExplanation->setToolTip(bEnableSetting ? QString()
                                                  : tr("The words of this thesaurus have no explanations."));
}

void DlgEn_WordTrainSetting::accept()
{
    if (m_sounds->Chosen() >= 0)
        m_nRetSoundEffect = m_sounds->Chosen();
    m_nShowExplanation = chkShowExplanation->isChecked() ? 1 : 0;
    DrillDialog::accept();
}
