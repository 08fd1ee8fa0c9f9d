#include "core/drills/DrillClock.h"
#include "core/drills/DrillFigures.h"
#include "core/drills/DrillLayout.h"
#include "support/FakeServices.h"

#include <QTest>

class tst_DrillClock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CountsOnlyWhileItRuns()
    {
        FakeClock time;
        DrillClock clock(time);
        time.Move(100);
        QCOMPARE(clock.Elapsed(), 0.0);
        clock.Start();
        time.Move(2.5);
        clock.Start(); // a second key starts nothing
        time.Move(1);
        clock.Pause();
        time.Move(60);
        clock.Pause();
        QVERIFY(!clock.IsRunning());
        QCOMPARE(clock.WholeSeconds(), 4);
        clock.Start();
        time.Move(1.25);
        QVERIFY(qAbs(clock.Elapsed() - 4.75) < 1e-6);
        clock.Reset();
        time.Move(9);
        QCOMPARE(clock.Elapsed(), 0.0);
        QVERIFY(!clock.IsRunning());
    }

    void WholeSeconds()
    {
        // At least one; halves go to the even number.
        for (const auto &[seconds, shown] :
             {std::pair(0.0, 1), {0.4, 1}, {1.5, 2}, {2.5, 2}, {3599.75, 3600}, {1e12, 2'000'000'000}}) {
            FakeClock time;
            DrillClock clock(time);
            clock.Start();
            time.Move(seconds);
            QCOMPARE(clock.WholeSeconds(), shown);
        }
    }

    void Figures()
    {
        // The fraction is dropped; who types beyond the end has done all; of nothing there is no share.
        using Row = std::tuple<int, int, std::optional<int>>;
        for (const auto &[part, whole, percent] : {Row{3, 0, std::nullopt}, Row{2, 3, 66}, Row{7, 7, 100},
                                                   Row{9, 7, 100}, Row{1'500'000'000, 2'000'000'000, 75}}) {
            QCOMPARE(DrillFigures::ProgressPercent(part, whole), percent);
            QCOMPARE(DrillFigures::RatePercent(part, whole), percent);
        }
        QCOMPARE(DrillFigures::PerMinute(100, 7), 857);
    }

    void LayoutModes()
    {
        using enum LayoutMode;
        using Row = std::tuple<QSize, LayoutMode, QPoint>;
        for (const auto &[area, mode, origin] :
             {Row{{1023, 768}, Wide, {14, 50}}, Row{{1919, 1080}, Wide, {462, 206}},
              Row{{1023, 738}, Wide, {14, 41}}, // the title stays free
              Row{{1023, 600}, Wide, {14, 41}}, Row{{1022, 768}, Narrow, {123, 123}},
              Row{{799, 600}, Narrow, {11, 39}}, Row{{799, 480}, Narrow, {11, 34}},
              Row{{798, 600}, None, {}}}) {
            QCOMPARE(CalcLayoutMode(area).mode, mode);
            QCOMPARE(CalcLayoutMode(area).origin, origin);
        }
    }
};

QTEST_GUILESS_MAIN(tst_DrillClock)
#include "tst_DrillClock.moc"
