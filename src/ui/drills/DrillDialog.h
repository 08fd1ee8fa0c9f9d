#pragma once

#include "ui/skin/SkinnedDialog.h"

#include <QList>

class SkinButton;

/// How a drill's dialog was left.
enum class DialogAnswer { Confirmed = 1, Cancelled = 2 };

/// The frame of the drills' dialogs: title, OK and Cancel. What was chosen is read after it has closed.
class DrillDialog : public SkinnedDialog
{
    Q_OBJECT

public:
    DialogAnswer ReturnValue() const { return m_returnValue; }
    void accept() override;

protected:
    DrillDialog(const QString &objectName, const QSize &size, QWidget *owner);

    /// Where the dialog's own controls may stand.
    QRect ContentArea() const;
    /// Gives the dialog its frame once its controls are made; Tab leads through them in this order, then to
    /// OK and Cancel. The first one gets the focus.
    void FinishDialog(const QList<QWidget *> &tabOrder);

    SkinButton *BtnOk;
    SkinButton *BtnCancel;

private:
    DialogAnswer m_returnValue = DialogAnswer::Cancelled;
};
