#pragma once

#include "core/drills/FingerTable.h"
#include "core/drills/KeyDrillSession.h"
#include "core/drills/KeyLessonPlace.h"
#include "ui/drills/DrillWindow.h"

class DlgEn_KeyLesson;
class HandsPicture;
class KeyCapRow;
class OnScreenKeys;

/// The drill for single keys: the group to type as a row of key caps, the key to press lit on an on-screen
/// keyboard and the finger to use on a picture of the hands. The drills derived from it differ in their
/// keyboard, their fingers and in what they store.
class KeyCapDrill : public DrillWindow
{
    Q_OBJECT

public:
    /// Loads a lesson file and shows its title. False when it is missing, which changes nothing, or has no
    /// group: then what is left of the group at hand can still be typed.
    bool InitKeyData(const QString &fileName);

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

protected:
    KeyCapDrill(const DrillFacts &facts, const KeyLessonSettings &settings, Navigator &navigator,
                QWidget *owner);

    void InitLayout() override;
    void LoadTrainData() override;
    void RestartLesson() override;
    DrillCounts Counts() const override;
    void SelectLesson() override;
    void DrillKeyDown(QKeyEvent *event) override;
    void DrillKeyUp(QKeyEvent *event) override;
    void ForgetKeys() override;
    void inputMethodEvent(QInputMethodEvent *event) override;

    struct FingerHint
    {
        FingerStrip strip;
        QString name;
    };
    virtual FingerHint HintFor(char32_t character) const = 0;
    /// Whether keys of this kind are shown on the on-screen keyboard.
    virtual bool IsShownOnKeys(const QKeyEvent &) const { return true; }
    /// A character for which the on-screen keyboard has a key; any other has no prompt there.
    virtual bool HasPromptKey(char32_t) const { return true; }
    virtual void FillLessonList(DlgEn_KeyLesson &dialog) const = 0;
    virtual void OnKeyChecked(bool right) = 0;

    /// The keyboard is made by the derived drill, whose child it is.
    void UseOnScreenKeys(OnScreenKeys *keys);
    void PlaceHands(const QPoint &position, int baseOffset);

    KeyDrillSession &Session() { return m_session; }
    const KeyDrillSession &Session() const { return m_session; }
    /// The lesson, the place in it and the sound mode, as they are to be stored.
    KeyLessonPlace Place() const;
    int SoundMode() const { return m_soundMode; }
    void SetSoundMode(int mode) { m_soundMode = mode; }

private:
    bool AcceptKeyDown(const QKeyEvent &event, bool typesCharacter);
    void BeginTyping();
    void TypeCharacter(char32_t typed, bool checked);
    void AskForEnglishInput();
    void PlayRight(char32_t typed) const;
    void PlayWrong() const;
    void ShowGroup();
    void ShowPromptCursor();

    const KeyLessonSettings m_settings;
    KeyDrillSession m_session;
    QString m_lessonFile;
    int m_soundMode = 1;
    bool m_composing = false; ///< the input method has a composition that was not ended yet

    KeyCapRow *m_capRow;
    HandsPicture *picActivateFinger;
    OnScreenKeys *m_keys = nullptr;
};
