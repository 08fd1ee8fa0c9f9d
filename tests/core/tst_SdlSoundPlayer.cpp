#include "platform/SdlAudioOutput.h"
#include "platform/SdlSoundPlayer.h"
#include "support/HandDrivenOutput.h"
#include "support/TestInstall.h"
#include "support/WaveBytes.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Samples = AudioOutput::Samples;

class tst_SdlSoundPlayer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        constexpr std::chrono::minutes never{10};
        m_limits = {never, never, never, never, never, {}};
        m_output = std::make_shared<HandDrivenOutput>();
    }

    void newSoundTakesOver()
    {
        SdlSoundPlayer player(m_output, m_limits);
        QCOMPARE(m_output->tries, 0);
        player.Play(Sound(1000, 100'000), false);
        QTRY_COMPARE(Heard(), QList{1000});
        player.Play(Sound(-2000, 5000), false);
        QTRY_VERIFY(Heard().contains(-2000));
        for (int n = 0; n < 100; ++n)
            m_output->Listen();
        const Samples heard = m_output->Listen();

        // From the old one's level down to silence without a jump, then the new one alone and whole.
        const auto old = std::ranges::find(heard, 1000);
        const auto fade = std::find_if(old, heard.end(), [](qint16 sample) { return sample < 1000; });
        const auto rest = fade + 64;
        QVERIFY(std::is_sorted(fade, rest, std::greater<>()) && *fade > 900 && *(rest - 1) == 0);
        QCOMPARE(std::count(rest, rest + 5000, -2000), 5000);
        QCOMPARE(std::count(rest + 5000, heard.end(), 0), heard.end() - rest - 5000);
    }

    void unreadableFileIsSilence()
    {
        QFile large(m_install.Native(u"large.wav"_s));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize((8 << 20) + 1));
        SdlSoundPlayer player(m_output, m_limits);
        for (const QString &path : {large.fileName(), m_install.Native(u"none.wav"_s), QString(),
                                    m_install.Native({}), u"/dev/zero"_s, Sound(1, 0)})
            player.Play(path, true); // comes back, for there is nothing to wait for
        player.Play(Sound(700, 100), false);
        QTRY_COMPARE(Heard(), QList{700});
    }

    void slowDevicePlaysTheLastSoundOnly()
    {
        m_output->stuck = true;
        SdlSoundPlayer player(m_output, m_limits);
        player.Play(Sound(1, 100), false);
        QTRY_COMPARE(m_output->tries, 1);
        player.Play(Sound(2, 100), false);
        player.Play(Sound(3, 100), false);
        m_output->letGo.release();
        QTRY_COMPARE(Heard(), QList{3});
    }

    void lateSoundIsLeftOut()
    {
        m_output->stuck = true;
        m_limits.freshness = {};
        SdlSoundPlayer player(m_output, m_limits);
        player.Play(Sound(1000, 100), true); // nobody waits for a device that hangs either
        QTRY_COMPARE(m_output->tries, 1);
        m_output->letGo.release();
        player.WarmUp(); // asks the device again, after that sound
        QTRY_COMPARE(m_output->asked, 1);
        QCOMPARE(Heard(), QList<int>());
    }

    void stuckDeviceDoesNotHoldTheProgram()
    {
        m_output->stuck = true;
        m_limits.exit = std::chrono::milliseconds(1);
        std::weak_ptr<HandDrivenOutput> kept = m_output;
        {
            SdlSoundPlayer player(m_output, m_limits);
            player.Play(Sound(1, 100), false);
            QTRY_COMPARE(m_output->tries, 1);
        }
        HandDrivenOutput &output = *m_output;
        m_output.reset();
        QVERIFY(!kept.expired()); // the player has gone, its worker is still in there
        output.letGo.release();
        QTRY_VERIFY(kept.expired());
    }

    void closesAfterSilenceAndOpensAgain()
    {
        m_limits.silence = std::chrono::milliseconds(1);
        SdlSoundPlayer player(m_output, m_limits);
        player.WarmUp();
        for (int round = 1; round <= 3; ++round) {
            QTRY_COMPARE(m_output->closed, round);
            player.Play(Sound(5000, 100), false);
            QTRY_COMPARE(Heard().size(), round);
        }
    }

    void lostDeviceIsOpenedAgain()
    {
        SdlSoundPlayer player(m_output, m_limits);
        player.WarmUp();
        QTRY_COMPARE(m_output->tries, 1);
        m_output->lost = true;
        player.Play(Sound(2000, 100), false);
        QTRY_COMPARE(Heard(), QList{2000});
        QCOMPARE(m_output->tries, 2);
    }

    void machineWithoutSoundIsNotAskedAtEveryKey()
    {
        m_output->broken = true;
        SdlSoundPlayer player(m_output, m_limits);
        for (int n = 0; n < 5; ++n)
            player.Play(Sound(1, 100), true);
        QCOMPARE(m_output->tries, 1);
    }

    void drivesSdl()
    {
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", QFile::encodeName(m_install.Native(u"heard.raw"_s)));
        qputenv("SDL_DISKAUDIODELAY", "1");
        const auto heard = [this] {
            const QByteArray bytes = m_install.Read(u"heard.raw"_s);
            const auto *const first = reinterpret_cast<const qint16 *>(bytes.constData());
            return Samples(first, first + bytes.size() / 2);
        };
        const QString first = m_install.Write(u"1.wav"_s, MakeWaveBytes(Samples(30 * 44100, 1000), 44100));
        const QString second = m_install.Write(u"2.wav"_s, MakeWaveBytes(Samples(5000, -2000), 44100));
        {
            SdlSoundPlayer player(std::make_shared<SdlAudioOutput>(), m_limits);
            player.Play(first, false);
            QTRY_VERIFY(Stretches(heard()).contains(1000));
            player.Play(second, true);
        }
        const Samples all = heard();
        QCOMPARE(Stretches(all), (QList{1000, -2000}));
        QCOMPARE(std::count(all.begin(), all.end(), -2000), 5000);
    }

    void decodes()
    {
        const Samples second(44100, 8000);
        const QList<std::pair<QByteArray, int>> waves{
            {MakeWaveBytes(second, 44100), 44100},
            {MakeWaveBytes(second, 22050), 88200},
            {MakeWaveBytes(second, 44100, 2), 22050},
            {MakeWaveBytes(std::vector<quint8>(8000, 159), 8000), 44100},
            {MakeWaveBytes(std::vector<quint8>(2000 * 90, 159), 2000), 60 * 44100}, // no longer than a minute
            {MakeWaveBytes(Samples(), 44100), 0},
            {MakeWaveBytes(second, 0), 0},
            {MakeWaveBytes(second, 1'000'000'000), 0},
            {MakeWaveBytes(second, 44100, 100), 0},
            {"this is no sound at all, but a text that somebody renamed", 0}};
        for (const auto &[wave, length] : waves) {
            const Samples samples = SdlAudioOutput().Decode(wave);
            QVERIFY2(std::abs(static_cast<int>(samples.size()) - length) <= length / 1000,
                     wave.first(44).toHex());
            QVERIFY(length == 0 || std::abs(samples[samples.size() / 2] - 8000) < 300);
        }
    }

    void damagedFilesDoNoHarm()
    {
        const QByteArray whole = MakeWaveBytes(Samples(400, 8000), 22050);
        for (int n = 0; n < 44; ++n) {
            QVERIFY(SdlAudioOutput().Decode(whole.first(n)).empty());
            for (const char byte : {'\0', '\1', '\x7F', '\xFF'})
                QVERIFY(SdlAudioOutput().Decode(QByteArray(whole).replace(n, 1, {&byte, 1})).size() <=
                        60 * 44100);
        }
    }

private:
    QList<int> Heard() { return Stretches(m_output->Listen()); }

    /// A sound file of the hand-driven output, named after the value of all its samples.
    QString Sound(int value, int length) const
    {
        return m_install.Write(QString::number(value),
                               QByteArray::number(value) + ' ' + QByteArray::number(length));
    }

    TestInstall m_install;
    SdlSoundPlayer::Limits m_limits;
    std::shared_ptr<HandDrivenOutput> m_output;
};

QTEST_GUILESS_MAIN(tst_SdlSoundPlayer)
#include "tst_SdlSoundPlayer.moc"
