#include "ui/shell/DlgUr_UserLogin.h"

#include "core/shell/Public_Define.h"
#include "platform/Paths.h"
#include "ui/shell/ShowMessage.h"
#include "ui/skin/DialogStyle.h"
#include "ui/skin/Fonts.h"
#include "ui/skin/SkinLibrary.h"
#include "ui/widgets/SkinButton.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QValidator>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Margin = 30;
constexpr int BoxHeight = 28;
constexpr int ListHeight = 176;
constexpr int LongestName = 255; // what a folder can be called; longer names in bytes are refused

/// A name holds no spaces, so none get in, typed or pasted.
class NameValidator final : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString &input, int &position) const override
    {
        for (qsizetype i = input.size() - 1; i >= 0; --i) {
            if (!input[i].isSpace())
                continue;
            input.remove(i, 1);
            if (i < position)
                --position;
        }
        return Acceptable;
    }
};

} // namespace

DlgUr_UserLogin::DlgUr_UserLogin(QWidget *owner)
    : SkinnedDialog(owner)
    , TxtUserName(new QLineEdit(this))
    , LstUser(new QListWidget(this))
    , XBtnEnter(new SkinButton(u"XBtnEnter"_s, tr("&Log in"), this))
    , XBtnDelete(new SkinButton(u"XBtnDelete"_s, tr("&Delete"), this))
{
    setObjectName(u"DlgUr_UserLogin"_s);
    auto *label = new QLabel(tr("&User name"), this);
    label->setFont(Public_Function::InterfaceFont(9));
    label->setBuddy(TxtUserName);

    TxtUserName->setObjectName(u"TxtUserName"_s);
    TxtUserName->setAccessibleName(tr("User name"));
    TxtUserName->setPlaceholderText(tr("Type or choose a name"));
    TxtUserName->setMaxLength(LongestName);
    TxtUserName->setValidator(new NameValidator(TxtUserName));
    Public_Function::StyleDialogBox(TxtUserName);
    TxtUserName->installEventFilter(this);

    LstUser->setObjectName(u"LstUser"_s);
    LstUser->setAccessibleName(tr("Users"));
    Public_Function::StyleDialogList(LstUser, QColor(233, 251, 251));
    LstUser->installEventFilter(this);

    LayoutLoginButtons();
    const int content = width() - 2 * Margin;
    int top = TitleHeight() + 14;
    label->setGeometry(Margin, top, content, 18);
    top += 22;
    TxtUserName->setGeometry(Margin, top, content, BoxHeight);
    top += BoxHeight + 10;
    LstUser->setGeometry(Margin, top, content, ListHeight);
    top += ListHeight + 16;
    XBtnEnter->move(XBtnEnter->x(), top);
    XBtnDelete->move(XBtnDelete->x(), top);
    resize(width(), top + XBtnEnter->height() + 18);
    SkinDialog(u"Login "_s);

    setTabOrder(TxtUserName, LstUser);
    setTabOrder(LstUser, XBtnEnter);
    setTabOrder(XBtnEnter, XBtnDelete);
    SetDefaultButton(XBtnEnter);
    FillUserList();
    TxtUserName->setFocus();

    const auto takeSelected = [this] {
        const QString name = SelectedName();
        if (name.isEmpty())
            return;
        TxtUserName->setText(name);
        XBtnDelete->setEnabled(true);
    };
    connect(LstUser, &QListWidget::itemSelectionChanged, this, takeSelected);
    // The entry may be selected already, and the box emptied or typed in since.
    connect(LstUser, &QListWidget::itemClicked, this, takeSelected);
    connect(LstUser, &QListWidget::itemDoubleClicked, this, &DlgUr_UserLogin::EnterSelected);
    connect(XBtnEnter, &SkinButton::clicked, this, &DlgUr_UserLogin::EnterSelected);
    connect(XBtnDelete, &SkinButton::clicked, this, &DlgUr_UserLogin::DeleteSelected);
}

