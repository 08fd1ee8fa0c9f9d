#include "ui/drills/DlgEn_KeyLesson.h"

#include "core/drills/KeyLesson.h"
#include "core/shell/Public_Define.h"
#include "platform/Files.h"
#include "ui/skin/DialogStyle.h"
#include "ui/widgets/SkinButton.h"

#include <QListWidget>

using namespace Qt::Literals::StringLiterals;

DlgEn_KeyLesson::DlgEn_KeyLesson(QWidget *owner)
    : DrillDialog(u"DlgEn_KeyLesson"_s, QSize(360, 370), owner)
    , lstLesson(new QListWidget(this))
{
    lstLesson->setObjectName(u"lstLesson"_s);
    lstLesson->setAccessibleName(tr("Lessons"));
    lstLesson->setGeometry(ContentArea());
    Public_Function::StyleDialogList(lstLesson);
    BtnOk->setEnabled(false);
    connect(lstLesson, &QListWidget::itemDoubleClicked, this, &DlgEn_KeyLesson::accept);
    FinishDialog({lstLesson});
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
    DrillDialog::accept();
}
