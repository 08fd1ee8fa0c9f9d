#pragma once

#include "ui/shell/Navigator.h"

#include <QObject>
#include <QPointer>

class Frm_Main;

/// Makes the windows and shows them; also gives F1 to the help wherever it is pressed.
class AppNavigator : public QObject, public Navigator
{
    Q_OBJECT

public:
    explicit AppNavigator(QObject *parent = nullptr);

    void SetMainWindow(Frm_Main *window);
    /// A second copy was started: shows this one, with its open dialog on top.
    void ComeForward();

    void OpenDrill(DrillKind kind, QWidget *instead = nullptr) override;
    void OpenSpeedTest(QWidget *instead = nullptr) override;
    void OpenFreeTyping(QWidget *instead = nullptr) override;
    void ShowTopList(QWidget *owner) override;
    bool OpenPersonalRecords() override;
    void OfferPlacementTest() override;
    void ShowMainMenu() override;
    void MinimizeAll() override;
    void ShowHelp(QWidget *from) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// Only one drill or test is open at a time: brings another one that is open to the front instead.
    bool IsBusy(const QWidget *instead);
    template <typename Window, typename Show>
    void OpenPractice(QWidget *instead, Show show);
    void PassFocusToPractice();

    QPointer<Frm_Main> m_main;
    QPointer<QWidget> m_practice;
};
