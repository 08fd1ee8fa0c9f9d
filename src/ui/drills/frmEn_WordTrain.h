#pragma once

#include "core/drills/WordTrainPlace.h"
#include "ui/drills/LineDrill.h"

#include <memory>
#include <optional>

class ExplanationPanel;
class clsEn_IDict;

/// The word drill: the words of a dictionary in its order, on request with what it says about each.
class frmEn_WordTrain final : public LineDrill
{
    Q_OBJECT

public:
    frmEn_WordTrain(Navigator &navigator, QWidget *owner);
    ~frmEn_WordTrain() override;

protected:
    void InitLayout() override;
    void LoadTrainData() override;
    void SaveTrainData() override;
    void SelectLesson() override;
    void ChangeSettings() override;
    QString CompletionQuestion() const override;
    QString InputMethodHint(const QString &name) const override;
    void OnPlaceChanged() override;

private:
    bool InitDictionary(const QString &path, const QString &file);
    void TakeDictionary(const QString &path, const QString &file, const QString &name);
    void ShowExplanation(int index);

    std::unique_ptr<clsEn_IDict> m_clsDict; ///< none before one could be loaded
    WordTrainPlace m_place;                 ///< the word and the sound mode as they were stored last
    bool m_explanationAllowed = false;
    std::optional<int> m_explained; ///< the word in the panel
    ExplanationPanel *picExplanation;
};
