#pragma once

#include "ui/skin/SkinnedDialog.h"

#include <QStringList>
#include <array>

class QComboBox;
class QListWidget;
class QRadioButton;
class SkinButton;

/// "Select courses": chooses a text of the program's own test material, by language, class and folder.
class DlgSelLsn final : public SkinnedDialog
{
    Q_OBJECT

public:
    /// Opens at the language, class, folder and file of `currentFile`, a full product path.
    DlgSelLsn(const QString &currentFile, QWidget *owner);

    /// The chosen full product path after OK; until then, and when nothing was chosen, the one it was opened
    /// with.
    QString ChosenFile() const { return m_chosenFile; }

    void accept() override;

private:
    void MakeControls();
    void PlaceControls();
    QString RootFolder() const;
    bool IsProfessional() const;
    void FillFolders();
    void FillFiles();

    std::array<QRadioButton *, 2> optLanguage{};
    std::array<QRadioButton *, 2> optClass{};
    QComboBox *cbxFolder;
    QListWidget *lstFile;
    SkinButton *BtnOk;
    SkinButton *BtnCancel;
    QStringList m_files;
    QString m_currentFile;
    QString m_chosenFile;
};
