#include "ui/records/ManagePage.h"

#include "core/shell/UserSettings.h"
#include "platform/Paths.h"
#include "ui/records/ManageLayout.h"
#include "ui/shell/ShowMessage.h"
#include "ui/skin/DialogStyle.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/widgets/SkinButton.h"

#include <QLabel>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int PageButtonGap = 6;
constexpr int PageButtonInset = 12;

} // namespace

ManagePage::ManagePage(const QString &objectName, const QString &accessibleName, const QString &background,
                       QWidget *parent)
    : QWidget(parent)
    , m_background(background)
    , m_notice(new QLabel(this))
{
    setObjectName(objectName);
    setAccessibleName(accessibleName);
    resize(ManageLayout::page);
    Public_Function::StyleDialogLabel(m_notice);
    m_notice->setObjectName(u"labNotice"_s);
    m_notice->setAlignment(Qt::AlignCenter);
    m_notice->setGeometry(ManageLayout::margin, 96, width() - 2 * ManageLayout::margin, 40);
    m_notice->hide();
    hide();
}

SkinButton *ManagePage::AddButton(const QString &objectName, const QString &accessibleName,
                                  const QString &bitmap)
{
    auto *button = new SkinButton(objectName, accessibleName, this);
    button->SetButton(bitmap, SkinLibrary());
    // A click leaves the focus where it is, so that Enter still leads to the new test.
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void ManagePage::PlaceFromLeft(const QList<SkinButton *> &buttons)
{
    int left = PageButtonInset;
    for (SkinButton *button : buttons) {
        button->move(left, ManageLayout::buttonTop);
        left += button->width() + PageButtonGap;
    }
}

void ManagePage::PlaceFromRight(const QList<SkinButton *> &buttons)
{
    int right = ManageLayout::page.width() - PageButtonInset;
    for (auto button = buttons.crbegin(); button != buttons.crend(); ++button) {
        right -= (*button)->width();
        (*button)->move(right, ManageLayout::buttonTop);
        right -= PageButtonGap;
    }
}

void ManagePage::ShowNotice(const QString &text)
{
    m_notice->setText(text);
    m_notice->setVisible(!text.isEmpty());
}

void ManagePage::ShowReadable(bool readable)
{
    ShowNotice(readable ? QString() : tr("There is a file of these records, but it cannot be read."));
}

bool ManagePage::ConfirmDeletion()
{
    return Public_Function::ShowMessage(u"Are you sure? All the user's data will be deleted!"_s, u"Confirm"_s,
                                        MessageIcon::Question,
                                        MessageButtons::YesNo) == Public_Function::MessageYes;
}

void ManagePage::CheckDeletion(bool done)
{
    if (done)
        return;
    Public_Function::ShowMessage(
        tr("Nothing was deleted. This folder cannot be written, or its disk is full:\n%1")
            .arg(Public_Function::NativePath(Public_Function::UserDir())),
        u"Quorvex"_s, MessageIcon::Error, MessageButtons::Ok);
}

void ManagePage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (!m_background.Draw(painter, QPoint(), rect()))
        painter.fillRect(rect(), QColor(247, 248, 251));
}
