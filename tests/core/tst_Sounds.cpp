#include "core/engine/SoundEffects.h"
#include "support/FakeServices.h"
#include "support/TestInstall.h"

#include <QFile>
#include <QTest>
#include <QtEndian>
#include <complex>
#include <numbers>
#include <span>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Rate = 22050;
using Wave = std::vector<double>;

/// How strong one frequency is in the sound.
double Strength(const Wave &wave, double frequency)
{
    std::complex<double> sum;
    for (std::size_t n = 0; n < wave.size(); ++n)
        sum += wave[n] * std::polar(1.0, 2 * std::numbers::pi * frequency * static_cast<double>(n) / Rate);
    return std::abs(sum);
}

double Peak(std::span<const double> part)
{
    return std::abs(std::ranges::max(part, {}, [](double sample) { return std::abs(sample); }));
}

} // namespace

/// Which sound is played, and whether those that the build made are what a person should hear.
class tst_Sounds : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void playsWhatIsInstalled()
    {
        const TestInstall install;
        for (const QString &file : {u"SoundEffect/Type.WAV"_s, u"SoundEffect/error.WAV"_s,
                                    u"MusicKeyboard/0.wav"_s, u"MusicKeyboard/57.wav"_s})
            install.Write(u"Sound/"_s + file, "x");
        FakeServices services;
        Public_Function::PlayEffect(u"Type.WAV"_s, true);
        QCOMPARE(services.sound.lastPath, install.Native(u"Sound/SoundEffect/Type.WAV"_s));
        QVERIFY(services.sound.lastWaited);
        for (const QString &name : {u"Error.wav"_s, u"none.wav"_s, QString()})
            Public_Function::PlayEffect(name, false);
        for (const char16_t key : u"A}éq"_s.toStdU16String()) // the note of the last one is missing
            Public_Function::PlayMusicKey(key);
        for (const auto &[key, note] : {std::pair(u'Z', 25),
                                        {u' ', 26},
                                        {u';', 27},
                                        {u'\r', 31},
                                        {u'\t', 32},
                                        {u'~', 33},
                                        {u'!', 41},
                                        {u'0', 50},
                                        {u'\b', 53},
                                        {u'"', 55}})
            QCOMPARE(Public_Function::GetMusicKeyIndex(key), note);
        QCOMPARE(services.sound.played,
                 (QStringList{u"Type.WAV"_s, u"error.WAV"_s, u"0.wav"_s, u"57.wav"_s, u"0.wav"_s}));
        QVERIFY(!services.sound.lastWaited);
    }

    void notes()
    {
        // By note, as MIDI numbers: every row of keys is a scale of white keys, the home row from middle C.
        const QList<int> pitches{60, 55, 52, 64, 76, 65,  67,  69,  84,  71, 72, 74, 59, 57, 86,
                                 88, 72, 77, 62, 79, 83,  53,  74,  50,  81, 48, 43, 76, 60, 62,
                                 64, 79, 71, 83, 36, 38,  40,  41,  43,  45, 47, 84, 86, 88, 89,
                                 91, 93, 95, 96, 98, 100, 101, 103, 105, 93, 77, 89, 91, 49, 51,
                                 54, 56, 58, 61, 63, 66,  68,  70,  73,  75, 78, 80, 82, 85};
        for (int note = 0; note < pitches.size(); ++note) {
            const QString name = u"MusicKeyboard/%1.wav"_s.arg(note);
            const Wave wave = CleanSound(name);
            const auto strength = [&](double from) {
                return Strength(wave, 440 * std::pow(2, (pitches[note] + from - 69) / 12));
            };
            const double right = strength(0);
            for (int cents = -100; cents <= 100; cents += 5)
                QVERIFY2(!wave.empty() && strength(cents / 100.0) <= right, qPrintable(name));
            QVERIFY2(strength(-12) < 0.2 * right && strength(12) < right, qPrintable(name));
        }
    }

private:
    /// Nothing, and a failure reported, when the sound is too loud, too long or begins or ends with a crack.
    static Wave CleanSound(const QString &name)
    {
        QFile file(qEnvironmentVariable("QUORVEX_INSTALL") + u"/Sound/"_s + name);
        const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        const auto number = [&bytes]<typename Number>(int at, Number) {
            return qFromLittleEndian<Number>(bytes.constData() + at);
        };
        const bool plain = bytes.size() > 44 && number(20, quint16{}) == 1 && number(22, quint16{}) == 1 &&
                           number(24, quint32{}) == Rate && number(34, quint16{}) == 16 &&
                           number(40, quint32{}) == static_cast<quint32>(bytes.size() - 44);
        if (!QTest::qVerify(plain, "a plain wave file", qPrintable(name), __FILE__, __LINE__))
            return {};
        Wave wave;
        for (int at = 44; at < bytes.size(); at += 2)
            wave.push_back(number(at, qint16{}) / 32768.0);
        const bool clean = Peak(wave) > 0.1 && Peak(wave) < 0.6 && wave.size() >= Rate / 50 &&
                           wave.size() <= Rate && std::abs(wave.front()) < 0.005 &&
                           Peak(std::span(wave).last(20)) < 0.005;
        return QTest::qVerify(clean, "clean", qPrintable(name), __FILE__, __LINE__) ? wave : Wave();
    }
};

QTEST_GUILESS_MAIN(tst_Sounds)
#include "tst_Sounds.moc"
