#pragma once

#include "ui/drills/DrillDialog.h"

class ChoiceBox;
class QListWidget;

/// Chooses a dictionary from the program's catalogue.
class DlgEn_WordLesson final : public DrillDialog
{
    Q_OBJECT

public:
    explicit DlgEn_WordLesson(QWidget *owner);

    /// What people read; empty after Cancel, as are the others.
    QString DictionaryName() const { return m_name; }
    /// Full path of the dictionary's folder, with a separator at its end.
    QString DictionaryPath() const { return m_path; }
    /// Without extension.
    QString DictionaryFileName() const { return m_fileName; }

    void accept() override;

private:
    void FillDictionaries();

    ChoiceBox *cbxClass;
    QListWidget *lstDictionary;
    QString m_name;
    QString m_path;
    QString m_fileName;
};
