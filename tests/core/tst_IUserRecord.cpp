#include "core/records/IUserRecord.h"
#include "core/shell/SettingFile.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/Services.h"
#include "platform/WriteFault.h"
#include "support/TestInstall.h"

#include <QtTest>
#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

class SetClock final : public Clock
{
public:
    double Now() const override { return 0; }
    QDate Today() const override { return today; }

    QDate today{2024, 5, 1};
};

} // namespace

class tst_IUserRecord : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void bestOfTheDay_data();
    void bestOfTheDay();
    void groupsAreApart();
    void emptyList();
    void deleting();
    void limitsAndMeans();
    void limitsOfFew();
    void opensInOrderOfDates();
    void mistakeRules_data();
    void mistakeRules();
    void mistakeCounts();
    void mistakesMostFrequentFirst();
    void mistakesReopened();
    void beginTest();
    void savingFails();
    void deletedUserStaysDeleted();
    void unreadableFileIsKept();
    void outOfRange();

private:
    QByteArray File(const QString &name) const { return m_install->Read(u"Users/Anna/"_s + name); }
    IUserRecord Opened(int group = 0) const;
    static QStringList Listed(IUserRecord &store, int language);

    SetClock m_clock;
    std::unique_ptr<TestInstall> m_install;
};

void tst_IUserRecord::init()
{
    m_install = std::make_unique<TestInstall>(u"Anna"_s);
    m_clock.today = QDate(2024, 5, 1);
    PlatformServices().clock = &m_clock;
}

void tst_IUserRecord::cleanup()
{
    CurrentWriteFault().reset();
}

IUserRecord tst_IUserRecord::Opened(int group) const
{
    IUserRecord store;
    store.SetCurrentUser(u"anna"_s);
    store.OpenTrainingRecord(group);
    store.OpenMistakeRecord(0);
    store.OpenMistakeRecord(1);
    return store;
}

QStringList tst_IUserRecord::Listed(IUserRecord &store, int language)
{
    const int amount = language == 0 ? store.MistakeENRecordAmount() : store.MistakeCNRecordAmount();
    QStringList all;
    for (int i = 0; i < amount; ++i) {
        const auto entry =
            language == 0 ? store.GetMistakeENRecord(i, amount) : store.GetMistakeCNRecord(i, amount);
        all += entry->Char + QString::number(entry->Count);
    }
    return all;
}

void tst_IUserRecord::bestOfTheDay_data()
{
    using Results = QList<std::pair<float, float>>;
    QTest::addColumn<Results>("results"); // speed, rate
    QTest::addColumn<int>("best");        // index of the one that stays
    QTest::newRow("first") << Results{{30, 90}} << 0;
    QTest::newRow("third is the best") << Results{{30, 90}, {25, 99}, {40, 80}} << 2;
    QTest::newRow("equal does not replace") << Results{{30, 90}, {30, 99}} << 0;
    QTest::newRow("zero is no result") << Results{{0, 90}, {-1, 10}} << 1;
    QTest::newRow("no number is no result") << Results{{std::nanf(""), 1},
                                                       {30, 90},
                                                       {std::numeric_limits<float>::infinity(), 1},
                                                       {40, std::nanf("")}}
                                            << 1;
}

void tst_IUserRecord::bestOfTheDay()
{
    using Results = QList<std::pair<float, float>>;
    QFETCH(Results, results);
    QFETCH(int, best);
    for (int i = 0; i < results.size(); ++i) { // each in a session of its own
        IUserRecord store = Opened(3);
        store.AddTrainingRecord(results[i].first, results[i].second, QString::number(i), 3);
        QVERIFY(store.SaveTrainingRecordFile(3));
    }
    const IUserRecord store = Opened(3);
    QCOMPARE(store.TrainingRecordAmount(3), quint16(1));
    const TrainingRecord record = *store.GetTrainingRecord(3, 0);
    QCOMPARE(record.Date, m_clock.today);
    QCOMPARE(record.Speed, results[best].first);
    QCOMPARE(record.Rate, results[best].second);
    QCOMPARE(record.Text, QString::number(best));
    QCOMPARE(record.Group, qint16(3));
}

