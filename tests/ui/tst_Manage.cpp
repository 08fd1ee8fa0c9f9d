#include "support/Dialogs.h"
#include "support/WindowTest.h"
#include "ui/records/FrmUr_Manage.h"
#include "ui/widgets/MarkBox.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

class TestManage : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUp(); }
    void cleanup() { TearDown(); }

    void TheOverviewSumsUp()
    {
        constexpr float infinity = std::numeric_limits<float>::infinity();
        constexpr float nothing = std::numeric_limits<float>::quiet_NaN();
        using Row = std::pair<QByteArray, QString>;
        for (const auto &[file, shown] :
             {Row{{}, u"0 0 0% Type Keyboard Training"_s},
              Row{Days({45.5F}), u"45.5 45.5 90% Type Essay Training"_s},
              Row{Days({20, 60, 10}), u"60 30 90% Type Word Training"_s},
              // What is no number is shown as 0.
              Row{Days({infinity, nothing, 9}) + "cut off", u"9 3 90% Type Tutorial"_s}}) {
            if (!file.isEmpty())
                m_install->Write(u"Users/Ann/RecordEN.Dat"_s, file);
            Open();
            QStringList figures;
            for (const QString &label : {u"labHighest"_s, u"labAverage"_s, u"labRate"_s, u"labModule"_s})
                figures += Text(label).section(u':', 1).remove(u" words per minute"_s);
            QCOMPARE(figures.join(u' '), shown);
        }
    }

    // Which days are left after deleting rows of a page, which page is shown then, and how many rows it has.
    void DeletesWhatWasTicked_data()
    {
        QTest::addColumn<int>("days");
        QTest::addColumn<int>("page");
        QTest::addColumn<QList<int>>("rows");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("page after");
        QTest::newRow("of the second page")
            << 11 << 1 << QList{0, 4} << u"1 2 3 4 5 7 8 9 11"_s << u"Page 2 of 2: 4"_s;
        QTest::newRow("the last page")
            << 11 << 2 << QList{0} << u"1 2 3 4 5 6 7 8 9 10"_s << u"Page 2 of 2: 5"_s;
        QTest::newRow("a whole page") << 8 << 0 << QList{0, 1, 2, 3, 4} << u"6 7 8"_s << u"Page 1 of 1: 3"_s;
        QTest::newRow("all") << 2 << 0 << QList{0, 1} << QString() << u": 0"_s;
    }
    void DeletesWhatWasTicked()
    {
        QFETCH(int, days);
        QFETCH(int, page);
        QFETCH(QList<int>, rows);
        const auto &[file, button, group] = Groups[days % 4];
        const QByteArray before = Days(Numbers(days));
        m_install->Write(file, before);
        Open();
        Click(u"XBtn_"_s + group);
        for (int i = 0; i < page; ++i)
            Click(u"XBtn_PageDown_"_s + group);
        for (const int row : rows)
            QTest::mouseClick(Box(button, row), Qt::LeftButton, {}, QPoint(200, 10));
        m_messages->answer = Public_Function::MessageNo;
        Click(u"XBtn_RecordDelSel_"_s + group);
        Click(u"XBtn_RecordClearAll_"_s + group);
        QCOMPARE(m_messages->texts.size(), 2);
        QCOMPARE(m_install->Read(file), before);
        m_messages->answer = Public_Function::MessageYes;
        Click(u"XBtn_RecordDelSel_"_s + group);
        QStringList left;
        for (const TrainingRecord &record : RecordFile::DecodeTraining(m_install->Read(file)))
            left += QString::number(record.Speed);
        QTEST(left.join(u' '), "left");
        QCOMPARE(m_install->Read(file).isNull(), left.isEmpty());
        QTEST(Text(u"labPage_"_s + group) + u": "_s + QString::number(ShownRows(button)), "page after");
        QVERIFY(!Part(u"XBtn_RecordDelSel_"_s + group)->isEnabled());
        QCOMPARE(Part(u"Chart"_s + group)->isVisible(), left.size() > 1);
    }

    void PagesByKeysAndClearsAll()
    {
        m_install->Write(u"Users/Ann/RecordEN.Dat"_s, Days(Numbers(11)));
        Open();
        for (int i = 0; i < 3; ++i)
            Press(Qt::Key_Down);
        QVERIFY(Part(u"Pic_English"_s)->isVisible() && !Part(u"Pic_Zonghe"_s)->isVisible());
        Press(Qt::Key_Tab);
        QCOMPARE(Focus(), Box(u"ChkEnglish"_s, 0));
        QVERIFY(
            Box(u"ChkEnglish"_s, 0)->accessibleName().startsWith(u"1 speed:1  correct rate:90% A day "_s));
        Press(Qt::Key_End);
        for (int i = 0; i < 5; ++i) // further than there are pages
            Press(Qt::Key_PageDown);
        QVERIFY(Box(u"ChkEnglish"_s, 0)->accessibleName().startsWith(u"11 speed:11 "_s));
        QCOMPARE(Focus(), Box(u"ChkEnglish"_s, 0));
        Press(Qt::Key_Tab);
        QCOMPARE(Focus()->objectName(), u"XBtn_PageUp_English"_s);
        for (int i = 0; i < 2; ++i)
            Press(Qt::Key_Space);
        // A button that has done all it could passes the focus on.
        QCOMPARE(Focus()->objectName(), u"XBtn_PageDown_English"_s);
        Click(u"XBtn_RecordClearAll_English"_s);
        QVERIFY(m_install->Read(u"Users/Ann/RecordEN.Dat"_s).isNull());
        QCOMPARE(Focus()->objectName(), u"XBtn_English"_s);
        Click(u"XBtn_Zonghe"_s);
        QCOMPARE(Text(u"labHighest"_s), u"The Highest Record:0 words per minute"_s);
    }

    void DeletesMistakes()
    {
        std::vector<MistakeRecord> keys;
        std::vector<MistakeRecord> characters;
        for (char16_t i = 0; i < 60; ++i) {
            if (i < 12)
                keys.push_back({QString(QChar(char16_t(u'A' + i))), qint16(12 - i)});
            characters.push_back({QString(QChar(char16_t(0x4e00 + i))), qint16(100 - i)});
        }
        const QByteArray english = RecordFile::Encode(keys);
        m_install->Write(u"Users/Ann/MistakeEN.Dat"_s, english);
        m_install->Write(u"Users/Ann/MistakeCN.Dat"_s, RecordFile::Encode(characters));
        Open();
        Click(u"XBtn_Jianwei"_s);
        QCOMPARE(ShownRows(u"ChkJianwei"_s), 10);
        QTest::mouseClick(Box(u"ChkJianwei"_s, 2), Qt::LeftButton);
        m_messages->answer = Public_Function::MessageNo;
        QTest::keyClick(Box(u"ChkJianwei"_s, 2), Qt::Key_Delete);
        QCOMPARE(m_install->Read(u"Users/Ann/MistakeEN.Dat"_s), english);
        m_messages->answer = Public_Function::MessageYes;
        QTest::keyClick(Box(u"ChkJianwei"_s, 2), Qt::Key_Delete);
        QCOMPARE(m_messages->texts.size(), 2);
        keys.erase(keys.begin() + 2);
        QCOMPARE(m_install->Read(u"Users/Ann/MistakeEN.Dat"_s), RecordFile::Encode(keys));
        QCOMPARE(Box(u"ChkJianwei"_s, 2)->accessibleName(), u"D, mistyped 9 times"_s);

        Click(u"XBtn_Hanzi"_s);
        QCOMPARE(Text(u"labAmount"_s), u"Wrong Word:60"_s);
        QCOMPARE(ShownRows(u"ChkHanzi"_s), 50);
        QTest::mouseClick(Box(u"ChkHanzi"_s, 0), Qt::LeftButton);
        Press(Qt::Key_Down);
        QCOMPARE(Focus(), Box(u"ChkHanzi"_s, 10));
        Click(u"XBtn_SelectAll"_s);
        QTest::keyClick(Box(u"ChkHanzi"_s, 10), Qt::Key_Space); // all but this one
        Click(u"XBtn_RecordDel_Hanzi"_s);
        QCOMPARE(m_messages->texts.size(), 2); // nothing is asked here
        characters.erase(characters.begin() + 11, characters.begin() + 50);
        characters.erase(characters.begin(), characters.begin() + 10);
        QCOMPARE(m_install->Read(u"Users/Ann/MistakeCN.Dat"_s), RecordFile::Encode(characters));
        QCOMPARE(ShownRows(u"ChkHanzi"_s), 11);
    }

    // A folder in the place of the scratch file stands for a medium that cannot be written.
    void WhatCannotBeDeletedStays()
    {
        const QByteArray before = Days(Numbers(3));
        m_install->Write(u"Users/Ann/RecordEN.Dat"_s, before);
        m_install->WriteUnreadable(u"Users/Ann/RecordPY.Dat"_s);
        m_install->MakeFolder(u"Users/Ann/temp/full"_s);
        m_install->MakeFolder(u"Users/Ann/Setting.tmp/full"_s);
        Open();
        Click(u"XBtn_English"_s);
        QTest::mouseClick(Box(u"ChkEnglish"_s, 1), Qt::LeftButton);
        Click(u"XBtn_RecordDelSel_English"_s);
        QCOMPARE(m_messages->texts.size(), 2); // the question, and what went wrong
        QVERIFY(m_messages->texts[1].contains(m_install->Native(u"Users/Ann"_s)));
        QCOMPARE(ShownRows(u"ChkEnglish"_s), 3);
        QCOMPARE(m_install->Read(u"Users/Ann/RecordEN.Dat"_s), before);
        auto *always = Part<QAbstractButton>(u"Chk_AlwaysTest"_s);
        QVERIFY(always->isChecked());
        QTest::keyClick(always, Qt::Key_Space);
        QVERIFY(always->isChecked());
        QCOMPARE(m_messages->texts.size(), 3);
        Click(u"XBtn_Pinyin"_s);
        QVERIFY(Part(u"Pic_Pinyin"_s)->findChild<QLabel *>(u"labNotice"_s)->isVisible());
    }

    // What another copy of the program stored meanwhile stays, and the right ones go.
    void DeletesTheSameRecordsInAChangedFile()
    {
        m_install->Write(u"Users/Ann/RecordEX.Dat"_s, Days({1, 2, 2, 3}));
        Open();
        Click(u"XBtn_Exam"_s);
        for (const int row : {1, 3})
            QTest::mouseClick(Box(u"ChkExam"_s, row), Qt::LeftButton);
        const QByteArray earlier =
            RecordFile::Encode({TrainingRecord{QDate(2020, 1, 1), 77, 90, u"A day"_s, 0}});
        m_install->Write(u"Users/Ann/RecordEX.Dat"_s, earlier + Days({1, 2, 2, 3}));
        Click(u"XBtn_RecordDelSel_Exam"_s);
        const QByteArray all = Days({1, 2, 2, 3});
        const qsizetype length = all.size() / 4;
        QCOMPARE(m_install->Read(u"Users/Ann/RecordEX.Dat"_s),
                 earlier + all.first(length) + all.mid(2 * length, length));
    }

    void AlwaysTestIsStoredAtOnce()
    {
        m_install->Write(u"Users/Ann/Setting.ini"_s, "[Main]\r\nBeginTest=0\r\n");
        Open();
        for (const char *stored : {"[Main]\r\nBeginTest=1\r\n", "[Main]\r\nBeginTest=0\r\n"}) {
            Dialogs::Click(*m_window, "Chk_AlwaysTest");
            QCOMPARE(m_install->Read(u"Users/Ann/Setting.ini"_s), stored);
        }
    }

    void LeavesWithItsResult()
    {
        using Row = std::tuple<Qt::Key, QString, int>; // the key, where it is pressed, the result
        for (const auto &[key, focus, result] :
             {Row{Qt::Key_Return, u"XBtn_Zonghe"_s, 4}, Row{Qt::Key_Enter, u"Chk_AlwaysTest"_s, 4},
              Row{Qt::Key_Space, u"XBtn_ReTest"_s, 4}, Row{Qt::Key_Escape, u"XBtn_Zonghe"_s, 0}}) {
            Open();
            QTest::keyClick(Part(focus), key);
            QVERIFY(!m_window->isVisible());
            QCOMPARE(qobject_cast<QDialog *>(m_window)->result(), result);
            QVERIFY(m_install->Entries(u"Users/Ann"_s).isEmpty()); // looking leaves no trace
        }
    }

    void LongTextsStayInTheirRow()
    {
        const QString text = u"line\nbreak "_s + QString(21'000, u'长');
        m_install->Write(u"Users/Ann/RecordWB.Dat"_s,
                         RecordFile::Encode({TrainingRecord{QDate(2024, 1, 1), 1e30F, 9e9F, text, 2},
                                             TrainingRecord{QDate(2024, 1, 2), 3e38F, 1, text, 2}}));
        m_install->Write(u"Users/Ann/MistakeCN.Dat"_s, RecordFile::Encode({MistakeRecord{text, -5}}));
        Open();
        Click(u"XBtn_Wubi"_s);
        QVERIFY(!m_window->grab().isNull());
        QVERIFY(Box(u"ChkWuBi"_s, 0)->accessibleName().size() < 500);
        QVERIFY(!Box(u"ChkWuBi"_s, 0)->accessibleName().contains(u'\n'));
        Click(u"XBtn_Hanzi"_s);
        Click(u"XBtn_SelectAll"_s);
        Click(u"XBtn_RecordDel_Hanzi"_s);
        QVERIFY(m_install->Read(u"Users/Ann/MistakeCN.Dat"_s).isNull());
    }

private:
    /// A day each from 2024 on, with 90 %.
    static QByteArray Days(const QList<float> &speeds)
    {
        std::vector<TrainingRecord> records;
        QDate day(2024, 1, 1);
        for (const float speed : speeds) {
            records.push_back({day, speed, 90, u"A day"_s, 0});
            day = day.addDays(1);
        }
        return RecordFile::Encode(records);
    }
    static QList<float> Numbers(int count)
    {
        QList<float> numbers;
        for (int i = 1; i <= count; ++i)
            numbers += float(i);
        return numbers;
    }

    void Open()
    {
        delete m_window;
        m_window = new FrmUr_Manage(nullptr);
        Dialogs::Show(*m_window);
    }
    MarkBox *Box(const QString &name, int index) const
    {
        return Part<MarkBox>(name + QString::number(index));
    }
    int ShownRows(const QString &name) const
    {
        int shown = 0;
        for (int i = 0; const MarkBox *box = Box(name, i); ++i)
            shown += box->isVisible();
        return shown;
    }

    const QList<std::array<QString, 3>> Groups{{u"Users/Ann/RecordEN.Dat"_s, u"ChkEnglish"_s, u"English"_s},
                                               {u"Users/Ann/RecordPY.Dat"_s, u"ChkPinyin"_s, u"Pinyin"_s},
                                               {u"Users/Ann/RecordWB.Dat"_s, u"ChkWuBi"_s, u"Wubi"_s},
                                               {u"Users/Ann/RecordEX.Dat"_s, u"ChkExam"_s, u"Exam"_s}};
};

QTEST_MAIN(TestManage)
#include "tst_Manage.moc"
