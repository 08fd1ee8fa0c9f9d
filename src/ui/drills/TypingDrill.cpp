#include "ui/drills/TypingDrill.h"

#include "core/engine/SoundEffects.h"
#include "platform/InputMethod.h"
#include "ui/widgets/OnScreenKeys.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPointer>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

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

/// With Ctrl held, these switch the input method.
bool SwitchesInputMethod(const QKeyEvent &event)
{
    return event.modifiers().testFlag(Qt::ControlModifier) &&
           (event.key() == Qt::Key_Space || event.key() == Qt::Key_Shift);
}

} // namespace

TypingDrill::TypingDrill(const DrillFacts &facts, Navigator &navigator, QWidget *owner)
    : DrillWindow(facts, navigator, owner)
{
    setAttribute(Qt::WA_InputMethodEnabled);
    setInputMethodHints(Qt::ImhLatinOnly | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
    // Some take every key of their switch but the press of Ctrl, and switch when all were released.
    connect(QGuiApplication::inputMethod(), &QInputMethod::localeChanged, this, [this] {
        m_switching = m_switching || m_lastKey == Qt::Key_Control;
        SayInputMethod();
    });
}

void TypingDrill::UseOnScreenKeys(OnScreenKeys *keys)
{
    m_keys = keys;
    connect(keys, &OnScreenKeys::KeyChecked, this,
            [this](const QString &, bool right) { OnKeyChecked(right); });
}

void TypingDrill::SetKeysSize()
{
    if (m_keys)
        m_keys->SetSizeSwitch(Layout().IsWide());
}

void TypingDrill::ShowPromptKey(char32_t character)
{
    if (m_keys)
        m_keys->SetPromptKey(character == 0 ? QString() : QString::fromUcs4(&character, 1));
}

void TypingDrill::DrillKeyDown(QKeyEvent *event)
{
    m_composing = false;
    m_lastKey = event->key();
    const std::u32string typed = TypedCharacters(*event);
    const bool accepted = AcceptKeyDown(*event, !typed.empty());
    const QPointer<TypingDrill> self(this); // the question at a lesson's end may outlive the window
    for (const char32_t character : typed) {
        if (self)
            HandleCharacter(character, accepted);
    }
}

void TypingDrill::HandleCharacter(char32_t typed, bool accepted)
{
    const bool checked = accepted && m_keys && IsChecked(typed);
    if (checked)
        m_keys->Check(typed);
    const QPointer<TypingDrill> self(this);
    TypeCharacter(typed, accepted);
    if (self && checked)
        m_keys->CharacterHandled();
}

/// False when the key is swallowed. It may still have typed a character, which then counts without a key.
bool TypingDrill::AcceptKeyDown(const QKeyEvent &event, bool typesCharacter)
{
    const bool ctrl = event.modifiers().testFlag(Qt::ControlModifier) || event.key() == Qt::Key_Control;
    if (!CanType())
        return false;
    if (!IsEditingKey(event.key()) && (!ctrl || SwitchesInputMethod(event)))
        m_switching = ctrl;
    if (IsEditingKey(event.key()) || (ctrl && !typesCharacter) || IsSwallowed(event))
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

void TypingDrill::BeginTyping()
{
    if (Watch().IsRunning()) {
        ShowHint(tr("Suspended by PAUSE/BREAK"));
        return;
    }
    StartClock();
    ShowHint(tr("Input by the current key suggested"));
}

void TypingDrill::PlayRight(char32_t typed) const
{
    if (m_soundMode == 1)
        Public_Function::PlayEffect(u"Type.WAV"_s);
    else if (m_soundMode == 2)
        Public_Function::PlayMusicKey(typed > 0xFFFF ? u'\0' : static_cast<char16_t>(typed));
}

void TypingDrill::PlayWrong() const
{
    if (m_soundMode != 0)
        Public_Function::PlayEffect(u"Error.wav"_s);
}

void TypingDrill::DrillKeyUp(QKeyEvent *event)
{
    if (event->isAutoRepeat())
        return;
    if (m_keys)
        m_keys->KeyUp(KeyStrokeOf(*event));
    // An input method takes the press of its own switch: only the release arrives.
    if (CanType() && SwitchesInputMethod(*event))
        m_switching = true;
    SayInputMethod();
}

/// Names the input method that a switch has led to.
void TypingDrill::SayInputMethod()
{
    if (!m_switching || !isActiveWindow())
        return;
    const QString name = Public_Function::GetImeName();
    const QString hint = name.isEmpty() ? QString() : InputMethodHint(name);
    if (!hint.isEmpty())
        ShowHint(hint);
}

void TypingDrill::ForgetKeys()
{
    if (m_keys)
        m_keys->ReleaseAllKeys();
}

void TypingDrill::AskForEnglishInput()
{
    if (!CanType())
        return;
    PlayWrong();
    ShowHint(tr("Please switch to English input"));
}

void TypingDrill::inputMethodEvent(QInputMethodEvent *event)
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
    const QPointer<TypingDrill> self(this);
    for (const char32_t character : commit.toStdU32String()) {
        if (!self)
            return;
        const bool accepted = CanType();
        if (accepted)
            BeginTyping();
        HandleCharacter(character, accepted);
    }
}

QVariant TypingDrill::inputMethodQuery(Qt::InputMethodQuery query) const
{
    if (query == Qt::ImEnabled)
        return testAttribute(Qt::WA_InputMethodEnabled);
    if (query == Qt::ImCursorRectangle)
        return TypingArea();
    return DrillWindow::inputMethodQuery(query);
}
