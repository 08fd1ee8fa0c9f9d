#include "ui/drills/frmEn_ArticleTrain.h"

#include "core/drills/ArticlePlace.h"
#include "core/drills/DrillFigures.h"
#include "ui/drills/ArticleLayout.h"
#include "ui/drills/DlgEn_ArticleLesson.h"
#include "ui/drills/DlgEn_ArticleTrainSetting.h"
#include "ui/widgets/PaintNow.h"
#include "ui/widgets/SkinButton.h"

#include <QKeyEvent>
#include <QPointer>

using namespace Qt::Literals::StringLiterals;

namespace {

DrillFacts ArticleFacts()
{
    return {u"frmEn_ArticleTrain"_s,
            u"Typing Course \\ Text Drill"_s,
            3,
            static_cast<int>(DisplayForm::LinePairs),
            ArticleLayout::narrowPanelTop,
            ArticleLayout::widePanelTop};
}

QString ArticleFailureText()
{
    return u"Thesaurus data initialization failure\nPlease choose other text."_s;
}

} // namespace

frmEn_ArticleTrain::frmEn_ArticleTrain(Navigator &navigator, QWidget *owner)
    : TypingDrill(ArticleFacts(), navigator, owner)
    , m_page(this)
{
    m_session.GoOnIn(LoadArticlePlace().form, {});
}

void frmEn_ArticleTrain::InitLayout()
{
    TypingDrill::InitLayout();
    const SkinButton *lesson =
        AddRowButton(u"BtnSelectLesson"_s, tr("Se&lect a text"), u"BTN_SELECTLESSON"_s, 532, 680);
    const SkinButton *setting = AddRowButton(u"BtnSetting"_s, tr("&Settings"), u"BTN_OPERATION"_s, 644, 830);
    connect(lesson, &SkinButton::clicked, this, &frmEn_ArticleTrain::OnSelectLesson);
    connect(setting, &SkinButton::clicked, this, &frmEn_ArticleTrain::OnSetting);
    ShowForm(m_session.Form());
}

void frmEn_ArticleTrain::ShowForm(DisplayForm form)
{
    m_page.Build(form, Layout());
    m_session.GoOnIn(form, m_page.Measure());
    m_page.ShowAll(m_session);
    RepaintGround();
}

bool frmEn_ArticleTrain::InitArticleData(const QString &fileName)
{
    Article article;
    if (!article.InitArticleData(fileName))
        return false;
    m_session.SetArticle(std::move(article));
    return true;
}

void frmEn_ArticleTrain::LoadTrainData()
{
    const ArticlePlace place = LoadArticlePlace();
    m_articleFile = place.articleFile;
    m_articleMessage = place.articleMessage;
    SetSoundMode(place.soundMode);
    if (!InitArticleData(m_articleFile)) {
        ReportLoadFailure(ArticleFailureText());
        return;
    }
    ShowLessonTitle(u"Typing Course \\ Text Drill --"_s + m_articleMessage);
    RestartLesson();
}

void frmEn_ArticleTrain::RestartLesson()
{
    PauseClock();
    Watch().Reset();
    m_session.Restart();
    m_page.ShowAll(m_session);
    UpdateStatus(true);
}

void frmEn_ArticleTrain::SaveTrainData()
{
    StoreArticleResult(m_lastSpeed, m_lastRate, m_articleMessage);
    StoreArticlePlace(
        {m_articleFile, m_articleMessage, m_session.GetTextIndexAt(), m_session.Form(), SoundMode()});
}

DrillCounts frmEn_ArticleTrain::Counts() const
{
    const int reached = m_session.GetTextIndexAt();
    return {reached, m_session.TokenCount(), m_session.TotalKeys(), m_session.CorrectKeys(), reached, false};
}

void frmEn_ArticleTrain::UpdateStatus(bool reset)
{
    TypingDrill::UpdateStatus(reset);
    if (reset)
        return;
    m_lastSpeed = DrillFigures::PerMinute(m_session.GetTextIndexAt(), Watch().WholeSeconds());
    m_lastRate =
        DrillFigures::RatePercent(m_session.CorrectKeys(), m_session.TotalKeys()).value_or(m_lastRate);
}

void frmEn_ArticleTrain::SelectLesson()
{
    DlgEn_ArticleLesson dialog(this);
    const QPointer<frmEn_ArticleTrain> self(this);
    dialog.exec();
    if (!self || dialog.ReturnValue() == DialogAnswer::Cancelled)
        return;
    if (!InitArticleData(dialog.ArticleFile())) {
        ReportLoadFailure(ArticleFailureText());
        return;
    }
    m_articleFile = dialog.ArticleFile();
    m_articleMessage = dialog.ArticleMessage();
    ShowLessonTitle(u"Typing Course \\ Text Drill -- "_s + m_articleMessage);
    RestartLesson();
}

void frmEn_ArticleTrain::ChangeSettings()
{
    DlgEn_ArticleTrainSetting dialog(this);
    dialog.SetTrainMode(static_cast<int>(m_session.Form()));
    dialog.SetSoundEffect(SoundMode());
    const QPointer<frmEn_ArticleTrain> self(this);
    dialog.exec();
    if (!self || dialog.ReturnValue() != DialogAnswer::Confirmed)
        return;
    SetSoundMode(dialog.SoundEffect());
    ShowForm(DisplayFormOf(dialog.TrainMode()));
    UpdateStatus(false);
    raise();
    activateWindow();
}

QString frmEn_ArticleTrain::CompletionQuestion() const
{
    return u"You have been completed the text you selected\nContinued to practice other text?"_s;
}

bool frmEn_ArticleTrain::IsSwallowed(const QKeyEvent &event) const
{
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (!m_session.AtLineEnd())
        return enter;
    return !enter && event.key() != Qt::Key_Space && event.key() != Qt::Key_Backspace;
}

QString frmEn_ArticleTrain::InputMethodHint(const QString &name) const
{
    return tr("The current input method:%1").arg(name);
}

void frmEn_ArticleTrain::TypeCharacter(char32_t typed, bool accepted)
{
    using Outcome = ArticleSession::Outcome;
    if (!accepted)
        return;
    const int line = m_session.CurrentLine();
    const int column = m_session.Column();
    const char32_t expected = m_session.Expected();
    const Outcome outcome = m_session.TypeCharacter(typed);
    if (outcome.kind == Outcome::Kind::Ignored)
        return;
    if (outcome.then == Outcome::Then::SamePage)
        m_page.ShowStep(m_session, line, column);
    else
        m_page.ShowAll(m_session);
    Public_Function::PaintNow(this);
    if (outcome.kind == Outcome::Kind::Right)
        PlayRight(expected);
    else if (outcome.kind == Outcome::Kind::Wrong)
        PlayWrong();
    if (outcome.then == Outcome::Then::ArticleDone) {
        SaveTrainData();
        CompleteLesson();
    }
}
