#include "ui/drills/DlgEn_KeyLesson.h"

#include "core/drills/KeyLesson.h"
#include "core/shell/Public_Define.h"
#include "platform/Files.h"
#include "ui/skin/DialogStyle.h"
#include "ui/widgets/SkinButton.h"

#include <QListWidget>

using namespace Qt::Literals::StringLiterals;

DlgEn_KeyLesson::DlgEn_KeyLesson(QWidget *owner)
    : SkinnedDialog(owner)
    , lstLesson(new QListWidget(this))
    , BtnOk(new SkinButton(u"BtnOk"_s, tr("OK"), this))
    , BtnCancel(new SkinButton(u"BtnCancel"_s, tr("Cancel"), this))
{
    setObjectName(u"DlgEn_KeyLesson"_s);
    resize(360, 370);
    lstLesson->setObjectName(u"lstLesson"_s);
    lstLesson->setAccessibleName(tr("Lessons"));
    lstLesson->setGeometry(20, TitleHeight() + 16, width() - 40, height() - TitleHeight() - 16 - 62);
    Public_Function::StyleDialogList(lstLesson);

    BtnOk->move(0, height() - 45);
    BtnCancel->move(0, height() - 45);
    SkinOkCancel(BtnOk, BtnCancel, 0);
    BtnOk->setEnabled(false);
    SetDefaultButton(BtnOk);
    setTabOrder(lstLesson, BtnOk);
    setTabOrder(BtnOk, BtnCancel);
    connect(BtnOk, &SkinButton::clicked, this, &DlgEn_KeyLesson::accept);
    connect(BtnCancel, &SkinButton::clicked, this, &DlgEn_KeyLesson::reject);
    connect(lstLesson, &QListWidget::itemDoubleClicked, this, &DlgEn_KeyLesson::accept);
    SkinDialog(u"Quorvex"_s);
    lstLesson->setFocus();
}

void DlgEn_KeyLesson::ShowKeyLesson()
{
    FillList(Shared().InstallDir + u"Data\\English\\T_Character\\Standard\\"_s);
}

void DlgEn_KeyLesson::ShowNumpadLesson()
{
    FillList(Shared().InstallDir + u"Data\\English\\T_Character\\Numpad\\"_s);
}

void DlgEn_KeyLesson::FillList(const QString &folder)
{
    const QStringList files = Public_Function::ListFiles(folder, u"txt"_s);
    if (files.isEmpty()) {
        m_lessonFile.clear();
        return;
    }
    m_files = files;
    lstLesson->clear();
    for (const QString &file : files)
        lstLesson->addItem(Public_Function::ReadLessonTitle(file));
    lstLesson->setCurrentRow(0);
    BtnOk->setEnabled(true);
}

void DlgEn_KeyLesson::accept()
{
    const int row = lstLesson->currentRow();
    if (row < 0)
        return;
    m_lessonFile = m_files.at(row);
    m_returnValue = DialogAnswer::Confirmed;
    SkinnedDialog::accept();
}
