#include "core/records/RecordFile.h"

#include <QFile>
#include <QtTest>
#include <limits>
#include <random>

using namespace Qt::Literals::StringLiterals;

class tst_RecordFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exactBytes();
    void longTexts();
    void dates_data();
    void dates();
    void numbersThatAreNone();
    void mistakesSkipped();
    void oldCodePage();
    void cutAtEveryByte();
    void anyBytes();

private:
    static QByteArray Golden(const QString &name);
    static QByteArray TrainingBytes(double day, float speed, float rate, const QByteArray &text);
};

namespace {

std::vector<TrainingRecord> SampleDays()
{
    return {{QDate(2024, 2, 29), 45.5F, 98.25F, u"Adage：11.txt Text Training "_s, 0},
            {QDate(2024, 3, 1), -1, 100, QString(), 3},
            {QDate(1899, 1, 1).addDays(-1), 1, 2, u"𝄞"_s, -1}};
}

std::vector<MistakeRecord> SampleMistakes()
{
    return {{u"A"_s, 3}, {u"你"_s, 32767}, {u"𝄞"_s, -1}};
}

bool Same(const TrainingRecord &a, const TrainingRecord &b)
{
    return a.Date == b.Date && a.Speed == b.Speed && a.Rate == b.Rate && a.Text == b.Text &&
           a.Group == b.Group;
}

bool Same(const MistakeRecord &a, const MistakeRecord &b)
{
    return a.Char == b.Char && a.Count == b.Count;
}

template <typename Record>
bool SameStart(const std::vector<Record> &start, const std::vector<Record> &whole)
{
    return start.size() <= whole.size() &&
           std::equal(start.begin(), start.end(), whole.begin(),
                      [](const auto &a, const auto &b) { return Same(a, b); });
}

} // namespace

QByteArray tst_RecordFile::Golden(const QString &name)
{
    QFile file(QStringLiteral(QUORVEX_TEST_DATA "/records/") + name);
    return file.open(QIODevice::ReadOnly) ? QByteArray::fromHex(file.readAll()) : QByteArray();
}

QByteArray tst_RecordFile::TrainingBytes(double day, float speed, float rate, const QByteArray &text)
{
    QByteArray bytes(reinterpret_cast<const char *>(&day), 8);
    bytes.append(reinterpret_cast<const char *>(&speed), 4).append(reinterpret_cast<const char *>(&rate), 4);
    const auto length = static_cast<quint16>(text.size());
    return bytes.append(reinterpret_cast<const char *>(&length), 2).append(text).append("\0\0", 2);
}

void tst_RecordFile::exactBytes()
{
    const QByteArray training = Golden(u"training.hex"_s);
    const QByteArray mistakes = Golden(u"mistakes.hex"_s);
    QCOMPARE(RecordFile::Encode(SampleDays()).toHex(' '), training.toHex(' '));
    QCOMPARE(RecordFile::Encode(SampleMistakes()).toHex(' '), mistakes.toHex(' '));
    QCOMPARE(RecordFile::DecodeTraining(training).size(), std::size_t(3));
    QCOMPARE(RecordFile::DecodeMistakes(mistakes).size(), std::size_t(3));
    QVERIFY(SameStart(RecordFile::DecodeTraining(training), SampleDays()));
    QVERIFY(SameStart(RecordFile::DecodeMistakes(mistakes), SampleMistakes()));
}

void tst_RecordFile::longTexts()
{
    for (const QString &unit : {u"x"_s, u"é"_s, u"你"_s, u"𝄞"_s}) {
        const qsizetype most = 65535 / unit.toUtf8().size();
        std::vector<TrainingRecord> days = SampleDays();
        days[0].Text = unit.repeated(70000);
        const std::vector<TrainingRecord> read = RecordFile::DecodeTraining(RecordFile::Encode(days));
        QCOMPARE(read.size(), days.size());
        QCOMPARE(read[0].Text, unit.repeated(most));
    }
}

void tst_RecordFile::dates_data()
{
    QTest::addColumn<double>("day");
    QTest::addColumn<QDate>("date"); // invalid: the record is skipped
    QTest::newRow("zero") << 0.0 << QDate();
    QTest::newRow("last of 1899") << 1.75 << QDate();
    QTest::newRow("first of 1900") << 2.0 << QDate(1900, 1, 1);
    QTest::newRow("first of 1899") << -363.0 << QDate();
    QTest::newRow("last of 1898") << -364.0 << QDate(1898, 12, 31);
    QTest::newRow("time of day") << 45000.75 << QDate(2023, 3, 15);
    QTest::newRow("year 1000") << -328716.0 << QDate(1000, 1, 1);
    QTest::newRow("last day") << 2958465.0 << QDate(9999, 12, 31);
    QTest::newRow("too late") << 2958466.0 << QDate();
    QTest::newRow("too early") << -657435.0 << QDate();
    QTest::newRow("huge") << 1e300 << QDate();
    QTest::newRow("infinite") << -std::numeric_limits<double>::infinity() << QDate();
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << QDate();
}

