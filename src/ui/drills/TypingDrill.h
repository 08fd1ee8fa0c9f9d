#pragma once

#include "ui/drills/DrillWindow.h"

class OnScreenKeys;

/// A drill that takes one character after the other: which keys it accepts, how they start, pause and resume
/// the clock, what an input method may do, and the sounds. The window itself has the keyboard; nothing in it
/// can be edited.
class TypingDrill : public DrillWindow
{
    Q_OBJECT

public:
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

protected:
    TypingDrill(const DrillFacts &facts, Navigator &navigator, QWidget *owner);

    /// False while nothing is loaded: every key is swallowed then.
    virtual bool CanType() const = 0;
    /// A character that was typed, those of Backspace (8), Tab (9), Enter (13) and Escape (27) too. When the
    /// key was swallowed it comes with `accepted` false. May close the window.
    virtual void TypeCharacter(char32_t typed, bool accepted) = 0;
    /// A key that this drill has no use for at this moment; it neither types nor touches the clock.
    virtual bool IsSwallowed(const QKeyEvent &) const { return false; }
    /// Whether keys of this kind are shown on the on-screen keyboard.
    virtual bool IsShownOnKeys(const QKeyEvent &) const { return true; }
    /// Whether the on-screen keyboard compares this character with its prompt.
    virtual bool IsChecked(char32_t) const { return true; }
    /// What was typed against the on-screen keyboard's prompt has been compared and handled.
    virtual void OnKeyChecked(bool) {}
    /// The hint after Ctrl+Space or Ctrl+Shift, when the input method `name` is active then; empty for none.
    virtual QString InputMethodHint(const QString &) const { return {}; }
    /// Where the next character is typed; the input method keeps its window away from it.
    virtual QRect TypingArea() const = 0;

    /// The keyboard is made by the derived drill, whose child it is.
    void UseOnScreenKeys(OnScreenKeys *keys);
    void SetKeysSize();
    /// Lights the key of the character to type, 0 for none.
    void ShowPromptKey(char32_t character);

    /// 0 no sound, 1 key sounds, 2 music keyboard.
    int SoundMode() const { return m_soundMode; }
    void SetSoundMode(int mode) { m_soundMode = mode; }
    void PlayRight(char32_t character) const;
    void PlayWrong() const;

    void DrillKeyDown(QKeyEvent *event) override;
    void DrillKeyUp(QKeyEvent *event) override;
    void ForgetKeys() override;
    void inputMethodEvent(QInputMethodEvent *event) override;

private:
    bool AcceptKeyDown(const QKeyEvent &event, bool typesCharacter);
    void BeginTyping();
    void HandleCharacter(char32_t typed, bool accepted);
    void AskForEnglishInput();
    void SayInputMethod();

    OnScreenKeys *m_keys = nullptr;
    int m_soundMode = 1;
    int m_lastKey = 0;        ///< that was pressed
    bool m_composing = false; ///< the input method has a composition that was not ended yet
    bool m_switching = false; ///< the input method is being switched by Ctrl+Space or Ctrl+Shift
};
