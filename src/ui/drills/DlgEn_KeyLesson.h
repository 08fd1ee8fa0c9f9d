#pragma once

#include "ui/drills/DrillDialog.h"

#include <QStringList>

class QListWidget;

/// Lists the key lessons of one folder by their titles.
class DlgEn_KeyLesson final : public DrillDialog
{
    Q_OBJECT

public:
    explicit DlgEn_KeyLesson(QWidget *owner);

    /// Fills the list with the lessons for the main keyboard.
    void ShowKeyLesson();
    /// Fills the list with the lessons for the numeric keypad.
    void ShowNumpadLesson();

    /// Full path of the chosen lesson's file; empty when the folder holds none.
    QString LessonFile() const { return m_lessonFile; }

    void accept() override;

private:
    void FillList(const QString &folder);

    QListWidget *lstLesson;
    QStringList m_files;
    QString m_lessonFile;
};
