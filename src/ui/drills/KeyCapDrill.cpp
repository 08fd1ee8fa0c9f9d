#include "ui/drills/KeyCapDrill.h"

#include "core/drills/KeyLesson.h"
#include "ui/drills/KeyLessonDialogs.h"
#include "ui/widgets/HandsPicture.h"
#include "ui/widgets/KeyCapRow.h"
#include "ui/widgets/PaintNow.h"

KeyCapDrill::KeyCapDrill(const DrillFacts &facts, const KeyLessonSettings &settings, Navigator &navigator,
                         QWidget *owner)
    : TypingDrill(facts, navigator, owner)
    , m_settings(settings)
    , m_capRow(nullptr)
    , picActivateFinger(new HandsPicture(this))
{
}

void KeyCapDrill::OnKeyChecked(bool)
{
    if (m_session.HasGroups())
        ShowPrompt();
}

void KeyCapDrill::ShowPrompt()
{
    const char32_t expected = m_session.CurrentCharacter();
    ShowPromptKey(HasPromptKey(expected) ? expected : 0);
}

void KeyCapDrill::PlaceHands(const QPoint &position, int baseOffset)
{
    picActivateFinger->SetBaseOffset(baseOffset);
    picActivateFinger->move(position);
}

void KeyCapDrill::InitLayout()
{
    TypingDrill::InitLayout();
    const DrillLayout &layout = Layout();
    m_capRow = new KeyCapRow(layout, this);
    const int inset = layout.Pick(12, 16);
    const int left = layout.origin.x() + inset;
    m_capRow->setGeometry(left, layout.origin.y() + layout.Pick(90, 110), layout.Pick(776, 994) - 2 * inset,
                          m_capRow->CapSize().height());
    m_capRow->SetCentre(AreaWidth() / 2 - left);
    SetKeysSize();
}

bool KeyCapDrill::InitKeyData(const QString &fileName)
{
    const Public_Function::KeyLessonResult result = Public_Function::LoadKeyLesson(fileName);
    if (result.error == Public_Function::LessonError::Missing)
        return false;
    m_session.SetGroups(result.lesson.groups);
    if (m_session.HasGroups() || !result.lesson.title.isEmpty())
        ShowLessonTitle(result.lesson.title);
    return m_session.HasGroups();
}

void KeyCapDrill::LoadTrainData()
{
    const KeyLessonPlace place = LoadKeyLessonPlace(m_settings);
    m_lessonFile = place.lessonFile;
    SetSoundMode(place.soundMode);
    const bool loaded = InitKeyData(m_lessonFile);
    m_session.BeginAt(place.itemIndex);
    if (!loaded) {
        ReportLoadFailure(KeyLessonDialogs::LoadFailureText());
        return;
    }
    UpdateStatus(true);
    ShowGroup();
}

void KeyCapDrill::RestartLesson()
{
    Watch().Reset();
    PauseClock();
    m_session.Restart();
    UpdateStatus(true);
    ShowGroup();
}

KeyLessonPlace KeyCapDrill::Place() const
{
    return {m_lessonFile, m_session.ItemIndex(), SoundMode()};
}

DrillCounts KeyCapDrill::Counts() const
{
    return {m_session.ItemIndex(),   m_session.ItemCount(), m_session.TotalKeys(),
            m_session.CorrectKeys(), m_session.TotalKeys(), true};
}

void KeyCapDrill::SelectLesson()
{
    const auto file = KeyLessonDialogs::ChooseLesson(
        this, [this](DlgEn_KeyLesson &dialog) { FillLessonList(dialog); },
        [this](const QString &lesson) { return InitKeyData(lesson); });
    if (!file)
        return;
    m_lessonFile = *file;
    RestartLesson();
}

void KeyCapDrill::ShowGroup()
{
    if (!m_capRow)
        return;
    const char32_t expected = m_session.CurrentCharacter();
    const bool prompted = HasPromptKey(expected);
    m_capRow->ShowGroup(m_session.CurrentGroup(), prompted ? m_session.PromptIndex() : -1);
    if (prompted)
        ShowPromptCursor();
    else
        picActivateFinger->SetActiveFinger({}, {});
    ShowPrompt();
}

void KeyCapDrill::ShowPromptCursor()
{
    if (!m_capRow)
        return;
    m_capRow->ShowPrompt(m_session.PromptIndex());
    const FingerHint hint = HintFor(m_session.CurrentCharacter());
    picActivateFinger->SetActiveFinger(hint.strip, hint.name);
}

bool KeyCapDrill::CanType() const
{
    return m_session.HasGroups();
}

void KeyCapDrill::TypeCharacter(char32_t typed, bool)
{
    switch (m_session.TypeCharacter(typed)) {
    case KeyDrillSession::Judgement::Wrong:
        PlayWrong();
        ShowHint(tr("Input by the current key suggested"));
        break;
    case KeyDrillSession::Judgement::NextKey:
        if (m_capRow)
            m_capRow->ShowPrompt(m_session.PromptIndex());
        ShowNext(typed);
        break;
    case KeyDrillSession::Judgement::NextGroup:
        if (m_capRow)
            m_capRow->ShowGroup(m_session.CurrentGroup(), m_session.PromptIndex());
        ShowNext(typed);
        break;
    case KeyDrillSession::Judgement::LessonDone:
        CompleteLesson();
        break;
    }
}

/// After a right key, whose place in the row of caps is marked already.
void KeyCapDrill::ShowNext(char32_t typed)
{
    Public_Function::PaintNow(this);
    PlayRight(typed);
    ShowPromptCursor();
}

QRect KeyCapDrill::TypingArea() const
{
    return m_capRow ? m_capRow->geometry() : QRect();
}
