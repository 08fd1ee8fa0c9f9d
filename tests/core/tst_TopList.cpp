#include "core/records/RecordFile.h"
#include "core/records/TopList.h"
#include "support/TestInstall.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_TopList : public QObject
{
    Q_OBJECT

private:
    static TrainingRecord Record(int day, float speed, float rate)
    {
        return {QDate(2024, 2, day), speed, rate, u"Screen Text"_s, 3};
    }

private Q_SLOTS:
    void AllRecordsOfAllUsersAreRanked()
    {
        const TestInstall install;
        install.Write(u"user.ini"_s, "Bob;\r\n\r\n安娜;\r\nNobody;\r\n");
        install.Write(u"Users/Bob/RecordEX.Dat"_s,
                      RecordFile::Encode({Record(9, 40, 90), Record(2, 52, 71), Record(1, 40, 95.5F)}));
        install.Write(u"Users/安娜/RecordEX.Dat"_s,
                      RecordFile::Encode({Record(3, 40, 80), Record(4, 52.2F, 100)}));
        install.Write(u"Users/Ghost/RecordEX.Dat"_s, RecordFile::Encode({Record(3, 90, 80)}));
        QStringList rows;
        for (const TopListEntry &entry : CollectTopList())
            rows += entry.userName + u' ' + entry.RecordText() + u' ' + QString::number(entry.date.day());
        QCOMPARE(rows, QStringList({u"安娜 52.2wpm 100% 4"_s, u"Bob 52wpm 71% 2"_s, u"Bob 40wpm 95.5% 1"_s,
                                    u"Bob 40wpm 90% 9"_s, u"安娜 40wpm 80% 3"_s}));
    }

    void WithoutUsersItIsEmpty()
    {
        const TestInstall install;
        QVERIFY(CollectTopList().empty());
    }
};

QTEST_GUILESS_MAIN(tst_TopList)
#include "tst_TopList.moc"
