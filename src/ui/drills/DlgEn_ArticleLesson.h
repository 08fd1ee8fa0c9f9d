#pragma once

#include "ui/drills/DrillDialog.h"

#include <array>

class ChoiceBox;
class QListWidget;
class QRadioButton;

/// Chooses a text to practise from the folders of articles or of professional texts.
class DlgEn_ArticleLesson final : public DrillDialog
{
    Q_OBJECT

public:
    explicit DlgEn_ArticleLesson(QWidget *owner);

    /// Other root folders than the program's own, each with a separator at its end.
    void SetFolderPath(const QString &strGeneral, const QString &strProfessional);

    /// Full path of the chosen text.
    QString ArticleFile() const { return m_articleFile; }
    /// The text's folder and name as people read them: "Adage:1.txt".
    QString ArticleMessage() const { return m_articleMessage; }

    void accept() override;

private:
    void MakeControls();
    void ChooseClass(int chosen);
    void FillFiles();
    std::size_t ChosenClass() const;
    QString ChosenFolder() const;

    std::array<QString, 2> m_roots;
    std::array<QRadioButton *, 2> OpnClass{};
    std::array<ChoiceBox *, 2> cbxFolder{};
    QListWidget *lstFile;
    QString m_articleFile;
    QString m_articleMessage;
};
