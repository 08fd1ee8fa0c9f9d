#pragma once

class QWidget;

/// The drills among which the tab strip and the switch buttons lead.
enum class DrillKind { KeyJunior, KeySenior, Word, Article, Numpad };

/// Makes and shows the program's windows. Windows know only this, never one another.
class Navigator
{
public:
    virtual ~Navigator() = default;

    /// Opens a drill over the main window and closes `instead`, if any, once the new one is shown.
    virtual void OpenDrill(DrillKind kind, QWidget *instead = nullptr) = 0;
    /// Opens the speed test of the shared `TestSource`; the rest as for a drill.
    virtual void OpenSpeedTest(QWidget *instead = nullptr) = 0;
    virtual void OpenFreeTyping(QWidget *instead = nullptr) = 0;
    /// Shows the fastest tests of all users over `owner` until it is closed.
    virtual void ShowTopList(QWidget *owner) = 0;
    /// Shows the user's records over the main window until they are closed. True when the user asked there
    /// for a new placement test, which is to be offered then.
    virtual bool OpenPersonalRecords() = 0;
    /// Asks whether to take the placement test, and opens it when the answer is yes.
    virtual void OfferPlacementTest() = 0;
    /// Brings the main window to the front.
    virtual void ShowMainMenu() = 0;
    /// Minimises the main window and, with it, every window that it owns.
    virtual void MinimizeAll() = 0;
    /// Opens the help at the page of the window `from`, which is called like its `objectName`.
    virtual void ShowHelp(QWidget *from) = 0;
};
