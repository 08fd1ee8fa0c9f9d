#pragma once

#include "core/speedtest/TestMaterial.h"
#include "ui/skin/SkinnedDialog.h"

#include <array>

class ChoiceBox;
class QLabel;
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
    TestMaterial::Place ShownPlace() const;
    void FillFolders();
    void FillFiles();

    std::array<QRadioButton *, 2> optLanguage{};
    std::array<QRadioButton *, 2> optClass{};
    QLabel *m_folderLabel;
    ChoiceBox *cbxFolder;
    QListWidget *lstFile;
    SkinButton *BtnOk;
    SkinButton *BtnCancel;
    QString m_chosenFile;
};
