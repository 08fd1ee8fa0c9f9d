#include "core/drills/DrillClock.h"
#include "core/drills/DrillFigures.h"
#include "core/drills/DrillLayout.h"
#include "platform/Clock.h"

#include <QTest>

namespace {

class MovedClock final : public Clock
{
public:
    double Now() const override { return now; }
    QDate Today() const override { return {}; }
    double now = 86399.9;
};

} // namespace

class tst_DrillClock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CountsOnlyWhileItRuns()
    {
        MovedClock time;
        DrillClock clock(time);
        time.now += 100;
        QCOMPARE(clock.Elapsed(), 0.0);
        clock.Start();
        time.now += 2.5;
        clock.Start(); // a second key starts nothing
        time.now += 1;
        clock.Pause();
        time.now += 60;
        clock.Pause();
        QVERIFY(!clock.IsRunning());
        QCOMPARE(clock.WholeSeconds(), 4);
        clock.Start();
        time.now += 1.25;
        QVERIFY(qAbs(clock.Elapsed() - 4.75) < 1e-6);
        clock.Reset();
        time.now += 9;
        QCOMPARE(clock.Elapsed(), 0.0);
        QVERIFY(!clock.IsRunning());
    }

    void WholeSeconds_data()
    {
        QTest::addColumn<double>("seconds");
        QTest::addColumn<int>("shown");
        QTest::newRow("none is one") << 0.0 << 1;
        QTest::newRow("less than half a second") << 0.4 << 1;
        QTest::newRow("one and a half, to even") << 1.5 << 2;
        QTest::newRow("two and a half, to even") << 2.5 << 2;
        QTest::newRow("an hour") << 3599.75 << 3600;
        QTest::newRow("longer than can be counted") << 1e12 << 2'000'000'000;
    }

    void WholeSeconds()
    {
        QFETCH(double, seconds);
        MovedClock time;
        time.now = 0;
        DrillClock clock(time);
        clock.Start();
        time.now = seconds;
        QTEST(clock.WholeSeconds(), "shown");
    }

    void Figures_data()
    {
        QTest::addColumn<int>("part");
        QTest::addColumn<int>("whole");
        QTest::addColumn<int>("percent"); // -1: none
        QTest::newRow("nothing to count") << 3 << 0 << -1;
        QTest::newRow("the fraction is dropped") << 2 << 3 << 66;
        QTest::newRow("all") << 7 << 7 << 100;
        QTest::newRow("typed beyond the end") << 9 << 7 << 100;
        QTest::newRow("large numbers") << 1'500'000'000 << 2'000'000'000 << 75;
    }

    void Figures()
    {
        QFETCH(int, part);
        QFETCH(int, whole);
        QTEST(DrillFigures::ProgressPercent(part, whole).value_or(-1), "percent");
        QTEST(DrillFigures::RatePercent(part, whole).value_or(-1), "percent");
        QCOMPARE(DrillFigures::PerMinute(100, 7), 857);
    }

    void LayoutModes_data()
    {
        QTest::addColumn<QSize>("area");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QPoint>("origin");
        QTest::newRow("1024 x 768") << QSize(1023, 768) << 2 << QPoint(14, 50);
        QTest::newRow("1920 x 1080") << QSize(1919, 1080) << 2 << QPoint(462, 206);
        QTest::newRow("low: the title stays free") << QSize(1023, 738) << 2 << QPoint(14, 41);
        QTest::newRow("lower than the content") << QSize(1023, 600) << 2 << QPoint(14, 41);
        QTest::newRow("1022 wide") << QSize(1022, 768) << 1 << QPoint(123, 123);
        QTest::newRow("800 x 600") << QSize(799, 600) << 1 << QPoint(11, 39);
        QTest::newRow("800 x 480") << QSize(799, 480) << 1 << QPoint(11, 34);
        QTest::newRow("798 wide") << QSize(798, 600) << 0 << QPoint();
    }

    void LayoutModes()
    {
        QFETCH(QSize, area);
        const DrillLayout layout = CalcLayoutMode(area);
        QTEST(static_cast<int>(layout.mode), "mode");
        QTEST(layout.origin, "origin");
    }
};

QTEST_GUILESS_MAIN(tst_DrillClock)
#include "tst_DrillClock.moc"
