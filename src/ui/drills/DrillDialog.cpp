#include "ui/drills/DrillDialog.h"

#include "ui/widgets/SkinButton.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int SideMargin = 20;
constexpr int ButtonsHeight = 60;

} // namespace

DrillDialog::DrillDialog(const QString &objectName, const QSize &size, QWidget *owner)
    : SkinnedDialog(owner)
    , BtnOk(new SkinButton(u"BtnOk"_s, tr("&OK"), this))
    , BtnCancel(new SkinButton(u"BtnCancel"_s, tr("&Cancel"), this))
{
    setObjectName(objectName);
    resize(size);
}

QRect DrillDialog::ContentArea() const
{
    return rect().adjusted(SideMargin, TitleHeight() + 14, -SideMargin, -ButtonsHeight);
}

void DrillDialog::FinishDialog(const QList<QWidget *> &tabOrder)
{
    BtnOk->move(0, height() - 45);
    BtnCancel->move(0, height() - 45);
    SkinOkCancel(BtnOk, BtnCancel, 0);
    SetDefaultButton(BtnOk);
    QList<QWidget *> order = tabOrder;
    order << BtnOk << BtnCancel;
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    connect(BtnOk, &SkinButton::clicked, this, &DrillDialog::accept);
    connect(BtnCancel, &SkinButton::clicked, this, &DrillDialog::reject);
    SkinDialog(u"Quorvex"_s);
    order.first()->setFocus();
}

void DrillDialog::accept()
{
    m_returnValue = DialogAnswer::Confirmed;
    SkinnedDialog::accept();
}
