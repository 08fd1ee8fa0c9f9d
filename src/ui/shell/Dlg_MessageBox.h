#pragma once

#include "ui/skin/SkinnedDialog.h"

class QLabel;
class QScrollArea;

enum class MessageIcon { None = 0, Information = 1, Stop = 2, Error = 3, Question = 4 };
enum class MessageButtons { Ok = 1, YesNo = 2 };

/// The skinned message box: an icon, a text of any length (one longer than the screen scrolls), OK or Yes and
/// No.
class Dlg_MessageBox : public SkinnedDialog
{
    Q_OBJECT

public:
    explicit Dlg_MessageBox(QWidget *owner);

    void CreateMessage(const QString &text, const QString &caption, MessageIcon icon, MessageButtons buttons);
    /// True after OK, Yes or Enter.
    bool GetReturnValue() const { return m_result; }

    void accept() override;

private:
    QLabel *ImgMessageInfo;
    QLabel *LabMessageInfo;
    QScrollArea *m_textArea;
    SkinButton *XBtnOK;
    SkinButton *XBtnCancel;
    bool m_result = false;
};
