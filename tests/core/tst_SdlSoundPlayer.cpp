#include "platform/SdlAudioOutput.h"
#include "platform/SdlSoundPlayer.h"
#include "support/WaveBytes.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <atomic>
#include <mutex>
#include <random>
#include <semaphore>

using namespace Qt::Literals::StringLiterals;
using Samples = AudioOutput::Samples;

namespace {

/// A device whose sound the test draws by hand, and which can be made as bad as devices are. A "wave file"
/// for it is nothing but samples.
class HandDrivenOutput final : public AudioOutput
{
public:
    bool Open(const Source &source) override
    {
        ++tries;
        if (stuck)
            letGo.acquire();
        if (broken)
            return false;
        const std::lock_guard lock(m_mutex);
        m_source = source;
        lost = false;
        ++opened;
        return true;
    }
    void Close() override
    {
        const std::lock_guard lock(m_mutex);
        m_source = nullptr;
        ++closed;
    }
    bool IsLost() override
    {
        ++asked;
        return lost;
    }
    Samples Decode(const QByteArray &wave) override
    {
        Samples samples(static_cast<std::size_t>(wave.size()) / 2);
        std::copy_n(wave.constData(), 2 * samples.size(), reinterpret_cast<char *>(samples.data()));
        return samples;
    }

    void Advance()
    {
        const std::lock_guard lock(m_mutex);
        if (m_source) {
            Samples next(64, 12345);
            m_source(next);
            m_heard.insert(m_heard.end(), next.begin(), next.end());
        }
    }

    /// All that was heard so far, and a bit more.
    Samples Listen()
    {
        Advance();
        const std::lock_guard lock(m_mutex);
        return m_heard;
    }

    std::atomic<int> tries = 0;
    std::atomic<int> opened = 0;
    std::atomic<int> closed = 0;
    std::atomic<int> asked = 0; ///< once for every sound, while open
    std::atomic<bool> stuck = false;
    std::atomic<bool> broken = false;
    std::atomic<bool> lost = false;
    std::binary_semaphore letGo{0};

private:
    std::mutex m_mutex;
    Source m_source;
    Samples m_heard;
};

/// The values of long equal stretches, in order: the sounds heard, without silence and the short fade between
/// two.
QList<int> Stretches(const Samples &samples)
{
    QList<int> values;
    std::size_t length = 0;
    for (std::size_t n = 0; n < samples.size(); ++n) {
        length = n > 0 && samples[n] == samples[n - 1] ? length + 1 : 1;
        if (length == 8 && samples[n] != 0)
            values.append(samples[n]);
    }
    return values;
}

SdlSoundPlayer::Limits PatientLimits()
{
    constexpr std::chrono::minutes never{10};
    return {
        .freshness = never, .silence = never, .retry = never, .overrun = never, .exit = never, .store = {}};
}

} // namespace

