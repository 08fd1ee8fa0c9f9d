#pragma once

#include "ui/drills/DialogAnswer.h"
#include "ui/skin/SkinnedDialog.h"

#include <QStringList>

class QListWidget;
class SkinButton;

/// Lists the key lessons of one folder by their titles.
class DlgEn_KeyLesson final : public SkinnedDialog
{
    Q_OBJECT

public:
    explicit DlgEn_KeyLesson(QWidget *owner);

    /// Fills the list with the lessons for the main keyboard.
    void ShowKeyLesson();
    /// Fills the list with the lessons for the numeric keypad.
    void ShowNumpadLesson();

    DialogAnswer ReturnValue() const { return m_returnValue; }
    /// Full path of the chosen lesson's file; empty when the folder holds none.
    QString LessonFile() const { return m_lessonFile; }

    void accept() override;

private:
    void FillList(const QString &folder);

    QListWidget *lstLesson;
    SkinButton *BtnOk;
    SkinButton *BtnCancel;
    QStringList m_files;
    QString m_lessonFile;
    DialogAnswer m_returnValue = DialogAnswer::Cancelled;
};
