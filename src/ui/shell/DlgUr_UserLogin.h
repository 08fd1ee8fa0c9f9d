#pragma once

#include "core/shell/UserList.h"
#include "ui/skin/SkinnedDialog.h"

class QLineEdit;
class QListWidget;
class QListWidgetItem;

/// Picks the user who types from now on, makes a new one from a typed name, or deletes one with all files.
/// The caller reads the outcome from `CurrentUserName`, which stays as it was when the dialog is closed
/// without a choice.
class DlgUr_UserLogin : public SkinnedDialog
{
    Q_OBJECT

public:
    explicit DlgUr_UserLogin(QWidget *owner);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void LayoutLoginButtons();
    void FillUserList();
    QString SelectedName() const;
    void EnterSelected();
    void EnterTyped();
    void Login(const QString &name);
    void DeleteSelected();

    UserList m_users;
    QLineEdit *TxtUserName;
    QListWidget *LstUser;
    SkinButton *XBtnEnter;
    SkinButton *XBtnDelete;
};
