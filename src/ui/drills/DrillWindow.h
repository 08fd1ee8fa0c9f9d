#pragma once

#include "core/drills/DrillClock.h"
#include "ui/shell/PracticeWindow.h"

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

/// The frame of all drills: to what every practice window has it adds the tab strip, the clock, the question
/// at a lesson's end and the rules for leaving. A drill supplies its own part through the hooks.
///
/// However the drill is left (button, tab, Alt+F4, the window manager, the end of the program) its data are
/// stored once, before the next window opens.
class DrillWindow : public PracticeWindow
{
    Q_OBJECT

public:
    /// Lays the window out, shows it and loads the lesson.
    void ShowDrill();

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

    /// A button of the row above the lesson, at these columns right of the origin.
    SkinButton *AddRowButton(const QString &objectName, const QString &name, const QString &bitmap,
                             int narrowLeft, int wideLeft);
    void LeaveFor(DrillKind kind);
    void OnSelectLesson();
    void OnSetting();

    int SkinKind() const override { return m_facts.skinKind; }
    void OnTimer() override { UpdateStatus(false); }
    void OnMinimize() override;

    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void PlaceTabs();
    void StoreOnce();
    void OnActivated();

    const DrillFacts m_facts;
    DrillClock m_clock;
    bool m_stored = false;
    bool m_activated = false;
};
