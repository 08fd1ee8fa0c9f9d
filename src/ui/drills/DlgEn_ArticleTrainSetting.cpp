#include "ui/drills/DlgEn_ArticleTrainSetting.h"

#include "ui/drills/OptionColumn.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int FirstForm = 3;

} // namespace

DlgEn_ArticleTrainSetting::DlgEn_ArticleTrainSetting(QWidget *owner)
    : DrillDialog(u"DlgEn_ArticleTrainSetting"_s, QSize(470, 240), owner)
    , m_forms(new OptionColumn(
          tr("Display"), u"optUIStyle"_s,
          {tr("Type &below each line"), tr("Type below the &page"), tr("Type o&ver the page")}, this))
    , m_sounds(MakeSoundOptions(this))
{
    const QRect area = ContentArea();
    const int half = (area.width() - 12) / 2;
    m_forms->setGeometry(QRect(area.topLeft(), QSize(half, area.height())));
    m_sounds->setGeometry(m_forms->geometry().translated(half + 12, 0));
    FinishDialog(m_forms->Options() + m_sounds->Options());
}

void DlgEn_ArticleTrainSetting::SetTrainMode(int nMode)
{
    m_trainMode = nMode;
    m_forms->Choose((nMode > 7 ? nMode - 5 : nMode) - FirstForm);
    m_forms->FocusChosen();
}

void DlgEn_ArticleTrainSetting::SetSoundEffect(int nSoundEffect)
{
    m_soundEffect = nSoundEffect;
    m_sounds->Choose(nSoundEffect);
}

void DlgEn_ArticleTrainSetting::accept()
{
    if (m_forms->Chosen() >= 0)
        m_trainMode = FirstForm + m_forms->Chosen();
    if (m_sounds->Chosen() >= 0)
        m_soundEffect = m_sounds->Chosen();
    DrillDialog::accept();
}
