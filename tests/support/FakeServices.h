#pragma once

#include "platform/Clock.h"
#include "platform/Services.h"
#include "platform/SoundPlayer.h"

#include <QFileInfo>
#include <QStringList>
#include <functional>
#include <utility>

/// A clock that stands still until a test moves it.
class FakeClock final : public Clock
{
public:
    double Now() const override { return m_now; }
    QDate Today() const override { return today; }
    void Move(double seconds) { m_now += seconds; }

    QDate today{2024, 2, 29};

private:
    double m_now = 1000;
};

/// Writes down the names of the files that it was asked to play.
class RecordingSound final : public SoundPlayer
{
public:
    void Play(const QString &nativePath, bool wait) override
    {
        played += QFileInfo(nativePath).fileName();
        lastPath = nativePath;
        lastWaited = wait;
        if (whenPlayed)
            whenPlayed();
    }

    QStringList TakePlayed() { return std::exchange(played, {}); }

    std::function<void()> whenPlayed;
    QStringList played;
    QString lastPath;
    bool lastWaited = false;
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