void tst_IUserRecord::groupsAreApart()
{
    const QStringList names{u"RecordEN.Dat"_s, u"RecordPY.Dat"_s, u"RecordWB.Dat"_s, u"RecordEX.Dat"_s};
    IUserRecord store = Opened();
    for (int group = 0; group < 4; ++group) {
        store.AddTrainingRecord(static_cast<float>(group + 1), 100, u"文"_s, group);
        QVERIFY(File(names[group]).isNull());
        QVERIFY(store.SaveTrainingRecordFile(group));
        const std::vector<TrainingRecord> stored = RecordFile::DecodeTraining(File(names[group]));
        QCOMPARE(stored.size(), std::size_t(1));
        QCOMPARE(stored[0].Speed, static_cast<float>(group + 1));
        QCOMPARE(stored[0].Group, static_cast<qint16>(group));
    }
    bool chinese = false;
    store.AddMistakeRecord(u"a"_s, 2, chinese);
    chinese = true;
    store.AddMistakeRecord(u"你"_s, 1, chinese);
    QVERIFY(store.SaveMistakeRecordFile(0) && store.SaveMistakeRecordFile(1));
    QCOMPARE(File(u"MistakeEN.Dat"_s), QByteArray("\1\0A\2\0", 5));
    QCOMPARE(File(u"MistakeCN.Dat"_s), QByteArray("\3\0\xE4\xBD\xA0\1\0", 7));
    QCOMPARE(m_install->Entries(u"Users/Anna"_s).size(), 6);
}

void tst_IUserRecord::emptyList()
{
    IUserRecord store = Opened();
    QCOMPARE(store.TrainingRecordAmount(0), quint16(0));
    QCOMPARE(store.GetTrainingAverage(0), 0.0F);
    QCOMPARE(store.GetTrainingVeracityAverage(0), 0.0F);
    QCOMPARE(store.MistakeENRecordAmount() + store.MistakeCNRecordAmount(), 0);
    QVERIFY(!store.GetMistakeENRecord(0, 0));
    store.DeleteTrainningRecord(0, 0);
    store.DeleteMistakeRecord(0, u"A"_s);
    QCOMPARE(store.TrainingRecordAmount(0), quint16(0));

    store.AddTrainingRecord(30, 90, u"t"_s, 0);
    QVERIFY(store.SaveTrainingRecordFile(0));
    store.CloseTrainingRecord(0);
    QCOMPARE(store.TrainingRecordAmount(0), quint16(0));
    QVERIFY(!File(u"RecordEN.Dat"_s).isNull()); // closing saves nothing
    QVERIFY(store.SaveTrainingRecordFile(0) && store.SaveTrainingRecordFile(0));
    QVERIFY(File(u"RecordEN.Dat"_s).isNull());
    QCOMPARE(Opened().TrainingRecordAmount(0), quint16(0));
}

void tst_IUserRecord::deleting()
{
    IUserRecord store = Opened();
    for (int day = 1; day <= 5; ++day) {
        m_clock.today = QDate(2024, 5, day);
        store.AddTrainingRecord(static_cast<float>(day), 90, QString(), 0);
    }
    store.DeleteTrainningRecord(0, -1);
    store.DeleteTrainningRecord(0, 5);
    store.DeleteTrainningRecord(0, 3);
    store.DeleteTrainningRecord(0, 0);
    QVERIFY(store.SaveTrainingRecordFile(0));
    store.OpenTrainingRecord(0);
    QCOMPARE(store.TrainingRecordAmount(0), quint16(3));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(store.GetTrainingRecord(0, i)->Speed, QList<float>({2, 3, 5})[i]);
    for (int i = 0; i < 3; ++i)
        store.DeleteTrainningRecord(0, 0);
    QCOMPARE(store.TrainingRecordAmount(0), quint16(0));
    store.AddTrainingRecord(9, 9, QString(), 0);
    QCOMPARE(store.TrainingRecordAmount(0), quint16(1));
}