class tst_SdlSoundPlayer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_output = std::make_shared<HandDrivenOutput>(); }

    void newSoundTakesOver()
    {
        SdlSoundPlayer player(m_output, PatientLimits());
        QCOMPARE(m_output->tries, 0);
        player.Play(Sound(1000, 100'000), false);
        QTRY_COMPARE(Heard(), QList{1000});
        PlayToTheEnd(player, Sound(-2000, 300));
        const Samples heard = m_output->Listen();

        // From the old one's level down to silence without a jump, then the new one alone and whole.
        const auto old = std::ranges::find(heard, 1000);
        const auto fade = std::find_if(old, heard.end(), [](qint16 sample) { return sample < 1000; });
        const auto rest = fade + 64;
        QVERIFY(std::is_sorted(fade, rest, std::greater<>()) && *fade > 900 && *(rest - 1) == 0);
        QCOMPARE(std::count(rest, rest + 300, -2000), 300);
        QCOMPARE(std::count(rest + 300, heard.end(), 0), heard.end() - rest - 300);
    }

    void unreadableFileIsSilence_data()
    {
        QTest::addColumn<QString>("path");
        const QString large = m_folder.filePath(u"large.wav"_s);
        QFile file(large);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize((8 << 20) + 1));
        QTest::newRow("missing") << m_folder.filePath(u"missing.wav"_s);
        QTest::newRow("no name") << QString();
        QTest::newRow("folder") << m_folder.path();
        QTest::newRow("endless device") << u"/dev/zero"_s;
        QTest::newRow("empty") << Sound(1, 0);
        QTest::newRow("far too large") << large;
    }

    void unreadableFileIsSilence()
    {
        QFETCH(QString, path);
        SdlSoundPlayer player(m_output, PatientLimits());
        player.Play(path, true); // comes back, for there is nothing to wait for
        QCOMPARE(Heard(), QList<int>{});
        player.Play(Sound(700, 100), false);
        QTRY_COMPARE(Heard(), QList{700});
    }

    void replacedFileIsReadAnew()
    {
        SdlSoundPlayer player(m_output, PatientLimits());
        for (const qint16 value : {qint16{1000}, qint16{2000}, qint16{1500}}) {
            player.Play(Write(u"same.raw"_s, Constant(value, value)), false);
            QTRY_COMPARE(LastHeard(), value);
        }
    }

    void smallMemoryStillPlaysEverything()
    {
        SdlSoundPlayer::Limits limits = PatientLimits();
        limits.store.memory = 1000;
        SdlSoundPlayer player(m_output, limits);
        const QList<QString> sounds{Sound(1000, 300), Sound(2000, 300), Sound(3000, 5000)};
        for (const int n : {0, 1, 2, 0, 2, 1}) {
            player.Play(sounds.at(n), false);
            QTRY_COMPARE(LastHeard(), 1000 * (n + 1));
        }
    }

    void slowDevicePlaysTheLastSoundOnly()
    {
        m_output->stuck = true;
        SdlSoundPlayer player(m_output, PatientLimits());
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
        SdlSoundPlayer::Limits limits = PatientLimits();
        limits.freshness = std::chrono::milliseconds(0);
        SdlSoundPlayer player(m_output, limits);
        player.Play(Sound(1000, 100), true); // nobody waits for a device that hangs either
        m_output->letGo.release();
        QTRY_COMPARE(m_output->opened, 1);
        player.Play(QString(), false);
        QTRY_COMPARE(m_output->asked, 1);
        QVERIFY(std::ranges::all_of(m_output->Listen(), [](qint16 sample) { return sample == 0; }));
    }

    void stuckDeviceDoesNotHoldTheProgram()
    {
        m_output->stuck = true;
        std::weak_ptr<HandDrivenOutput> kept = m_output;
        {
            SdlSoundPlayer::Limits limits = PatientLimits();
            limits.exit = std::chrono::milliseconds(1);
            SdlSoundPlayer player(m_output, limits);
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
        SdlSoundPlayer::Limits limits = PatientLimits();
        limits.silence = std::chrono::milliseconds(1);
        SdlSoundPlayer player(m_output, limits);
        player.WarmUp();
        for (int round = 1; round <= 3; ++round) {
            QTRY_COMPARE(m_output->closed, round);
            player.Play(Sound(5000, 100), false);
            QTRY_COMPARE(Heard().size(), round);
        }
    }

    void lostDeviceIsOpenedAgain()
    {
        SdlSoundPlayer player(m_output, PatientLimits());
        player.Play(Sound(1000, 100), false);
        QTRY_COMPARE(m_output->opened, 1);
        m_output->lost = true;
        player.Play(Sound(2000, 100), false);
        QTRY_COMPARE(m_output->opened, 2);
        QTRY_COMPARE(LastHeard(), 2000);
    }

    void machineWithoutSoundIsNotAskedAtEveryKey()
    {
        m_output->broken = true;
        SdlSoundPlayer player(m_output, PatientLimits());
        for (int n = 0; n < 5; ++n)
            player.Play(Sound(1, 100), true);
        QCOMPARE(m_output->tries, 1);
    }

    void waitsForTheEnd()
    {
        SdlSoundPlayer player(m_output, PatientLimits());
        PlayToTheEnd(player, Sound(9, 20'000));
        const Samples heard = m_output->Listen();
        QCOMPARE(std::count(heard.begin(), heard.end(), 9), 20'000);
    }

    void drivesSdl()
    {
        const QString recording = m_folder.filePath(u"heard.raw"_s);
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", QFile::encodeName(recording));
        qputenv("SDL_DISKAUDIODELAY", "1");
        const auto heard = [&recording] {
            QFile file(recording);
            Samples samples;
            if (file.open(QIODevice::ReadOnly)) {
                const QByteArray bytes = file.readAll();
                samples.resize(static_cast<std::size_t>(bytes.size()) / 2);
                std::copy_n(bytes.constData(), 2 * samples.size(), reinterpret_cast<char *>(samples.data()));
            }
            return samples;
        };
        const QString first = WaveFile(u"first.wav"_s, Samples(30 * AudioOutput::SampleRate, 1000));
        const QString second = WaveFile(u"second.wav"_s, Samples(5000, -2000));
        {
            SdlSoundPlayer player(std::make_shared<SdlAudioOutput>(), PatientLimits());
            player.Play(first, false);
            QTRY_VERIFY(Stretches(heard()).contains(1000));
            player.Play(second, true);
        }
        const Samples all = heard();
        QCOMPARE(Stretches(all), (QList{1000, -2000}));
        QCOMPARE(std::count(all.begin(), all.end(), -2000), 5000);
        QVERIFY(std::ranges::none_of(all, [](qint16 sample) { return sample < 0 && sample != -2000; }));
    }

    void decodes_data()
    {
        QTest::addColumn<QByteArray>("wave");
        QTest::addColumn<int>("length");
        const auto second = [](int rate) {
            return std::vector<qint16>(static_cast<std::size_t>(rate), 8000);
        };
        constexpr int rate = AudioOutput::SampleRate;
        QTest::newRow("as it is") << MakeWaveBytes(second(rate), rate) << rate;
        QTest::newRow("half the rate") << MakeWaveBytes(second(22050), 22050) << rate;
        QTest::newRow("stereo") << MakeWaveBytes(second(2 * 48000), 48000, 2) << rate;
        QTest::newRow("8 bit") << MakeWaveBytes(std::vector<quint8>(8000, 159), 8000) << rate;
        QTest::newRow("longer than a minute")
            << MakeWaveBytes(std::vector<quint8>(2000 * 90, 159), 2000) << 60 * rate;
        QTest::newRow("no samples") << MakeWaveBytes(second(0), rate) << 0;
        QTest::newRow("rate of nothing") << MakeWaveBytes(second(100), 0) << 0;
        QTest::newRow("rate of 1") << MakeWaveBytes(second(100), 1) << 0;
        QTest::newRow("rate beyond all") << MakeWaveBytes(second(100), 1'000'000'000) << 0;
        QTest::newRow("100 channels") << MakeWaveBytes(second(1000), rate, 100) << 0;
        QTest::newRow("text") << "this is no sound at all, but a text that somebody renamed"_ba << 0;
        QTest::newRow("nothing") << QByteArray() << 0;
    }

    void decodes()
    {
        QFETCH(QByteArray, wave);
        QFETCH(int, length);
        const Samples samples = SdlAudioOutput().Decode(wave);
        QVERIFY2(std::abs(static_cast<int>(samples.size()) - length) <= length / 1000,
                 qPrintable(QString::number(samples.size())));
        if (length > 0)
            QVERIFY(std::abs(samples[samples.size() / 2] - 8000) < 300);
    }

    void damagedFilesDoNoHarm()
    {
        const QByteArray whole = MakeWaveBytes(std::vector<qint16>(400, 8000), 22050);
        SdlAudioOutput output;
        for (qsizetype size = 0; size < whole.size(); ++size)
            output.Decode(whole.first(size));
        std::mt19937 random(7);
        for (int n = 0; n < 400; ++n) {
            QByteArray damaged = whole;
            for (unsigned hits = 1 + random() % 4; hits > 0; --hits)
                damaged[static_cast<qsizetype>(random() % 48)] = static_cast<char>(random());
            const Samples samples = output.Decode(damaged);
            QVERIFY(samples.size() <= 60 * AudioOutput::SampleRate);
        }
    }

private:
    QList<int> Heard() { return Stretches(m_output->Listen()); }

    int LastHeard()
    {
        const QList<int> heard = Heard();
        return heard.value(heard.size() - 1);
    }

    /// Plays and waits, while somebody else listens.
    void PlayToTheEnd(SdlSoundPlayer &player, const QString &path)
    {
        std::atomic<bool> listening = true;
        std::thread listener([&] {
            while (listening) {
                m_output->Advance();
                std::this_thread::yield();
            }
        });
        player.Play(path, true);
        listening = false;
        listener.join();
    }

    QString Write(const QString &name, const QByteArray &bytes)
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write a scratch file");
        return file.fileName();
    }

    /// A sound file of the hand-driven output, named after the value of all its samples.
    QString Sound(qint16 value, int length) { return Write(u"%1.raw"_s.arg(value), Constant(value, length)); }

    static QByteArray Constant(qint16 value, int length)
    {
        const Samples samples(static_cast<std::size_t>(length), value);
        return QByteArray(reinterpret_cast<const char *>(samples.data()), 2 * length);
    }

    QString WaveFile(const QString &name, const Samples &samples)
    {
        return Write(name, MakeWaveBytes(samples, AudioOutput::SampleRate));
    }

    QTemporaryDir m_folder;
    std::shared_ptr<HandDrivenOutput> m_output;
};

QTEST_GUILESS_MAIN(tst_SdlSoundPlayer)
#include "tst_SdlSoundPlayer.moc"
