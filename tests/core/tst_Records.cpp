#include "core/records/ExchangeOrder.h"
#include "core/records/IUserRecord.h"
#include "platform/Files.h"
#include "support/FakeServices.h"
#include "support/TestInstall.h"

#include <QtTest>
#include <cmath>

using namespace Qt::Literals::StringLiterals;
using namespace RecordFile;
using Days = std::vector<TrainingRecord>;
using Mistakes = std::vector<MistakeRecord>;

class tst_Records : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_install.reset();
        m_install = std::make_unique<TestInstall>(u"Anna"_s);
    }

    void exchangesAsTheLiteralSort()
    {
        std::mt19937 random(3);
        for (std::size_t round = 0; round < 1000; ++round) {
            std::vector<double> keys(random() % (round < 500 ? 8 : 400));
            const unsigned differentKeys = std::array{1U, 2U, 3U, 20U, 1000U}[round % 5];
            for (double &key : keys)
                key = -static_cast<double>(random() % differentKeys);
            std::vector<std::size_t> places(keys.size());
            std::iota(places.begin(), places.end(), std::size_t(0));
            for (std::size_t i = 0; i < keys.size(); ++i) {
                for (std::size_t j = i + 1; j < keys.size(); ++j) {
                    if (keys[places[j]] < keys[places[i]])
                        std::swap(places[i], places[j]);
                }
            }
            QCOMPARE(ExchangeOrder(keys), places);
        }
    }

    void exactBytes()
    {
        const QByteArray days = Golden(u"training.hex"_s);
        const QByteArray mistakes = Golden(u"mistakes.hex"_s);
        QCOMPARE(Encode(m_days).toHex(' '), days.toHex(' '));
        QCOMPARE(Encode(DecodeTraining(days)), days);
        QCOMPARE(Encode(m_mistakes).toHex(' '), mistakes.toHex(' '));
        QCOMPARE(Encode(DecodeMistakes(mistakes)), mistakes);
    }

    void longTexts()
    {
        for (const QString &unit : {u"x"_s, u"é"_s, u"你"_s, u"𝄞"_s}) {
            const Days read =
                DecodeTraining(Encode(Days{{QDate(2024, 2, 29), 1, 2, unit.repeated(70000), 0}}));
            QCOMPARE(read.at(0).Text, unit.repeated(65535 / unit.toUtf8().size()));
        }
    }

    void dates()
    {
        QByteArray bytes;
        for (const double day : {1.75, 2.0, -363.0, -364.0, 45000.75, -328716.0, 2958465.0, 2958466.0,
                                 -657435.0, 1e300, -HUGE_VAL, std::nan("")})
            bytes += Bytes(day, 1, 2, "text");
        QStringList dates; // what is no day is skipped
        for (const TrainingRecord &day : DecodeTraining(bytes))
            dates += day.Date.toString(Qt::ISODate);
        QCOMPARE(dates.join(u' '), u"1900-01-01 1898-12-31 2023-03-15 1000-01-01 9999-12-31"_s);
    }

    void unusualRecords()
    {
        const float none = std::nanf("");
        const Days read =
            DecodeTraining(Bytes(45000, HUGE_VALF, none, {}) + Bytes(45000, none, -HUGE_VALF, {}));
        QCOMPARE(Encode(read), Bytes(45000, 0, 0, {}) + Bytes(45000, 0, 0, {}));
        const QByteArray skipped = "\0\0\x05\0\1\0\0\x05\0"_ba;
        QCOMPARE(Encode(DecodeMistakes(skipped + "\2\0AB\x06\0\0\0"_ba)), "\2\0AB\x06\0"_ba);
    }

    void oldCodePage()
    {
        // The first character's two bytes would do for UTF-8 as well.
        const QByteArray old = "\2\0\xC4\xA3\1\0\2\0\xC4\xE3\2\0\2\0\xBA\xC3\3\0"_ba;
        QCOMPARE(Encode(DecodeMistakes(old)), Encode(Mistakes{{u"模"_s, 1}, {u"你"_s, 2}, {u"好"_s, 3}}));
        // One damaged text does not spoil the others.
        const Days days =
            DecodeTraining(Bytes(45000, 1, 1, u"文章"_s.toUtf8()) + Bytes(45001, 1, 1, "\xE6\x96") +
                           Bytes(45002, 1, 1, u"练习"_s.toUtf8()));
        QCOMPARE(days.at(0).Text + days.at(2).Text, u"文章练习"_s);
    }

    void cutAtEveryByte()
    {
        const QByteArray bytes = Encode(m_days);
        for (qsizetype length = 0; length < bytes.size(); ++length)
            QCOMPARE(Encode(DecodeTraining(bytes.first(length))), bytes.first(length < 49   ? 0
                                                                              : length < 69 ? 49
                                                                                            : 69));
    }

    void bestOfTheDay()
    {
        const float none = std::nanf("");
        const QList<std::pair<QList<float>, int>> days{
            {{30, 25, 40}, 2}, {{30, 30}, 0}, {{0, -1}, 1}, {{none, 30, HUGE_VALF}, 1}};
        for (const auto &[results, best] : days) {
            init();
            for (int i = 0; i < results.size(); ++i) { // each in a session of its own
                IUserRecord store = Opened();
                store.AddTrainingRecord(50, none, QString(), 3);
                store.AddTrainingRecord(results[i], 90, QString::number(i), 3);
                QVERIFY(store.SaveTrainingRecordFile(3));
            }
            const TrainingRecord record{m_services.clock.today, results[best], 90, QString::number(best), 3};
            QCOMPARE(File(u"RecordEX.Dat"_s), Encode({record}));
        }
    }

    void eachListHasItsFile()
    {
        const QStringList names{u"RecordEN.Dat"_s, u"RecordPY.Dat"_s, u"RecordWB.Dat"_s, u"RecordEX.Dat"_s};
        IUserRecord store = Opened();
        for (int group = 0; group < 4; ++group) {
            store.AddTrainingRecord(static_cast<float>(group + 1), 100, u"文"_s, group);
            QVERIFY(File(names[group]).isNull() && store.SaveTrainingRecordFile(group));
            QCOMPARE(File(names[group]), Encode({*store.GetTrainingRecord(group, 0)}));
            QCOMPARE(store.GetTrainingRecord(group, 0)->Speed, static_cast<float>(group + 1));
            store.CloseTrainingRecord(group);
            QCOMPARE(store.TrainingRecordAmount(group), quint16(0));
        }
        Miss(store, u"a"_s, 2);
        Miss(store, u"你"_s);
        QVERIFY(store.SaveMistakeRecordFile(0) && store.SaveMistakeRecordFile(1));
        QCOMPARE(File(u"MistakeEN.Dat"_s), "\1\0A\2\0"_ba);
        QCOMPARE(File(u"MistakeCN.Dat"_s), "\3\0\xE4\xBD\xA0\1\0"_ba);
        QCOMPARE(m_install->Entries(u"Users/Anna"_s).size(), 6);

        store.ClearAllMistakeRecord(0); // what is empty has no file
        for (int time = 0; time < 2; ++time)
            QVERIFY(store.SaveTrainingRecordFile(0) && store.SaveMistakeRecordFile(0));
        QCOMPARE(m_install->Entries(u"Users/Anna"_s).size(), 4);
    }

    void limitsMeansAndDeleting()
    {
        IUserRecord store = Opened();
        IUserRecord::TrainingLimit limit{-1, -2, -3, -4};
        store.GetTrainingLimit(0, 1, limit); // only the lowest of few
        QVERIFY(limit.low == 0 && limit.high == -2 && limit.speedOfLow == -3 && limit.rateOfLow == -4);
        for (const auto &[speed, rate] : {std::pair(40, 90), {20, 99}, {60, 80}, {20, 70}}) {
            m_services.clock.today = m_services.clock.today.addDays(1);
            store.AddTrainingRecord(static_cast<float>(speed), static_cast<float>(rate), QString(), 0);
        }
        store.GetTrainingLimit(0, 1, limit);
        QVERIFY(limit.low == 20 && limit.high == 60 && limit.speedOfLow == 20 && limit.rateOfLow == 99);
        store.GetTrainingLimit(0, 2, limit);
        QVERIFY(limit.low == 70 && limit.high == 99 && limit.speedOfLow == 20 && limit.rateOfLow == 70);
        QVERIFY(store.GetTrainingAverage(0) == 35.0F && store.GetTrainingVeracityAverage(0) == 84.75F);
        QCOMPARE(Rates(store), (QList<float>{90, 99, 80, 70})); // in order of dates again
        for (const int index : {-1, 4, 2, 0})
            store.DeleteTrainningRecord(0, index);
        QVERIFY(store.SaveTrainingRecordFile(0));
        QCOMPARE(Rates(Opened()), (QList<float>{99, 70}));
    }

    void mistakeRules()
    {
        // Counted in English / in Chinese, after the character and whether the text is Chinese.
        QList<std::tuple<QString, bool, QString>> cases{{u"a"_s, false, u"A1/"_s}, {u"~"_s, false, u"~1/"_s},
                                                        {u"q"_s, true, u"Q1/"_s},  {u"你"_s, true, u"/你1"_s},
                                                        {u"é"_s, true, u"/é1"_s},  {u"𠮷"_s, true, u"/𠮷1"_s},
                                                        {u"你"_s, false, u"/"_s}};
        for (const QString &text : {u"ab"_s, u"你好"_s, QString(QChar(0xD842)), QString()})
            cases.append({text, true, u"/"_s});
        for (const QChar c : u"\0\t\x7f ，。！·、×…（）｛｝〔〕：；“”‘’？"_s)
            cases.append({QString(c), true, u"/"_s});
        for (const auto &[character, chinese, counted] : cases) {
            IUserRecord store = Opened();
            bool inChinese = chinese;
            store.AddMistakeRecord(character, 1, inChinese);
            QCOMPARE(Listed(store, false) + u'/' + Listed(store, true), counted);
            QCOMPARE(inChinese, chinese && !counted.startsWith(u'Q')); // a Latin letter clears it
        }
    }

    void mistakesMostFrequentFirst()
    {
        IUserRecord store = Opened();
        for (const QChar key : u"AAbCCDDDeeFFFG"_s)
            Miss(store, QString(key));
        // Worked out by hand with the exchange sort, where equal counts change places.
        const QString order = u"D3 F3 A2 E2 C2 B1 G1"_s;
        for (int time = 0; time < 2; ++time) {
            // Before there is a file what was added stays; then it is not there twice.
            store.OpenMistakeRecord(0);
            QCOMPARE(Listed(store, false), order);
            QVERIFY(store.SaveMistakeRecordFile(0));
        }
        store.DeleteMistakeRecord(0, u"F"_s);
        for (const qint16 count : {qint16(9), qint16(32000), qint16(32767)})
            Miss(store, u"g"_s, count);
        QVERIFY(Listed(store, false).startsWith(u"G32767 D3 "_s));
        QCOMPARE(store.MistakeENRecordAmount(), quint16(6));
        for (const auto &[index, amount] : {std::pair(6, 6), {2, 2}, {-1, 6}, {6, 100}})
            QVERIFY(!store.GetMistakeENRecord(index, amount));
    }

    void whoWasDeletedStaysDeleted()
    {
        IUserRecord store = Opened();
        store.AddTrainingRecord(30, 90, QString(), 0);
        QCOMPARE(Public_Function::RemoveFolder(Shared().InstallDir + u"Users\\Anna"_s), QString());
        Miss(store, u"a"_s);
        for (const QString &user : {u"Anna"_s, QString()}) {
            store.SetCurrentUser(user);
            QVERIFY(!store.SaveTrainingRecordFile(0) && !store.SaveMistakeRecordFile(0) &&
                    !store.SetIfBeginTest(false));
            QCOMPARE(m_install->Tree(), QStringList{u"Users"_s});
        }
    }

    void unreadableFileIsKept()
    {
        m_install->WriteUnreadable(u"Users/Anna/MistakeEN.Dat"_s);
        m_install->WriteUnreadable(u"Users/Anna/RecordEN.Dat"_s);
        IUserRecord store = Opened();
        QVERIFY(!store.SaveTrainingRecordFile(0) && !store.SaveMistakeRecordFile(0));
        QCOMPARE(m_install->Entries(u"Users/Anna"_s).size(), 2);
    }

