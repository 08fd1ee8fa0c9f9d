#pragma once

#include "ui/shell/PracticeWindow.h"
#include "ui/speedtest/TestPage.h"

#include <functional>
#include <memory>

class TabRegion;
class TypingBox;
class TypingSession;

/// The frame of the speed test and of free typing: to what every practice window has it adds the pages of
/// lines, the typing box, the states of a test, its buttons and the tabs of the three sources. The windows
/// supply what is shown of their engine.
///
/// However a test that runs is left, it is stored once.
class TestWindow : public PracticeWindow
{
    Q_OBJECT

public:
    ~TestWindow() override;

    /// Lays the window out, shows it and makes it ready for the first key.
    void ShowTest();

protected:
    enum class TestState {
        Idle,  ///< typing is ignored
        Ready, ///< the first typed unit starts the test
        Running,
        Paused,    ///< the next typed unit goes on
        WaitEnter, ///< the line is complete, Enter moves on
        WaitSpace
    };
    enum class Source { Screen = 0, Printed = 1, Simultaneous = 2 };

    TestWindow(const QString &objectName, Navigator &navigator, std::unique_ptr<TypingSession> engine,
               QWidget *owner);

    /// Gets the text and calls MakeReady; the layout stands already.
    virtual void Load() = 0;
    virtual TestLayout::DisplayMode Mode() const = 0;
    /// Fills the boxes of a row with a line of the engine, which may have none of that number.
    virtual void FillRow(int row, int line) = 0;
    /// Shows the unit that was typed last, in its colour; true when it was wrong.
    virtual bool ShowTyped(int row) = 0;
    /// The unit at the current position was taken back.
    virtual void ShowTakenBack(int row) = 0;
    virtual bool IsLineComplete() const = 0;
    /// Time and speed are shown already.
    virtual void ShowFigures() {}
    virtual bool IsOverTime() const { return false; }
    virtual void OnTab(Source source) = 0;
    virtual void SelectLesson() = 0;
    virtual void ChangeSettings() = 0;

    TypingSession &Engine() { return *m_engine; }
    const TypingSession &Engine() const { return *m_engine; }
    static Source CurrentSource();
    /// "Screen Text", "Printed Text" or "Simultaneous Input".
    static QString GetModeName();
    /// Title and lit tab of the current source.
    void ShowSource();
    void BuildPage();
    void DrawPage();
    /// State Ready at the engine's first line.
    void MakeReady();
    void UpdateStatus();
    void FinishTest();
    /// Ends the test without a result; one that runs is stored like a finished one.
    void AbortTest();
    void PauseTest();
    /// A running test's line-break rule has changed.
    void ApplyNewLine();
    /// Closed under an open dialog, a window outlives its engine: nothing of a test may be touched any more.
    bool IsClosed() const { return !m_engine; }
    bool IsTestRunning() const { return m_nTestState > TestState::Ready; }
    TestPage &Page() { return m_page; }
    const TestPage &Page() const { return m_page; }
    void SetKeySound(bool on);
    bool IsKeySoundOn() const;
    void FocusTypingBox();
    /// Lets `open` show the window that takes this one's place, and that closes this one.
    void GiveWayTo(const std::function<void()> &open);

    int SkinKind() const override;
    void OnTimer() override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void PlaceControls();
    void PlaceTabs();
    void EnablePrintedButtons(bool running);
    void SetState(TestState state);

    void OnTyped(const QString &unit);
    void OnKeyPressed();
    void OnBackspace();
    void OnEnter();
    void OnSpace();
    void OnSave();
    void OnScore();
    void Judge(const QString &unit);
    void StartTest();
    void ResumeTest();
    void StopTimer();
    void CountTick();
    void EndLine();
    /// Goes on to the next line; ends the test after the last.
    void NextLine();
    void FollowEngine();
    void ShowPosition();

    std::unique_ptr<TypingSession> m_engine;
    TestState m_nTestState = TestState::Idle;
    TestState m_nSavedState = TestState::Idle;
    int m_nPage = 1;
    int m_nRow = 1;
    int m_nTicks = 0;
    bool m_replaced = false;
    TestPage m_page;

    TypingBox *rtfCursor;
    std::array<TabRegion *, 3> m_tabs{};
    SkinButton *BtnPause;
    SkinButton *BtnOver;
    SkinButton *BtnStop;
    SkinButton *BtnSave;
    SkinButton *BtnScore;
    SkinButton *BtnSetting;
    SkinButton *BtnSelectLesson;
};
