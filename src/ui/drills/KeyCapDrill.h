#pragma once

#include "core/drills/FingerTable.h"
#include "core/drills/KeyDrillSession.h"
#include "core/drills/KeyLessonPlace.h"
#include "ui/drills/TypingDrill.h"

class DlgEn_KeyLesson;
class HandsPicture;
class KeyCapRow;

/// The drill for single keys: the group to type as a row of key caps, the key to press lit on an on-screen
/// keyboard and the finger to use on a picture of the hands. The drills derived from it differ in their
/// keyboard, their fingers and in what they store.
class KeyCapDrill : public TypingDrill
{
    Q_OBJECT

public:
    /// Loads a lesson file and shows its title. False when it is missing, which changes nothing, or has no
    /// group: then what is left of the group at hand can still be typed.
    bool InitKeyData(const QString &fileName);

protected:
    KeyCapDrill(const DrillFacts &facts, const KeyLessonSettings &settings, Navigator &navigator,
                QWidget *owner);

    void InitLayout() override;
    void LoadTrainData() override;
    void RestartLesson() override;
    DrillCounts Counts() const override;
    void SelectLesson() override;
    bool CanType() const override;
    void TypeCharacter(char32_t typed, bool accepted) override;
    void OnKeyChecked(bool right) override;
    QRect TypingArea() const override;

    struct FingerHint
    {
        FingerStrip strip;
        QString name;
    };
    virtual FingerHint HintFor(char32_t character) const = 0;
    /// A character for which the on-screen keyboard has a key; any other has no prompt there.
    virtual bool HasPromptKey(char32_t) const { return true; }
    virtual void FillLessonList(DlgEn_KeyLesson &dialog) const = 0;

    void PlaceHands(const QPoint &position, int baseOffset);

    KeyDrillSession &Session() { return m_session; }
    const KeyDrillSession &Session() const { return m_session; }
    /// The lesson, the place in it and the sound mode, as they are to be stored.
    KeyLessonPlace Place() const;

private:
    void ShowGroup();
    void ShowPromptCursor();
    void ShowNext(char32_t typed);
    void ShowPrompt();

    const KeyLessonSettings m_settings;
    KeyDrillSession m_session;
    QString m_lessonFile;

    KeyCapRow *m_capRow;
    HandsPicture *picActivateFinger;
};
