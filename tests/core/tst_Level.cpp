#include "core/engine/Level.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_Level : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Levels_data()
    {
        QTest::addColumn<float>("rate");
        QTest::addColumn<float>("speed");
        QTest::addColumn<QList<int>>("levels"); // without an input method, with Pinyin, with another
        const QList<int> expert{12, 13, 13};
        const QList<int> quick{11, 11, 11};
        const QList<int> master{3, 6, 10};
        const QList<int> junior{2, 5, 9};
        const QList<int> beginner{1, 4, 8};
        const auto row = [](float rate, float speed, const QList<int> &levels) {
            QTest::addRow("rate %g, speed %g", static_cast<double>(rate), static_cast<double>(speed))
                << rate << speed << levels;
        };
        row(100, 80, expert);
        row(80, 79.9F, quick);
        row(80, 50, quick);
        row(80, 49.8F, master);
        row(80, 35, master);
        row(80, 20, junior);
        row(80, 10, beginner);
        row(80, 9.8F, {0, 0, 7});
        row(80, 0, {0, 0, 7});
        row(79.9F, 50, expert);
        row(50, 35, quick);
        row(50, 34.8F, master);
        row(50, 20, master);
        row(50, 10, junior);
        row(50, 9.8F, beginner);
        row(49, 300, expert);
        row(49, 299, master);
        row(20, 200, master);
        row(20, 100, junior);
        row(20, 99, beginner);
        row(19, 200, junior);
        row(10, 199, beginner);
        row(10, 0, beginner);
        row(9.9F, 1, master);
        row(9, 0, {1, 4, 7});
        row(0, 90, {1, 4, 7});
    }

    void Levels()
    {
        QFETCH(float, rate);
        QFETCH(float, speed);
        QList<int> levels;
        for (const InputKind kind : {InputKind::None, InputKind::Pinyin, InputKind::Other})
            levels += Public_Function::GetLevel(kind, speed, rate);
        QTEST(levels, "levels");
    }

    void Names()
    {
        QStringList names;
        for (int level = -1; level <= 14; ++level)
            names += Public_Function::GetLevelName(level);
        QCOMPARE(names.join(u','),
                 u",Fresher,Beginner,Junior,Master,Junior,Junior,Master,Junior,Beginner,Junior,"
                 "Master,Quick Typer,Expert,Expert,"_s);
    }
};

QTEST_GUILESS_MAIN(tst_Level)
#include "tst_Level.moc"