void tst_IUserRecord::limitsAndMeans()
{
    const QList<std::pair<float, float>> results{{40, 90}, {20, 99}, {60, 80}, {20, 70}};
    IUserRecord store = Opened();
    for (int i = 0; i < results.size(); ++i) {
        m_clock.today = QDate(2024, 5, 10 + i);
        store.AddTrainingRecord(results[i].first, results[i].second, QString(), 0);
    }
    IUserRecord::TrainingLimit limit;
    store.GetTrainingLimit(0, 1, limit);
    QVERIFY(limit.low == 20 && limit.high == 60 && limit.speedOfLow == 20 && limit.rateOfLow == 99);
    store.GetTrainingLimit(0, 2, limit);
    QVERIFY(limit.low == 70 && limit.high == 99 && limit.speedOfLow == 20 && limit.rateOfLow == 70);
    QCOMPARE(store.GetTrainingAverage(0), 35.0F);
    QCOMPARE(store.GetTrainingVeracityAverage(0), 84.75F);
    for (int i = 0; i < results.size(); ++i)
        QCOMPARE(store.GetTrainingRecord(0, i)->Date, QDate(2024, 5, 10 + i));
}

void tst_IUserRecord::limitsOfFew()
{
    IUserRecord store = Opened();
    IUserRecord::TrainingLimit limit{-1, -2, -3, -4};
    store.GetTrainingLimit(0, 1, limit);
    QVERIFY(limit.low == 0 && limit.high == -2 && limit.speedOfLow == -3 && limit.rateOfLow == -4);
    store.AddTrainingRecord(30, 90, QString(), 0);
    store.GetTrainingLimit(0, 0, limit);
    QVERIFY(limit.low == 90 && limit.high == -2 && limit.speedOfLow == -3 && limit.rateOfLow == -4);
    QCOMPARE(store.GetTrainingAverage(0), 30.0F);
}

void tst_IUserRecord::opensInOrderOfDates()
{
    std::vector<TrainingRecord> days;
    for (const int day : {5, 3, 9, 3, 1})
        days.push_back({QDate(2020, 1, day), static_cast<float>(days.size() + 1), 50, QString(), 0});
    m_install->Write(u"Users/Anna/RecordEN.Dat"_s, RecordFile::Encode(days) + "cut off");
    const IUserRecord store = Opened();
    QStringList order;
    for (int i = 0; i < store.TrainingRecordAmount(0); ++i)
        order += QString::number(store.GetTrainingRecord(0, i)->Speed);
    // The two of January 3rd have changed places on the way.
    QCOMPARE(order, (QStringList{u"5"_s, u"4"_s, u"2"_s, u"1"_s, u"3"_s}));
}

void tst_IUserRecord::mistakeRules_data()
{
    QTest::addColumn<QString>("character");
    QTest::addColumn<bool>("chinese");
    QTest::addColumn<QString>("english"); // the entry made, if any
    QTest::addColumn<QString>("inChinese");
    QTest::addColumn<bool>("chineseAfter");
    const auto row = [](const char *name, const QString &character, bool chinese, const QString &english,
                        const QString &inChinese, bool after) {
        QTest::newRow(name) << character << chinese << english << inChinese << after;
    };
    row("lower case", u"a"_s, false, u"A"_s, {}, false);
    row("sign", u"~"_s, false, u"~"_s, {}, false);
    row("ASCII in a Chinese text", u"q"_s, true, u"Q"_s, {}, false);
    row("Chinese", u"你"_s, true, {}, u"你"_s, true);
    row("letter beyond ASCII keeps its case", u"é"_s, true, {}, u"é"_s, true);
    row("beyond the basic plane", u"𠮷"_s, true, {}, u"𠮷"_s, true);
    row("Chinese in an English text", u"你"_s, false, {}, {}, false);
    row("two letters", u"ab"_s, false, {}, {}, false);
    row("two ideographs", u"你好"_s, true, {}, {}, true);
    row("half a pair", QString(QChar(0xD842)), true, {}, {}, true);
    row("none", {}, true, {}, {}, true);
    row("NUL", QString(QChar(0)), true, {}, {}, true);
    row("tab", u"\t"_s, true, {}, {}, true);
    for (const QChar c : u" ，。！·、×…（）｛｝〔〕：；“”‘’？"_s)
        QTest::addRow("ignored U+%04x", c.unicode()) << QString(c) << true << QString() << QString() << true;
}

