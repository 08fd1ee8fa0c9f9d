#pragma once

#include "ui/skin/SkinnedDialog.h"

class QLabel;

enum class MessageIcon { None = 0, Information = 1, Stop = 2, Error = 3, Question = 4 };
enum class MessageButtons { Ok = 1, YesNo = 2 };

/// The skinned message box.
class Dlg_MessageBox : public SkinnedDialog
{
    Q_OBJECT

public:
    explicit Dlg_MessageBox(QWidget *owner);

    void CreateMessage(const QString &text, const QString &caption, MessageIcon icon, MessageButtons buttons);
    bool GetReturnValue() const { return m_result; }

    void accept() override;
    void reject() override;

private:
    QLabel *ImgMessageInfo;
    QLabel *LabMessageInfo;
    SkinButton *XBtnOK;
    SkinButton *XBtnCancel;
    bool m_result = false;
};
