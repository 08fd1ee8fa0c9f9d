#pragma once

#include <QPoint>
#include <QWidget>

class Navigator;
class QLabel;
class QToolButton;
class SkinButton;

/// The first and the last window: the full-screen menu. Closing it ends the program.
class Frm_Main : public QWidget
{
    Q_OBJECT

public:
    explicit Frm_Main(Navigator &navigator);

    /// Shows the menu over the whole screen.
    void ShowMenu();
    /// Saves the leaving user's sound switches, asks who types, loads that user's settings.
    void UserLogin();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    struct MenuEntry;

    void LayoutMainMenu();
    void PaintMainBackground(QPainter &painter, const QRect &exposed) const;
    void ShowSystemMenu();
    void ShowUser();
    /// Asks who types where nobody is logged in or that user's folder is gone; false when still nobody is.
    bool EnsureUser();
    void SayOnceIfReadOnly();

    Navigator &m_navigator;
    QPoint m_backgroundOrigin;
    bool m_userHadFolder = true; ///< at login; a folder that goes later is a deleted user's
    bool m_saidReadOnly = false;

    QLabel *Lab_User;
    QToolButton *Img_Sys_Menu;
    SkinButton *XBtnEnglish;
    SkinButton *XBtnTest;
    SkinButton *XBtnJiaocheng;
    SkinButton *XBtnGameMissile;
    SkinButton *XBtnGameRabbit;
    SkinButton *XBtn_Gerenjilu;
    SkinButton *XBtn_Tuichudenglu;
    SkinButton *XBtn_Sys_Help;
    SkinButton *XBtn_Sys_Min;
    SkinButton *XBtn_Sys_Close;
};