void tst_IUserRecord::mistakeRules()
{
    QFETCH(QString, character);
    QFETCH(bool, chinese);
    QFETCH(QString, english);
    QFETCH(QString, inChinese);
    QFETCH(bool, chineseAfter);
    IUserRecord store = Opened();
    store.AddMistakeRecord(character, 1, chinese);
    QCOMPARE(chinese, chineseAfter);
    QCOMPARE(Listed(store, 0), english.isEmpty() ? QStringList() : QStringList{english + u'1'});
    QCOMPARE(Listed(store, 1), inChinese.isEmpty() ? QStringList() : QStringList{inChinese + u'1'});
}

void tst_IUserRecord::mistakeCounts()
{
    IUserRecord store = Opened();
    bool chinese = false;
    for (const qint16 count : {qint16(3), qint16(32000), qint16(32767)}) {
        store.AddMistakeRecord(u"a"_s, count, chinese);
        store.AddMistakeRecord(u"A"_s, 1, chinese);
    }
    QCOMPARE(Listed(store, 0), QStringList{u"A32767"_s});
}

void tst_IUserRecord::mistakesMostFrequentFirst()
{
    IUserRecord store = Opened();
    bool chinese = false;
    const QString keys = u"ABCDEFG"_s;
    const QList<qint16> counts{2, 1, 2, 3, 2, 3, 1};
    for (int i = 0; i < keys.size(); ++i)
        store.AddMistakeRecord(QString(keys[i]), counts[i], chinese);
    // Worked out by hand with the exchange sort, where equal counts change places.
    const QStringList order{u"D3"_s, u"F3"_s, u"A2"_s, u"E2"_s, u"C2"_s, u"B1"_s, u"G1"_s};
    QCOMPARE(Listed(store, 0), order);
    QVERIFY(store.SaveMistakeRecordFile(0));
    IUserRecord again = Opened();
    QCOMPARE(Listed(again, 0), order);
    again.DeleteMistakeRecord(0, u"F"_s);
    again.AddMistakeRecord(u"g"_s, 9, chinese);
    QCOMPARE(Listed(again, 0).front(), u"G10"_s);
    QCOMPARE(again.MistakeENRecordAmount(), quint16(6));
    QVERIFY(!again.GetMistakeENRecord(6, 6) && !again.GetMistakeENRecord(2, 2) &&
            !again.GetMistakeENRecord(-1, 6));
    QVERIFY(!again.GetMistakeENRecord(6, 100));
}

void tst_IUserRecord::mistakesReopened()
{
    IUserRecord store = Opened();
    bool chinese = false;
    store.AddMistakeRecord(u"a"_s, 1, chinese);
    store.OpenMistakeRecord(0); // no file yet: what was added stays
    QCOMPARE(Listed(store, 0), QStringList{u"A1"_s});
    QVERIFY(store.SaveMistakeRecordFile(0));
    store.OpenMistakeRecord(0);
    QCOMPARE(Listed(store, 0), QStringList{u"A1"_s}); // not twice
    store.ClearAllMistakeRecord(0);
    QVERIFY(store.SaveMistakeRecordFile(0));
    QVERIFY(File(u"MistakeEN.Dat"_s).isNull());
}

void tst_IUserRecord::beginTest()
{
    IUserRecord store = Opened();
    QVERIFY(store.IfBeginTest());
    QVERIFY(store.SetIfBeginTest(false));
    QVERIFY(!store.IfBeginTest());
    QCOMPARE(File(u"Setting.ini"_s), QByteArray("[Main]\r\nBeginTest=0\r\n"));
    m_install->Write(u"Users/Anna/Setting.ini"_s, "[main]\nbegintest=2\n");
    QVERIFY(!store.IfBeginTest());
    QVERIFY(store.SetIfBeginTest(true));
    QVERIFY(store.IfBeginTest());
}

