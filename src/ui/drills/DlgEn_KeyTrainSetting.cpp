#include "ui/drills/DlgEn_KeyTrainSetting.h"

#include "ui/skin/DialogStyle.h"
#include "ui/widgets/SkinButton.h"

#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

DlgEn_KeyTrainSetting::DlgEn_KeyTrainSetting(QWidget *owner)
    : SkinnedDialog(owner)
    , BtnOk(new SkinButton(u"BtnOk"_s, tr("OK"), this))
    , BtnCancel(new SkinButton(u"BtnCancel"_s, tr("Cancel"), this))
{
    setObjectName(u"DlgEn_KeyTrainSetting"_s);
    resize(320, 240);

    auto *group = new QGroupBox(u"Sound Effect"_s, this);
    group->setGeometry(20, TitleHeight() + 14, width() - 40, height() - TitleHeight() - 14 - 60);
    auto *column = new QVBoxLayout(group);
    const std::array<QString, 3> texts{u"No Knock Sound"_s, u"Normal"_s, u"Music"_s};
    for (std::size_t mode = 0; mode < texts.size(); ++mode) {
        auto *option = new QRadioButton(texts[mode], group);
        option->setObjectName(u"opnSetting"_s + QString::number(mode));
        column->addWidget(option);
        opnSetting[mode] = option;
    }
    Public_Function::StyleDialogGroup(group);

    BtnOk->move(0, height() - 45);
    BtnCancel->move(0, height() - 45);
    SkinOkCancel(BtnOk, BtnCancel, 0);
    SetDefaultButton(BtnOk);
    setTabOrder(opnSetting.back(), BtnOk);
    setTabOrder(BtnOk, BtnCancel);
    connect(BtnOk, &SkinButton::clicked, this, &DlgEn_KeyTrainSetting::accept);
    connect(BtnCancel, &SkinButton::clicked, this, &DlgEn_KeyTrainSetting::reject);
    SkinDialog(u"Quorvex"_s);
    opnSetting[0]->setFocus();
}

void DlgEn_KeyTrainSetting::SetSoundEffect(int mode)
{
    m_soundEffect = mode;
    for (int option = 0; option < static_cast<int>(opnSetting.size()); ++option) {
        QRadioButton *button = opnSetting[static_cast<std::size_t>(option)];
        button->setChecked(option == mode);
        if (option == mode)
            button->setFocus();
    }
}

void DlgEn_KeyTrainSetting::accept()
{
    for (std::size_t mode = 0; mode < opnSetting.size(); ++mode) {
        if (opnSetting[mode]->isChecked())
            m_soundEffect = static_cast<int>(mode);
    }
    m_returnValue = DialogAnswer::Confirmed;
    SkinnedDialog::accept();
}
