#pragma once

#include "core/drills/DrillClock.h"
#include "core/drills/DrillLayout.h"
#include "ui/shell/Navigator.h"

#include <QDialog>
#include <QList>

class ProgressBox;
class QLabel;
class QTimer;
class SkinButton;

/// What tells one drill's frame from another's.
struct DrillFacts
{
    QString objectName;
    QString title;      ///< without the program's name
    int tab;            ///< its own tab, 0 to 3
    int skinKind;       ///< of its background, see PaintDrillWindow
    int narrowPanelTop; ///< from the origin to the status row, in LayoutMode::Narrow
    int widePanelTop;
};

/// What the status panel is worked out from.
struct DrillCounts
{
    int itemIndex = 0;
    int itemCount = 0;
    int totalKeys = 0;
    int correctKeys = 0;
    int units = 0; ///< what the speed counts
    bool unitsAreKeys = true;
};

/// The frame of all drills: a window that covers the screen, with the tab strip, the status panel, the
/// buttons, the clock, the question at a lesson's end and the rules for leaving. A drill supplies its own
/// part through the hooks. Buttons take no focus: every key belongs to the drill.
///
/// However the drill is left (button, tab, Alt+F4, the window manager, the end of the program) its data are
/// stored once, before the next window opens.
class DrillWindow : public QDialog
{
    Q_OBJECT

public:
    /// Lays the window out, shows it and loads the lesson.
    void ShowDrill();

    void reject() override;

protected:
    DrillWindow(const DrillFacts &facts, Navigator &navigator, QWidget *owner);

    /// Places the controls of the frame; a drill places its own after these. Not called in LayoutMode::None.
    virtual void InitLayout();
    virtual void LoadTrainData() = 0;
    virtual void RestartLesson() = 0;
    virtual void SaveTrainData() = 0;
    virtual DrillCounts Counts() const = 0;
    virtual void UpdateStatus(bool reset);
    /// Shows the lesson dialog and takes the lesson that was chosen. The clock is paused already.
    virtual void SelectLesson() = 0;
    /// Shows the settings dialog. The clock is paused already.
    virtual void ChangeSettings() {}
    virtual QString CompletionQuestion() const;
    /// Every key press but Alt+F4 and F1.
    virtual void DrillKeyDown(QKeyEvent *event) = 0;
    virtual void DrillKeyUp(QKeyEvent *event) = 0;
    /// The keys that are down will be released where this window does not see it.
    virtual void ForgetKeys() {}

    /// Starts or resumes the clock.
    void StartClock();
    void PauseClock();
    DrillClock &Watch() { return m_clock; }
    void CompleteLesson();
    /// Tells that the lesson cannot be used, after the window has been shown.
    void ReportLoadFailure(const QString &text);
    void ShowLessonTitle(const QString &title);
    void ShowHint(const QString &text);

    /// A button of the row above the lesson, at these columns right of the origin.
    SkinButton *AddRowButton(const QString &objectName, const QString &name, const QString &bitmap,
                             int narrowLeft, int wideLeft);
    void LeaveFor(DrillKind kind);
    void OnSelectLesson();
    void OnSetting();

    const DrillLayout &Layout() const { return m_layout; }
    int AreaWidth() const;

    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool focusNextPrevChild(bool) override { return false; }

private:
    QLabel *AddLabel(const QString &objectName, const QString &name);
    SkinButton *AddButton(const QString &objectName, const QString &name, const QString &bitmap);
    void PlaceButtons();
    void PlaceLabels();
    void PlaceStatusIcons();
    void PlaceTabs();
    void StoreOnce();
    void OnActivated();

    const DrillFacts m_facts;
    Navigator &m_navigator;
    DrillLayout m_layout;
    QList<QPoint> m_anchors; ///< of the pictures that PaintDrillWindow puts down
    QString m_title;
    DrillClock m_clock;
    bool m_stored = false;
    bool m_activated = false;

    QTimer *Timer1;
    SkinButton *BtnHelp;
    SkinButton *btnMiniMize;
    SkinButton *BtnClose;
    SkinButton *BtnReturn;
    QLabel *labLessonMsg;
    QLabel *labTime;
    QLabel *labSpeed;
    QLabel *labVeracity;
    QLabel *labPromptMsg;
    ProgressBox *picProgress;
};
