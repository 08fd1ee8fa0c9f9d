#pragma once

#include "core/drills/DrillLayout.h"
#include "ui/shell/Navigator.h"

#include <QBasicTimer>
#include <QDialog>
#include <QList>
#include <memory>

class CoveredWindow;
class ProgressBox;
class QLabel;
class QTimer;
class SkinButton;

/// What every drill and test has around its lesson: a window that covers the screen, with title, system
/// buttons, lesson caption, status panel, hint and the timer that keeps the status up to date. Buttons take
/// no focus: every key belongs to the lesson, but those that are struck with Alt, which press the buttons.
class PracticeWindow : public QDialog
{
    Q_OBJECT

public:
    ~PracticeWindow() override;
    void reject() override;

protected:
    struct Names
    {
        QString window;
        QString timer;
        QString hint;
    };
    /// `title` without the program's name.
    PracticeWindow(const Names &names, const QString &title, Navigator &navigator, QWidget *owner);

    /// Finds the layout of the screen; to be called before anything is placed.
    void FindLayout();
    /// Places the system buttons and the status row, whose plate begins at these lines below the origin.
    void PlaceFrame(int narrowPanelTop, int widePanelTop);
    /// Covers the screen and takes the keyboard.
    void ShowOverScreen();

    QLabel *AddLabel(const QString &objectName, const QString &name);
    /// `name` with an "&" before the letter that presses it together with Alt.
    SkinButton *AddButton(const QString &objectName, const QString &name, const QString &bitmap);
    void SetTitle(const QString &title);
    void ShowLessonTitle(const QString &title);
    void ShowHint(const QString &text);
    void MinimizeProgram();
    /// Paints all anew after SkinKind has changed.
    void RepaintGround();

    /// The kind of PaintDrillWindow.
    virtual int SkinKind() const = 0;
    /// Every half second while the timer runs.
    virtual void OnTimer() = 0;
    virtual void OnMinimize() { MinimizeProgram(); }

    const DrillLayout &Layout() const { return m_layout; }
    int AreaWidth() const;
    Navigator &Leader() { return m_navigator; }

    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    bool focusNextPrevChild(bool) override { return false; }

    QTimer *StatusTimer;
    QLabel *labLessonMsg;
    QLabel *labTime;
    QLabel *labSpeed;
    QLabel *labVeracity;
    QLabel *labHint; ///< called as the window says
    ProgressBox *picProgress;
    SkinButton *BtnReturn;

private:
    void PlaceStatusIcons();

    Navigator &m_navigator;
    DrillLayout m_layout;
    QList<QPoint> m_anchors; ///< of the pictures that PaintDrillWindow puts down
    QString m_title;
    std::unique_ptr<CoveredWindow> m_menu; ///< which lies below this window
    QBasicTimer m_groundTimer; ///< runs out when the window's pictures have not been needed for a while

    SkinButton *BtnHelp;
    SkinButton *btnMiniMize;
    SkinButton *BtnClose;
};
