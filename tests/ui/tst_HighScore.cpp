#include "core/records/RecordFile.h"
#include "support/Dialogs.h"
#include "support/SkinnedInstall.h"
#include "ui/records/DlgHighScore.h"

#include <QScrollBar>
#include <QTableView>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestHighScore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_install.emplace(u"Bob"_s); }

    void RanksTheRecordsOfAllUsers()
    {
        Open({});
        QCOMPARE(List()->model()->rowCount(), 0);
        QCOMPARE(m_dialog->focusWidget()->objectName(), u"BtnOk"_s);
        const QDate day(2024, 3, 1);
        const QString date = QLocale::system().toString(day, QLocale::ShortFormat);
        Open({{u"Ann"_s, {{day, 40, 98, {}, 3}, {day, 45.5F, 7, {}, 3}}},
              {u"Bob"_s, {{day, 52, 100, {}, 3}, {day, 40, 90.1F, {}, 3}}}});
        QStringList shown;
        for (int row = 0; row < List()->model()->rowCount(); ++row) {
            for (int column = 0; column < 4; ++column)
                shown += List()->model()->index(row, column).data().toString();
            if (List()->model()->index(row, 1).data(Qt::FontRole).value<QFont>().bold())
                shown += u"bold"_s; // a person's own rows stand out
        }
        QCOMPARE(shown.join(u' ').replace(date, u"date"_s),
                 u"1 Bob 52wpm 100% date bold 2 Ann 45.5wpm 7% date "
                 "3 Ann 40wpm 98% date 4 Bob 40wpm 90.1% date bold"_s);
    }

    void ScrollsByKeys()
    {
        std::vector<TrainingRecord> records;
        for (int day = 0; day < 200; ++day)
            records.push_back({QDate(2024, 1, 1).addDays(day), float(day + 1), 90, {}, 3});
        Open({{u"Ann"_s, records}});
        QCOMPARE(m_dialog->focusWidget(), List());
        QTest::keyClick(List(), Qt::Key_End);
        // Nine whole rows fit, and the last stands at the foot of the page.
        QCOMPARE(List()->rowViewportPosition(199), 8 * 26);
        QVERIFY(List()->verticalScrollBar()->isVisible());
        QTest::keyClick(List(), Qt::Key_Return);
        QVERIFY(!m_dialog->isVisible());
    }

private:
    void Open(const std::map<QString, std::vector<TrainingRecord>> &users)
    {
        QByteArray names;
        for (const auto &[user, records] : users) {
            names += user.toUtf8() + ";\r\n";
            m_install->Write(u"Users/"_s + user + u"/RecordEX.Dat"_s, RecordFile::Encode(records));
        }
        m_install->Write(u"user.ini"_s, names);
        m_dialog = std::make_unique<DlgHighScore>(nullptr);
        Dialogs::Show(*m_dialog);
    }
    QTableView *List() const { return m_dialog->findChild<QTableView *>(u"TopList"_s); }

    std::optional<SkinnedInstall> m_install;
    std::unique_ptr<DlgHighScore> m_dialog;
};

QTEST_MAIN(TestHighScore)
#include "tst_HighScore.moc"