void tst_RecordFile::dates()
{
    QFETCH(double, day);
    QFETCH(QDate, date);
    const QByteArray bytes = TrainingBytes(day, 1, 2, "first") + TrainingBytes(45000, 3, 4, "second");
    const std::vector<TrainingRecord> records = RecordFile::DecodeTraining(bytes);
    QCOMPARE(records.size(), date.isValid() ? std::size_t(2) : std::size_t(1));
    QCOMPARE(records.back().Text, u"second"_s);
    if (date.isValid())
        QCOMPARE(records.front().Date, date);
}

void tst_RecordFile::numbersThatAreNone()
{
    const float infinite = std::numeric_limits<float>::infinity();
    const float none = std::numeric_limits<float>::quiet_NaN();
    const std::vector<TrainingRecord> records = RecordFile::DecodeTraining(
        TrainingBytes(45000, infinite, none, "a") + TrainingBytes(45001, none, -infinite, "b"));
    QCOMPARE(records.size(), std::size_t(2));
    for (const TrainingRecord &record : records)
        QVERIFY(record.Speed == 0 && record.Rate == 0);
}

void tst_RecordFile::mistakesSkipped()
{
    const QByteArray bytes("\0\0\x05\0"
                           "\1\0\0\x05\0"
                           "\1\0A\x05\0"
                           "\2\0AB\x06\0"
                           "\0\0",
                           22);
    const std::vector<MistakeRecord> records = RecordFile::DecodeMistakes(bytes);
    QCOMPARE(records.size(), std::size_t(2));
    QVERIFY(Same(records[0], {u"A"_s, 5}) && Same(records[1], {u"AB"_s, 6}));
}

void tst_RecordFile::oldCodePage()
{
    // The first character's two bytes would do for UTF-8 as well.
    const QByteArray old("\2\0\xC4\xA3\1\0"
                         "\2\0\xC4\xE3\2\0"
                         "\2\0\xBA\xC3\3\0",
                         18);
    const std::vector<MistakeRecord> records = RecordFile::DecodeMistakes(old);
    QCOMPARE(records.size(), std::size_t(3));
    QCOMPARE(records[0].Char + records[1].Char + records[2].Char, u"模你好"_s);

    // One damaged text does not spoil the others.
    const QByteArray damaged = TrainingBytes(45000, 1, 1, u"文章"_s.toUtf8()) +
                               TrainingBytes(45001, 1, 1, "\xE6\x96") +
                               TrainingBytes(45002, 1, 1, u"练习"_s.toUtf8());
    const std::vector<TrainingRecord> days = RecordFile::DecodeTraining(damaged);
    QCOMPARE(days.size(), std::size_t(3));
    QCOMPARE(days[0].Text + days[2].Text, u"文章练习"_s);
}

void tst_RecordFile::cutAtEveryByte()
{
    const QByteArray training = RecordFile::Encode(SampleDays());
    for (qsizetype length = 0; length < training.size(); ++length) {
        const std::vector<TrainingRecord> read = RecordFile::DecodeTraining(training.first(length));
        QVERIFY(SameStart(read, SampleDays()) && read.size() < 3);
        QCOMPARE(RecordFile::Encode(read), training.first(RecordFile::Encode(read).size()));
    }
    const QByteArray mistakes = RecordFile::Encode(SampleMistakes());
    for (qsizetype length = 0; length < mistakes.size(); ++length) {
        const std::vector<MistakeRecord> read = RecordFile::DecodeMistakes(mistakes.first(length));
        QVERIFY(SameStart(read, SampleMistakes()));
        QCOMPARE(read.size(), length < 5 ? std::size_t(0) : length < 12 ? std::size_t(1) : std::size_t(2));
    }
}

void tst_RecordFile::anyBytes()
{
    std::mt19937 random(5);
    const QByteArray sample = RecordFile::Encode(SampleDays()) + RecordFile::Encode(SampleMistakes());
    for (int round = 0; round < 3000; ++round) {
        QByteArray bytes = sample;
        for (auto left = 1 + random() % 8; left > 0; --left)
            bytes[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))] =
                static_cast<char>(random());
        const std::vector<TrainingRecord> days = RecordFile::DecodeTraining(bytes);
        for (const TrainingRecord &day : days)
            QVERIFY(day.Date.isValid() && day.Date.year() != 1899 && std::isfinite(day.Speed) &&
                    std::isfinite(day.Rate));
        QVERIFY(SameStart(RecordFile::DecodeTraining(RecordFile::Encode(days)), days));
        const std::vector<MistakeRecord> mistakes = RecordFile::DecodeMistakes(bytes);
        QVERIFY(SameStart(RecordFile::DecodeMistakes(RecordFile::Encode(mistakes)), mistakes));
    }
}

QTEST_APPLESS_MAIN(tst_RecordFile)
#include "tst_RecordFile.moc"