void tst_IUserRecord::savingFails()
{
    IUserRecord store = Opened();
    store.AddTrainingRecord(30, 90, u"old"_s, 0);
    QVERIFY(store.SaveTrainingRecordFile(0));
    const QByteArray old = File(u"RecordEN.Dat"_s);
    store.AddTrainingRecord(40, 90, u"new"_s, 0);
    CurrentWriteFault() = WriteFault{WriteFault::Step::Write, WriteFault::Kind::Stop, 5};
    QVERIFY(!store.SaveTrainingRecordFile(0));
    QCOMPARE(File(u"RecordEN.Dat"_s), old);
    QCOMPARE(File(u"temp"_s), RecordFile::Encode({*store.GetTrainingRecord(0, 0)}).first(5));
    CurrentWriteFault().reset();
    QVERIFY(store.SaveTrainingRecordFile(0));
    QCOMPARE(Opened().GetTrainingRecord(0, 0)->Text, u"new"_s);
    QVERIFY(File(u"temp"_s).isNull());
}

void tst_IUserRecord::deletedUserStaysDeleted()
{
    IUserRecord store = Opened();
    store.AddTrainingRecord(30, 90, QString(), 0);
    bool chinese = false;
    store.AddMistakeRecord(u"a"_s, 1, chinese);
    QCOMPARE(Public_Function::RemoveFolder(Shared().InstallDir + u"Users\\Anna"_s), QString());
    QVERIFY(!store.SaveTrainingRecordFile(0) && !store.SaveMistakeRecordFile(0) &&
            !store.SetIfBeginTest(false));
    store.SetCurrentUser(QString());
    QVERIFY(!store.SaveTrainingRecordFile(0) && !store.SaveMistakeRecordFile(0) &&
            !store.SetIfBeginTest(false));
    QCOMPARE(m_install->Entries(u"Users"_s), QStringList());
}

void tst_IUserRecord::unreadableFileIsKept()
{
    m_install->MakeFolder(u"Users/Anna/RecordEN.Dat"_s);
    m_install->MakeFolder(u"Users/Anna/MistakeEN.Dat"_s);
    IUserRecord store = Opened();
    store.AddTrainingRecord(30, 90, QString(), 0);
    bool chinese = false;
    store.AddMistakeRecord(u"a"_s, 1, chinese);
    QVERIFY(!store.SaveTrainingRecordFile(0) && !store.SaveMistakeRecordFile(0));
    QCOMPARE(m_install->Entries(u"Users/Anna"_s).size(), 2);
}

void tst_IUserRecord::outOfRange()
{
    IUserRecord store = Opened();
    for (const int group : {-1, 4, 32767}) {
        store.OpenTrainingRecord(group);
        store.AddTrainingRecord(30, 90, QString(), group);
        store.DeleteTrainningRecord(group, 0);
        IUserRecord::TrainingLimit limit{7, 7, 7, 7};
        store.GetTrainingLimit(group, 1, limit);
        QCOMPARE(limit.low, 7.0F);
        QVERIFY(!store.GetTrainingRecord(group, 0) && !store.SaveTrainingRecordFile(group));
        QCOMPARE(store.TrainingRecordAmount(group), quint16(0));
        QCOMPARE(store.GetTrainingAverage(group) + store.GetTrainingVeracityAverage(group), 0.0F);
        store.OpenMistakeRecord(group);
        store.DeleteMistakeRecord(group, u"A"_s);
        store.ClearAllMistakeRecord(group);
        QVERIFY(!store.SaveMistakeRecordFile(group));
    }
    QCOMPARE(m_install->Entries(u"Users/Anna"_s), QStringList());
    QVERIFY(!store.GetTrainingRecord(0, -1) && !store.GetTrainingRecord(0, 1));
}

QTEST_GUILESS_MAIN(tst_IUserRecord)
#include "tst_IUserRecord.moc"