void DlgUr_UserLogin::LayoutLoginButtons()
{
    const SkinLibrary library;
    XBtnEnter->SetButton(u"BTN_LOGIN"_s, library);
    XBtnDelete->SetButton(u"BTN_DELETE"_s, library, 5);
    // As wide as makes the gaps beside and between the two buttons equal.
    resize(2 * XBtnEnter->width() + 3 * Margin, height());
    XBtnEnter->move((width() - 2 * XBtnEnter->width()) / 3, 0);
    XBtnDelete->move(XBtnEnter->x() + XBtnEnter->width() + Margin, 0);
    XBtnDelete->setEnabled(false);
}

void DlgUr_UserLogin::FillUserList()
{
    LstUser->addItems(m_users.Names());
}

QString DlgUr_UserLogin::SelectedName() const
{
    const QList<QListWidgetItem *> selected = LstUser->selectedItems();
    return selected.isEmpty() ? QString() : selected.first()->text();
}

void DlgUr_UserLogin::EnterSelected()
{
    if (const QString name = SelectedName(); !name.isEmpty())
        Login(name);
    else
        EnterTyped();
}

void DlgUr_UserLogin::EnterTyped()
{
    const QString name = TxtUserName->text();
    if (name.isEmpty())
        return;
    // Where the list cannot be written the person still gets in; what is lost is said after the login.
    if (!m_users.UserExists(name) && !m_users.IsInvalidName(name))
        m_users.AddUser(name);
    Login(name);
}

void DlgUr_UserLogin::Login(const QString &name)
{
    // Also a listed name may be none, when somebody has edited the list by hand.
    if (m_users.IsInvalidName(name)) {
        Public_Function::ShowMessage(u"The user name is unavailable."_s, u"Create account"_s,
                                     MessageIcon::Error, MessageButtons::Ok);
        TxtUserName->setFocus();
        return;
    }
    Shared().CurrentUserName = name;
    m_users.MakeFolder(name);
    accept();
}

void DlgUr_UserLogin::DeleteSelected()
{
    const QString name = SelectedName();
    if (TxtUserName->text() == name)
        TxtUserName->clear();
    if (name.isEmpty())
        return;
    const qint16 answer =
        Public_Function::ShowMessage(u"Are you sure you want to delete this user?"_s, u"Confirm"_s,
                                     MessageIcon::Question, MessageButtons::YesNo);
    if (answer != Public_Function::MessageYes)
        return;
    const UserList::Deletion result = m_users.DeleteUser(name);
    if (!result.error.isEmpty())
        Public_Function::ShowMessage(result.error, QString(), MessageIcon::Error, MessageButtons::Ok);
    if (!result.deleted) {
        Public_Function::ShowMessage(
            tr("This user could not be deleted, because the list of users cannot be changed:\n%1")
                .arg(Public_Function::NativePath(Shared().InstallDir + u"user.ini"_s)),
            u"Quorvex"_s, MessageIcon::Error, MessageButtons::Ok);
        return;
    }
    delete LstUser->takeItem(LstUser->currentRow());
    // The list moves its selection to a neighbour; the person has chosen nobody yet.
    LstUser->setCurrentItem(nullptr);
    TxtUserName->clear();
    XBtnDelete->setEnabled(false);
    TxtUserName->setFocus();
}

bool DlgUr_UserLogin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (watched == TxtUserName && enter) {
            EnterTyped();
            return true;
        }
        const bool downwards = key->key() == Qt::Key_Down || key->key() == Qt::Key_PageDown;
        if (downwards && (watched == TxtUserName || SelectedName().isEmpty())) {
            // The list's current row is not chosen until the person moves to it.
            LstUser->setFocus();
            if (SelectedName().isEmpty())
                LstUser->setCurrentRow(qMax(0, LstUser->currentRow()), QItemSelectionModel::ClearAndSelect);
            return true;
        }
        if (watched == LstUser && key->key() == Qt::Key_Delete) {
            DeleteSelected();
            return true;
        }
    }
    return SkinnedDialog::eventFilter(watched, event);
}