private:
    static QByteArray Golden(const QString &name)
    {
        QFile file(QStringLiteral(QUORVEX_TEST_DATA "/records/") + name);
        return file.open(QIODevice::ReadOnly) ? QByteArray::fromHex(file.readAll()) : QByteArray();
    }

    static QByteArray Bytes(double day, float speed, float rate, const QByteArray &text)
    {
        QByteArray bytes(reinterpret_cast<const char *>(&day), 8);
        bytes.append(reinterpret_cast<const char *>(&speed), 4)
            .append(reinterpret_cast<const char *>(&rate), 4);
        const auto length = static_cast<quint16>(text.size());
        return bytes.append(reinterpret_cast<const char *>(&length), 2).append(text).append("\0\0", 2);
    }

    QByteArray File(const QString &name) const { return m_install->Read(u"Users/Anna/"_s + name); }

    static IUserRecord Opened()
    {
        IUserRecord store;
        store.SetCurrentUser(u"anna"_s);
        for (const int group : {0, 1, 2, 3}) {
            store.OpenTrainingRecord(group);
            store.OpenMistakeRecord(group % 2);
        }
        return store;
    }

    static void Miss(IUserRecord &store, const QString &character, qint16 count = 1)
    {
        bool chinese = true;
        store.AddMistakeRecord(character, count, chinese);
    }

    static QString Listed(IUserRecord &store, bool chinese)
    {
        QStringList all;
        for (int i = 0; i < (chinese ? store.MistakeCNRecordAmount() : store.MistakeENRecordAmount()); ++i) {
            const auto entry = chinese ? store.GetMistakeCNRecord(i, 100) : store.GetMistakeENRecord(i, 100);
            all += entry->Char + QString::number(entry->Count);
        }
        return all.join(u' ');
    }

    static QList<float> Rates(const IUserRecord &store)
    {
        QList<float> rates;
        for (int i = 0; i < store.TrainingRecordAmount(0); ++i)
            rates += store.GetTrainingRecord(0, i)->Rate;
        return rates;
    }

    const Days m_days{{QDate(2024, 2, 29), 45.5F, 98.25F, u"Adage：11.txt Text Training "_s, 0},
                      {QDate(2024, 3, 1), -1, 100, QString(), 3},
                      {QDate(1899, 1, 1).addDays(-1), 1, 2, u"𝄞"_s, -1}};
    const Mistakes m_mistakes{{u"A"_s, 3}, {u"你"_s, 32767}, {u"𝄞"_s, -1}};
    FakeServices m_services;
    std::unique_ptr<TestInstall> m_install;
};

QTEST_GUILESS_MAIN(tst_Records)
#include "tst_Records.moc"
