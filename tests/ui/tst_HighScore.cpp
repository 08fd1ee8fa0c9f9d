#include "core/records/IUserRecord.h"
#include "core/records/TopList.h"
#include "support/FakeServices.h"
#include "support/SkinnedInstall.h"
#include "ui/records/DlgHighScore.h"
#include "ui/records/TopListModel.h"

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
        m_install->Write(u"user.ini"_s, "Ann;\r\nBob;\r\nEve;\r\n");
        Record(u"Ann"_s, {{QDate(2024, 3, 1), 40, 98}, {QDate(2024, 3, 2), 45.5F, 7}});
        Record(u"Bob"_s, {{QDate(2023, 12, 31), 52, 100}, {QDate(2024, 1, 1), 40, 90.1F}});
        Open();
        const auto date = [](int year, int month, int day) {
            return QLocale::system().toString(QDate(year, month, day), QLocale::ShortFormat);
        };
        QCOMPARE(Rows(),
                 QStringList(
                     {u"1|Bob|52wpm 100%|"_s + date(2023, 12, 31), u"2|Ann|45.5wpm 7%|"_s + date(2024, 3, 2),
                      u"3|Ann|40wpm 98%|"_s + date(2024, 3, 1), u"4|Bob|40wpm 90.1%|"_s + date(2024, 1, 1)}));
        QCOMPARE(m_dialog->size(), QSize(630, 390));
        QCOMPARE(m_dialog->windowTitle(), u"Top List "_s);
        // A person's own rows stand out.
        QVERIFY(List()->model()->index(0, 1).data(Qt::FontRole).value<QFont>().bold());
        QVERIFY(!List()->model()->index(1, 1).data(Qt::FontRole).value<QFont>().bold());
    }

    void TextsStandInTheirColumns()
    {
        m_install->Write(u"user.ini"_s, "HHH;\r\n");
        Record(u"HHH"_s, {{QDate(2024, 3, 1), 40, 98}});
        Open();
        List()->clearSelection();
        const QImage image = m_dialog->grab().toImage();
        // The leftmost dark pixels of each column in the first row and in the line of the headers.
        const std::array<int, 4> texts{30, 130, 250, 500};
        const std::array<int, 4> headers{30, 130, 340, 530};
        for (std::size_t i = 0; i < texts.size(); ++i) {
            QVERIFY2(HasInk(image, QRect(texts[i], 81, 12, 16)), qPrintable(QString::number(i)));
            QVERIFY(!HasInk(image, QRect(texts[i] - 6, 81, 6, 16)));
            QVERIFY(HasInk(image, QRect(headers[i], 55, 12, 16)));
            QVERIFY(!HasInk(image, QRect(headers[i] - 6, 55, 6, 16)));
        }
        QVERIFY(!HasInk(image, QRect(40, 107, 540, 200)));
    }

    void ScrollsByKeys()
    {
        m_install->Write(u"user.ini"_s, "Ann;\r\n");
        std::vector<Result> results;
        for (int day = 0; day < 200; ++day)
            results.push_back({QDate(2024, 1, 1).addDays(day), float(day + 1), 90});
        Record(u"Ann"_s, results);
        Open();
        QCOMPARE(m_dialog->focusWidget(), List());
        QTest::keyClick(List(), Qt::Key_End);
        // Nine whole rows, the last of them at the foot of the page.
        QCOMPARE(List()->rowAt(0), 191);
        QCOMPARE(List()->rowViewportPosition(199), 8 * 26);
        QVERIFY(List()->verticalScrollBar()->isVisible());
        QTest::keyClick(List(), Qt::Key_Home);
        QCOMPARE(List()->rowAt(2), 0);
        QTest::keyClick(List(), Qt::Key_PageDown);
        QVERIFY(List()->currentIndex().row() >= 8);
        QTest::keyClick(List(), Qt::Key_Tab);
        QCOMPARE(m_dialog->focusWidget()->objectName(), u"BtnOk"_s);
    }

    void ClosesByKey_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("alt");
        QTest::newRow("Enter") << int(Qt::Key_Return) << false;
        QTest::newRow("Escape") << int(Qt::Key_Escape) << false;
        QTest::newRow("Alt+F4") << int(Qt::Key_F4) << true;
    }
    void ClosesByKey()
    {
        QFETCH(int, key);
        QFETCH(bool, alt);
        Record(u"Bob"_s, {{QDate(2024, 3, 1), 40, 98}});
        m_install->Write(u"user.ini"_s, "Bob;\r\n");
        Open();
        QTest::keyClick(m_dialog->focusWidget(), static_cast<Qt::Key>(key),
                        alt ? Qt::AltModifier : Qt::NoModifier);
        QVERIFY(!m_dialog->isVisible());
    }

    void WithoutUsersThereAreOnlyHeaders()
    {
        Open();
        QCOMPARE(Rows(), QStringList());
        QCOMPARE(m_dialog->focusWidget()->objectName(), u"BtnOk"_s);
    }

private:
    struct Result
    {
        QDate date;
        float speed;
        float rate;
    };

    void Record(const QString &user, const std::vector<Result> &results)
    {
        FakeServices services;
        m_install->MakeFolder(u"Users/"_s + user);
        IUserRecord record;
        record.SetCurrentUser(user);
        for (const Result &result : results) {
            services.clock.today = result.date;
            record.AddTrainingRecord(result.speed, result.rate, u"Screen Text"_s, 3);
        }
        QVERIFY(record.SaveTrainingRecordFile(3));
    }
    void Open()
    {
        m_dialog = std::make_unique<DlgHighScore>(nullptr);
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }
    QTableView *List() const { return m_dialog->findChild<QTableView *>(u"TopList"_s); }
    QStringList Rows() const
    {
        QStringList rows;
        for (int row = 0; row < List()->model()->rowCount(); ++row) {
            QStringList texts;
            for (int column = 0; column < 4; ++column)
                texts += List()->model()->index(row, column).data().toString();
            rows += texts.join(u'|');
        }
        return rows;
    }
    static bool HasInk(const QImage &image, const QRect &place)
    {
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                if (image.pixelColor(x, y).lightness() < 140)
                    return true;
            }
        }
        return false;
    }

    std::optional<SkinnedInstall> m_install;
    std::unique_ptr<DlgHighScore> m_dialog;
};

QTEST_MAIN(TestHighScore)
#include "tst_HighScore.moc"
