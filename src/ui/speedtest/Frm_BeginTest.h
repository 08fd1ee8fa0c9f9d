#pragma once

#include "core/drills/DrillClock.h"
#include "core/speedtest/PlacementSession.h"
#include "ui/drills/ArticlePage.h"
#include "ui/shell/PracticeWindow.h"

class TypingBox;

/// The placement test: a text taken at random is typed, and what to practise is suggested. It stores nothing.
class Frm_BeginTest final : public PracticeWindow
{
    Q_OBJECT

public:
    Frm_BeginTest(Navigator &navigator, QWidget *owner);
    ~Frm_BeginTest() override;

    /// Lays the window out, shows it and starts.
    void ShowTest(bool bEnglish);
    /// Takes another text of the language. Without any a message says so and the window closes.
    void BeforeHandTest_Start(bool bEnglish);

protected:
    int SkinKind() const override;
    void OnTimer() override { UpdateStatus(); }
    void OnMinimize() override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    bool LoadText();
    void TypeCharacter(char32_t typed);
    void Pause();
    void Resume();
    void UpdateStatus();
    void ShowTypingPlace();
    void Finish();
    void Accept(int level);

    bool m_bEnglish = true;
    bool m_sound = false;
    bool m_paused = false;
    bool m_finished = false;
    bool m_replaced = false;
    int m_speed = 0;
    int m_rate = 0;
    PlacementSession m_session;
    DrillClock m_clock;
    ArticlePage m_page;
    TypingBox *m_typingBox;
    SkinButton *XBtn_Finish;
};
