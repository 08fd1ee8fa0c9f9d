#pragma once

#include "ui/drills/ArticlePage.h"
#include "ui/drills/TypingDrill.h"

/// The text drill: an article is typed page by page, in one of three display forms. What was typed is not
/// corrected by the drill; each character shows as right or wrong, and the best speed of the day is kept.
class frmEn_ArticleTrain final : public TypingDrill
{
    Q_OBJECT

public:
    frmEn_ArticleTrain(Navigator &navigator, QWidget *owner);

    /// Loads a text file as the article. False when it is missing or has no word: then all stays as it was.
    bool InitArticleData(const QString &fileName);

protected:
    void InitLayout() override;
    void LoadTrainData() override;
    void RestartLesson() override;
    void SaveTrainData() override;
    DrillCounts Counts() const override;
    void UpdateStatus(bool reset) override;
    void SelectLesson() override;
    void ChangeSettings() override;
    QString CompletionQuestion() const override;
    int SkinKind() const override { return static_cast<int>(m_session.Form()); }

    bool CanType() const override { return m_session.HasArticle(); }
    void TypeCharacter(char32_t typed, bool accepted) override;
    bool IsSwallowed(const QKeyEvent &event) const override;
    QString InputMethodHint(const QString &name) const override;
    QRect TypingArea() const override { return m_page.TypingArea(m_session); }

private:
    void ShowForm(DisplayForm form);

    ArticleSession m_session;
    ArticlePage m_page;
    QString m_articleFile;
    QString m_articleMessage;
    int m_lastSpeed = 0; ///< as shown last, words a minute
    int m_lastRate = 0;  ///< percent
};
