#pragma once

#include "platform/Clock.h"
#include "platform/Services.h"
#include "platform/SoundPlayer.h"
#include "ui/shell/Navigator.h"
#include "ui/shell/ShowMessage.h"

#include <QFileInfo>
#include <QPointer>
#include <QStringList>
#include <QWidget>

/// A clock that stands still until a test moves it.
class FakeClock final : public Clock
{
public:
    double Now() const override { return m_now; }
    QDate Today() const override { return QDate(2024, 2, 29); }
    void Move(double seconds) { m_now += seconds; }

private:
    double m_now = 1000;
};

/// Writes down the names of the files that it was asked to play.
class RecordingSound final : public SoundPlayer
{
public:
    void Play(const QString &nativePath, bool) override { played += QFileInfo(nativePath).fileName(); }

    QStringList TakePlayed() { return std::exchange(played, {}); }

    QStringList played;
};

/// The fake clock and the recording player in place of the machine's, as long as the object lives.
class FakeServices
{
public:
    FakeServices()
        : m_before(PlatformServices())
    {
        PlatformServices().clock = &clock;
        PlatformServices().sound = &sound;
        PlatformServices().random.seed(7);
    }
    ~FakeServices() { PlatformServices() = m_before; }
    Q_DISABLE_COPY_MOVE(FakeServices)

    FakeClock clock;
    RecordingSound sound;

private:
    Services m_before;
};

/// Writes down where it was asked to lead, and closes the window that another takes the place of.
class FakeNavigator final : public Navigator
{
public:
    bool CanOpenDrill(DrillKind) override { return drillsExist; }
    void OpenDrill(DrillKind kind, QWidget *instead) override
    {
        opened += kind;
        if (instead)
            instead->close();
    }
    bool OpenSpeedTest() override { return false; }
    bool OpenPersonalRecords() override { return false; }
    void ShowMainMenu() override { ++menuShown; }
    void MinimizeAll() override { ++minimized; }
    void ShowHelp(QWidget *from) override { helpPages += from->objectName(); }

    bool drillsExist = true;
    QList<DrillKind> opened;
    int menuShown = 0;
    int minimized = 0;
    QStringList helpPages;
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
