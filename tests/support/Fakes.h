#pragma once

#include "platform/ProgramLauncher.h"
#include "support/FakeServices.h"
#include "ui/shell/Navigator.h"
#include "ui/shell/ShowMessage.h"

#include <QPointer>
#include <QStringList>
#include <QWidget>

/// Writes down where it was asked to lead, and closes the window that another takes the place of.
class FakeNavigator final : public Navigator
{
public:
    void OpenDrill(DrillKind kind, QWidget *instead) override
    {
        opened += kind;
        if (instead)
            instead->close();
    }
    void OpenSpeedTest(QWidget *instead) override { Lead(QStringLiteral("speed test"), instead); }
    void OpenFreeTyping(QWidget *instead) override { Lead(QStringLiteral("free typing"), instead); }
    void ShowTopList(QWidget *) override { tests += QStringLiteral("top list"); }
    bool OpenPersonalRecords() override { return retest; }
    void OfferPlacementTest() override { ++placementTests; }
    void ShowMainMenu() override { ++menuShown; }
    void MinimizeAll() override { ++minimized; }
    void ShowHelp(QWidget *from) override { helpPages += from->objectName(); }

    QList<DrillKind> opened;
    bool retest = false; ///< what the personal records are left with
    int placementTests = 0;
    int menuShown = 0;
    int minimized = 0;
    QStringList helpPages;
    QStringList tests; ///< speed tests and the top list

private:
    void Lead(const QString &where, QWidget *instead)
    {
        tests += where;
        if (instead)
            instead->close();
    }
};

/// Notes which program it was asked to start.
class FakeLauncher final : public ProgramLauncher
{
public:
    bool Start(const QString &nativePath) override
    {
        asked = nativePath;
        return succeeds;
    }

    QString asked;
    bool succeeds = true;
};

/// Answers messages and keeps their texts, as long as the object lives.
class FakeAnswers
{
public:
    FakeAnswers()
    {
        Public_Function::SetMessageAnswerer([this](const Public_Function::Message &message) {
            texts += message.text;
            return answer;
        });
    }
    ~FakeAnswers() { Public_Function::SetMessageAnswerer({}); }
    Q_DISABLE_COPY_MOVE(FakeAnswers)

    QStringList texts;
    qint16 answer = Public_Function::MessageYes;
};
