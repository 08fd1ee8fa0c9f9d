// Listens to the sounds that the build made: are they what a person at the keyboard should hear?

#include "core/engine/SoundEffects.h"

#include <QFile>
#include <QTest>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Rate = 22050;
using Wave = std::vector<double>;

/// How strong one frequency is in the sound.
double Strength(const Wave &wave, double frequency)
{
    double sine = 0;
    double cosine = 0;
    for (std::size_t n = 0; n < wave.size(); ++n) {
        const double angle = 2 * std::numbers::pi * frequency * static_cast<double>(n) / Rate;
        sine += wave[n] * std::sin(angle);
        cosine += wave[n] * std::cos(angle);
    }
    return std::hypot(sine, cosine);
}

double PitchFrequency(double midiNote)
{
    return 440 * std::pow(2, (midiNote - 69) / 12);
}

/// The strongest of the notes from 100 cents below to 100 cents above, in steps of 5.
int CentsOff(const Wave &wave, int midiNote)
{
    int best = 0;
    double strongest = 0;
    for (int cents = -100; cents <= 100; cents += 5) {
        const double strength = Strength(wave, PitchFrequency(midiNote + cents / 100.0));
        if (strength > strongest) {
            strongest = strength;
            best = cents;
        }
    }
    return best;
}

double Loudness(const Wave &wave)
{
    double sum = 0;
    for (const double sample : wave)
        sum += sample * sample;
    return std::sqrt(sum / Rate);
}

} // namespace

class tst_SoundFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySoundIsClean_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("key click") << u"SoundEffect/Type.WAV"_s;
        QTest::newRow("mistake") << u"SoundEffect/Error.wav"_s;
        for (int n = 0; n <= 73; ++n)
            QTest::addRow("note %d", n) << u"MusicKeyboard/%1.wav"_s.arg(n);
    }

    void everySoundIsClean()
    {
        QFETCH(QString, name);
        Wave wave;
        Read(name, wave);
        if (QTest::currentTestFailed())
            return;
        const auto loudest = [](std::span<const double> part) {
            return std::ranges::max(part, {}, [](double sample) { return std::abs(sample); });
        };
        const double peak = std::abs(loudest(wave));
        QVERIFY2(peak > 0.1 && peak < 0.6, qPrintable(QString::number(peak)));
        QVERIFY(wave.size() >= Rate / 50 && wave.size() <= Rate);
        QVERIFY(std::abs(wave.front()) < 0.005);
        QVERIFY(std::abs(loudest(std::span(wave).last(20))) < 0.005);
    }

    void rowsAreScales_data()
    {
        QTest::addColumn<QString>("row");
        QTest::addColumn<QList<int>>("pitches");
        QTest::newRow("home row, from middle C")
            << u"asdfghjkl;'\r"_s << QList<int>{60, 62, 64, 65, 67, 69, 71, 72, 74, 76, 77, 79};
        QTest::newRow("row below") << u"zxcvbnm,./"_s << QList<int>{48, 50, 52, 53, 55, 57, 59, 60, 62, 64};
        QTest::newRow("row above") << u"\tqwertyuiop[]\\"_s
                                   << QList<int>{71, 72, 74, 76, 77, 79, 81, 83, 84, 86, 88, 89, 91, 93};
        QTest::newRow("digits") << u"`1234567890-=\b"_s
                                << QList<int>{83, 84, 86, 88, 89, 91, 93, 95, 96, 98, 100, 101, 103, 105};
        QTest::newRow("space bar") << u" "_s << QList<int>{43};
    }

    void rowsAreScales()
    {
        QFETCH(QString, row);
        QFETCH(QList<int>, pitches);
        QCOMPARE(row.size(), pitches.size());
        for (qsizetype n = 0; n < row.size(); ++n) {
            const int index = Public_Function::GetMusicKeyIndex(row.at(n).unicode());
            CheckPitch(index, pitches.at(n));
            if (QTest::currentTestFailed())
                return;
        }
    }

    void otherNotesCompleteTheSet()
    {
        const QList<int> below{36, 38, 40, 41, 43, 45, 47};
        const QList<int> sharps{49, 51, 54, 56, 58, 61, 63, 66, 68, 70, 73, 75, 78, 80, 82, 85};
        for (int n = 34; n <= 40 && !QTest::currentTestFailed(); ++n)
            CheckPitch(n, below.at(n - 34));
        for (int n = 58; n <= 73 && !QTest::currentTestFailed(); ++n)
            CheckPitch(n, sharps.at(n - 58));
    }

    void mistakeIsLowerAndLongerThanKeyClick()
    {
        Wave click;
        Wave mistake;
        Read(u"SoundEffect/Type.WAV"_s, click);
        Read(u"SoundEffect/Error.wav"_s, mistake);
        if (QTest::currentTestFailed())
            return;
        QVERIFY(mistake.size() >= 3 * click.size());
        const auto share = [](const Wave &wave) { return Strength(wave, 140) / Strength(wave, 1500); };
        QVERIFY(share(mistake) > 10 * share(click));
        const double ratio = Loudness(mistake) / Loudness(click);
        QVERIFY2(ratio > 1 && ratio < 8, qPrintable(QString::number(ratio)));
    }

private:
    static void CheckPitch(int index, int midiNote)
    {
        Wave wave;
        Read(u"MusicKeyboard/%1.wav"_s.arg(index), wave);
        if (QTest::currentTestFailed())
            return;
        const double fundamental = Strength(wave, PitchFrequency(midiNote));
        QVERIFY2(CentsOff(wave, midiNote) == 0, qPrintable(u"note %1"_s.arg(index)));
        QVERIFY2(Strength(wave, PitchFrequency(midiNote - 12)) < 0.2 * fundamental &&
                     Strength(wave, PitchFrequency(midiNote + 12)) < fundamental,
                 qPrintable(u"octave of note %1"_s.arg(index)));
    }

    static void Read(const QString &name, Wave &wave)
    {
        QFile file(qEnvironmentVariable("QUORVEX_INSTALL") + u"/Sound/"_s + name);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
        const QByteArray bytes = file.readAll();
        QVERIFY(bytes.size() > 44 && bytes.startsWith("RIFF"));
        const auto number = [&bytes]<typename Number>(int at, Number) {
            return qFromLittleEndian<Number>(bytes.constData() + at);
        };
        QCOMPARE(number(20, quint16{}), quint16{1});
        QCOMPARE(number(22, quint16{}), quint16{1});
        QCOMPARE(number(24, quint32{}), quint32{Rate});
        QCOMPARE(number(34, quint16{}), quint16{16});
        QCOMPARE(qsizetype{number(40, quint32{})}, bytes.size() - 44);
        for (int at = 44; at < bytes.size(); at += 2)
            wave.push_back(number(at, qint16{}) / 32768.0);
    }
};

QTEST_GUILESS_MAIN(tst_SoundFiles)
#include "tst_SoundFiles.moc"
