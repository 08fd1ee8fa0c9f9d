#include "ui/drills/KeyCapDrill.h"

#include "core/drills/KeyLesson.h"
#include "core/engine/SoundEffects.h"
#include "ui/drills/DlgEn_KeyLesson.h"
#include "ui/widgets/HandsPicture.h"
#include "ui/widgets/KeyCapRow.h"
#include "ui/widgets/OnScreenKeys.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPointer>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

QString LoadFailureText()
{
    return u"Thesaurus data initialization failure\nPlease choose other courses."_s;
}

/// Keys that move, insert or delete elsewhere and mean nothing here.
bool IsEditingKey(int key)
{
    switch (key) {
    case Qt::Key_Insert:
    case Qt::Key_Delete:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_End:
    case Qt::Key_Home:
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
        return true;
    default:
        return false;
    }
}

QString TextOf(char32_t character)
{
    return character == 0 ? QString() : QString::fromUcs4(&character, 1);
}

} // namespace

KeyCapDrill::KeyCapDrill(const DrillFacts &facts, const KeyLessonSettings &settings, Navigator &navigator,
                         QWidget *owner)
    : DrillWindow(facts, navigator, owner)
    , m_settings(settings)
    , m_capRow(nullptr)
    , picActivateFinger(new HandsPicture(this))
{
    setAttribute(Qt::WA_InputMethodEnabled);
    setInputMethodHints(Qt::ImhLatinOnly | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
}

void KeyCapDrill::UseOnScreenKeys(OnScreenKeys *keys)
{
    m_keys = keys;
    connect(keys, &OnScreenKeys::KeyChecked, this, [this](const QString &, bool right) {
        if (!m_session.HasGroups() || m_session.CurrentCharacter() == 0)
            return;
        m_keys->SetPromptKey(HasPromptKey(m_session.CurrentCharacter()) ? TextOf(m_session.CurrentCharacter())
                                                                        : QString());
        OnKeyChecked(right);
    });
}

void KeyCapDrill::PlaceHands(const QPoint &position, int baseOffset)
{
    picActivateFinger->SetBaseOffset(baseOffset);
    picActivateFinger->move(position);
}

void KeyCapDrill::InitLayout()
{
    DrillWindow::InitLayout();
    const DrillLayout &layout = Layout();
    m_capRow = new KeyCapRow(layout, this);
    const int inset = layout.Pick(12, 16);
    const int left = layout.origin.x() + inset;
    m_capRow->setGeometry(left, layout.origin.y() + layout.Pick(90, 110), layout.Pick(776, 994) - 2 * inset,
                          m_capRow->CapSize().height());
    m_capRow->SetCentre(AreaWidth() / 2 - left);
    if (m_keys)
        m_keys->SetSizeSwitch(layout.IsWide());
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
    m_soundMode = place.soundMode;
    const bool loaded = InitKeyData(m_lessonFile);
    m_session.BeginAt(place.itemIndex);
    if (!loaded) {
        ReportLoadFailure(LoadFailureText());
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
    return {m_lessonFile, m_session.ItemIndex(), m_soundMode};
}

DrillCounts KeyCapDrill::Counts() const
{
    return {m_session.ItemIndex(),   m_session.ItemCount(), m_session.TotalKeys(),
            m_session.CorrectKeys(), m_session.TotalKeys(), true};
}

void KeyCapDrill::SelectLesson()
{
    DlgEn_KeyLesson dialog(this);
    FillLessonList(dialog);
    const QPointer<KeyCapDrill> self(this);
    dialog.exec();
    if (!self || dialog.ReturnValue() != DialogAnswer::Confirmed)
        return;
    if (!InitKeyData(dialog.LessonFile())) {
        ReportLoadFailure(LoadFailureText());
        return;
    }
    m_lessonFile = dialog.LessonFile();
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
    if (m_keys)
        m_keys->SetPromptKey(prompted ? TextOf(expected) : QString());
}

void KeyCapDrill::ShowPromptCursor()
{
    if (!m_capRow)
        return;
    m_capRow->ShowPrompt(m_session.PromptIndex());
    const FingerHint hint = HintFor(m_session.CurrentCharacter());
    picActivateFinger->SetActiveFinger(hint.strip, hint.name);
}

void KeyCapDrill::DrillKeyDown(QKeyEvent *event)
{
    m_composing = false;
    const std::u32string typed = TypedCharacters(*event);
    const bool accepted = AcceptKeyDown(*event, !typed.empty());
    const QPointer<KeyCapDrill> self(this); // the question at a lesson's end may outlive the window
    for (const char32_t character : typed) {
        if (self)
            TypeCharacter(character, accepted);
    }
}

/// False when the key is swallowed. It may still have typed a character, which then counts without a key.
bool KeyCapDrill::AcceptKeyDown(const QKeyEvent &event, bool typesCharacter)
{
    const bool ctrl = event.modifiers().testFlag(Qt::ControlModifier) || event.key() == Qt::Key_Control;
    if (!m_session.HasGroups() || IsEditingKey(event.key()) || (ctrl && !typesCharacter))
        return false;
    const bool pause = event.key() == Qt::Key_Pause;
    if (pause && event.isAutoRepeat())
        return true;
    if (pause && Watch().IsRunning()) {
        PauseClock();
        ShowHint(tr("Input by the current key suggested"));
        return true;
    }
    // Any key begins the practice, Shift as well: who types a capital first has begun with it.
    BeginTyping();
    if (m_keys && IsShownOnKeys(event))
        m_keys->KeyDown(KeyStrokeOf(event));
    return true;
}

void KeyCapDrill::BeginTyping()
{
    if (Watch().IsRunning()) {
        ShowHint(tr("Suspended by PAUSE/BREAK"));
        return;
    }
    StartClock();
    ShowHint(tr("Input by the current key suggested"));
}

void KeyCapDrill::TypeCharacter(char32_t typed, bool checked)
{
    if (checked && m_keys)
        m_keys->Check(typed);
    const QPointer<KeyCapDrill> self(this);
    switch (m_session.TypeCharacter(typed)) {
    case KeyDrillSession::Judgement::Wrong:
        PlayWrong();
        ShowHint(tr("Input by the current key suggested"));
        break;
    case KeyDrillSession::Judgement::NextKey:
        PlayRight(typed);
        ShowPromptCursor();
        break;
    case KeyDrillSession::Judgement::NextGroup:
        PlayRight(typed);
        if (m_capRow)
            m_capRow->ShowGroup(m_session.CurrentGroup(), m_session.PromptIndex());
        ShowPromptCursor();
        break;
    case KeyDrillSession::Judgement::LessonDone:
        CompleteLesson();
        break;
    }
    if (self && checked && m_keys)
        m_keys->CharacterHandled();
}

void KeyCapDrill::PlayRight(char32_t typed) const
{
    if (m_soundMode == 1)
        Public_Function::PlayEffect(u"Type.WAV"_s);
    else if (m_soundMode == 2)
        Public_Function::PlayMusicKey(typed > 0xFFFF ? u'\0' : static_cast<char16_t>(typed));
}

void KeyCapDrill::PlayWrong() const
{
    if (m_soundMode != 0)
        Public_Function::PlayEffect(u"Error.wav"_s);
}

void KeyCapDrill::DrillKeyUp(QKeyEvent *event)
{
    if (m_keys && !event->isAutoRepeat())
        m_keys->KeyUp(KeyStrokeOf(*event));
}

void KeyCapDrill::ForgetKeys()
{
    if (m_keys)
        m_keys->ReleaseAllKeys();
}

void KeyCapDrill::AskForEnglishInput()
{
    if (!m_session.HasGroups())
        return;
    PlayWrong();
    ShowHint(tr("Please switch to English input"));
}

void KeyCapDrill::inputMethodEvent(QInputMethodEvent *event)
{
    event->accept();
    const QString &commit = event->commitString();
    if (!event->preeditString().isEmpty()) {
        m_composing = true;
        AskForEnglishInput();
        return;
    }
    if (commit.isEmpty())
        return;
    if (std::exchange(m_composing, false)) {
        AskForEnglishInput();
        return;
    }
    // Committed without a composition: a dead key or a compose sequence typed it.
    const QPointer<KeyCapDrill> self(this);
    for (const char32_t character : commit.toStdU32String()) {
        if (!self)
            return;
        const bool accepted = m_session.HasGroups();
        if (accepted)
            BeginTyping();
        TypeCharacter(character, accepted);
    }
}

QVariant KeyCapDrill::inputMethodQuery(Qt::InputMethodQuery query) const
{
    if (query == Qt::ImEnabled)
        return testAttribute(Qt::WA_InputMethodEnabled);
    if (query == Qt::ImCursorRectangle && m_capRow)
        return m_capRow->geometry();
    return DrillWindow::inputMethodQuery(query);
}
