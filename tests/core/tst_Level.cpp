#include "core/engine/Level.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_Level : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Levels()
    {
        // Without an input method, with Pinyin, with another; by the letters of the rows below.
        const QHash<char, QList<int>> levels{{'E', {12, 13, 13}}, {'Q', {11, 11, 11}}, {'M', {3, 6, 10}},
                                             {'J', {2, 5, 9}},    {'B', {1, 4, 8}},    {'F', {0, 0, 7}},
                                             {'-', {1, 4, 7}}};
        const QList<std::tuple<float, QList<float>, const char *>> rows{
            {100, {80}, "E"},       {80, {79.9F, 50, 49.8F, 35, 20, 10, 9.8F, 0}, "QQMMJBFF"},
            {79.9F, {50}, "E"},     {50, {35, 34.8F, 20, 10, 9.8F}, "QMMJB"},
            {49, {300, 299}, "EM"}, {20, {200, 100, 99}, "MJB"},
            {19, {200}, "J"},       {10, {199, 0}, "BB"},
            {9.9F, {1, 0}, "M-"},   {0, {90}, "-"}};
        for (const auto &[rate, speeds, expected] : rows) {
            for (qsizetype i = 0; i < speeds.size(); ++i) {
                QList<int> found;
                for (const InputKind kind : {InputKind::None, InputKind::Pinyin, InputKind::Other})
                    found += Public_Function::GetLevel(kind, speeds[i], rate);
                QVERIFY2(found == levels[expected[i]], qPrintable(u"%1, %2"_s.arg(rate).arg(speeds[i])));
            }
        }
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
