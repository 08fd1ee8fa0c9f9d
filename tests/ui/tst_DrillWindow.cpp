#include "support/KeyDrillTest.h"

#include <QListWidget>
#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;

/// The frame of a drill: the end of a lesson, the dialogs, tabs and buttons, and what is stored on leaving.
class tst_DrillWindow : public KeyDrillTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUp(); }
    void cleanup() { TearDown(); }

    void AsksAtTheEnd_data()
    {
        QTest::addColumn<bool>("another");
        QTest::newRow("no: the same lesson again") << false;
        QTest::newRow("yes, and then none chosen") << true;
    }

    void AsksAtTheEnd()
    {
        QFETCH(bool, another);
        m_messages->answer = another ? Public_Function::MessageYes : Public_Function::MessageNo;
        Open(2);
        if (another)
            InDialog([](QWidget *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
        Type(u"1!x"_s);
        QCOMPARE(
            m_messages->texts,
            QStringList(
                u"You have been completed the courses you selected\nContinued to practice other courses?"_s));
        QVERIFY(!IsRunning());
        QCOMPARE(m_services->sound.TakePlayed().size(), 2); // the last key is silent
        if (another) {
            QCOMPARE(Part(u"picProgress"_s)->toolTip(), u"100 %"_s);
            QCOMPARE(Cap(0), u"X: type this key now"_s);
            Type(u"q"_s);
            QCOMPARE(m_messages->texts.size(), 1);
            InDialog([](QWidget *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
            Type(u"x"_s);
            QCOMPARE(m_messages->texts.size(), 2);
        } else {
            QCOMPARE(Keys(), u"as"_s);
            QCOMPARE(Keyboard(), u"Next key: A, left little finger"_s);
            QCOMPARE(Part(u"picProgress"_s)->toolTip(), u"0 %"_s);
            QCOMPARE(Text(u"labSpeed"_s), u"0KPM"_s);
            Type(u"a"_s);
            m_services->clock.Move(1);
            QCOMPARE(Status().mid(0, 3), QStringList({u"0:00:01"_s, u"60KPM"_s, u"100%"_s}));
        }
    }

    void TakesAnotherLesson()
    {
        WriteLesson(u"10.txt"_s, u"Tenth\njk\n"_s);
        WriteLesson(u"9.TXT"_s, u"\nNinth\nuv\n"_s);
        Open(1);
        Type(u"d"_s);
        InDialog([](QWidget *dialog) {
            auto *list = dialog->findChild<QListWidget *>(u"lstLesson"_s);
            QCOMPARE(dialog->focusWidget(), list);
            QCOMPARE(list->count(), 3);
            QCOMPARE(list->currentRow(), 0);
            QCOMPARE(list->item(1)->text(), u"Ninth"_s);
            QTest::keyClick(list, Qt::Key_Down);
            QTest::keyClick(list, Qt::Key_Down);
            QTest::keyClick(list, Qt::Key_Return);
        });
        Button(u"BtnSelectLesson"_s)->click();
        QCOMPARE(Text(u"labLessonMsg"_s), u"Tenth"_s);
        QCOMPARE(Keys(), u"jk"_s);
        QVERIFY(!IsRunning());
        QCOMPARE(Text(u"labVeracity"_s), u"0%"_s);

        InDialog([](QWidget *dialog) {
            auto *list = dialog->findChild<QListWidget *>(u"lstLesson"_s);
            const QPoint second = list->visualItemRect(list->item(1)).center();
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, second);
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, second);
        });
        Button(u"BtnSelectLesson"_s)->click();
        QCOMPARE(Text(u"labLessonMsg"_s), QString()); // what is listed is its first group, though
        QCOMPARE(Keys(), u"Ninth"_s);
        m_drill->close();
        QVERIFY(Stored(u"KeyTrain_FileName"_s).endsWith(u"\\Data\\English\\T_Character\\Standard\\9.TXT"_s));
        QCOMPARE(Stored(u"KeyTrain_Index"_s), u"0"_s);
    }

    void ALessonThatCannotBeLoaded_data()
    {
        QTest::addColumn<QByteArray>("content"); // null: no such file
        QTest::addColumn<QString>("title");
        QTest::newRow("missing") << QByteArray() << QString();
        QTest::newRow("empty") << QByteArray("") << QString();
        QTest::newRow("a title only") << QByteArray("Nothing\r\n \r\n\t \r\n") << u"Nothing"_s;
    }

    void ALessonThatCannotBeLoaded()
    {
        QFETCH(QByteArray, content);
        if (content.isNull())
            QFile::remove(m_install->Native(StandardFolder + "00.txt"_L1));
        else
            m_install->Write(StandardFolder + "00.txt"_L1, content);
        WriteLesson(u"01.txt"_s, u"Good\nfg\n"_s);
        Open(3);
        QCOMPARE(m_messages->texts,
                 QStringList(u"Thesaurus data initialization failure\nPlease choose other courses."_s));
        QTEST(Text(u"labLessonMsg"_s), "title");
        Type(u"ab"_s);
        QVERIFY(!IsRunning());
        QCOMPARE(Keyboard(), QString());

        if (content.isNull()) {
            m_drill->close();
            QCOMPARE(Stored(u"KeyTrain_Index"_s), u"3"_s); // the place is kept until there is another
            return;
        }
        InDialog([](QWidget *dialog) {
            auto *list = dialog->findChild<QListWidget *>(u"lstLesson"_s);
            list->setCurrentRow(list->count() - 1);
            QTest::keyClick(list, Qt::Key_Return);
        });
        Button(u"BtnSelectLesson"_s)->click();
        QCOMPARE(Keys(), u"fg"_s);
        Type(u"f"_s);
        QVERIFY(IsRunning());
    }

    void ChoosesTheSound()
    {
        Store(u"EnSound"_s, u"2"_s, u"Main"_s);
        Open();
        const auto option = [](QWidget *dialog, int mode) {
            return dialog->findChild<QRadioButton *>(u"opnSetting"_s + QString::number(mode));
        };
        InDialog([&](QWidget *dialog) {
            QVERIFY(option(dialog, 2)->isChecked());
            option(dialog, 0)->setChecked(true);
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        Button(u"BtnSetting"_s)->click();
        Type(u"a"_s);
        QCOMPARE(m_services->sound.TakePlayed(), QStringList(u"0.wav"_s));

        InDialog([&](QWidget *dialog) {
            QTest::keyClick(option(dialog, 2), Qt::Key_Up);
            QVERIFY(option(dialog, 1)->isChecked());
            QTest::keyClick(option(dialog, 1), Qt::Key_Return);
        });
        Button(u"BtnSetting"_s)->click();
        QVERIFY(!IsRunning());
        Type(u"s"_s);
        QCOMPARE(m_services->sound.TakePlayed(), QStringList(u"Type.WAV"_s));
        m_drill->close();
        QCOMPARE(Stored(u"EnSound"_s, u"Main"_s), u"1"_s);
        QCOMPARE(Shared().EnSound, 1); // or logging out would store the old one
    }

    void PausesForDialogsAndMinimising_data()
    {
        QTest::addColumn<QString>("button");
        for (const auto &name : {"btnMiniMize", "BtnSelectLesson", "BtnSetting"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void PausesForDialogsAndMinimising()
    {
        QFETCH(QString, button);
        Open();
        Type(u"a"_s);
        m_services->clock.Move(3);
        const bool dialog = button != u"btnMiniMize"_s;
        if (dialog)
            InDialog([](QWidget *window) { QTest::keyClick(window, Qt::Key_Escape); });
        QTest::mouseClick(Button(button), Qt::LeftButton);
        QVERIFY(!IsRunning());
        QCOMPARE(m_navigator->minimized, dialog ? 0 : 1);
        m_services->clock.Move(100);
        Type(u"s"_s);
        QCOMPARE(Status().at(0), u"0:00:03"_s);
    }

    void LeavesAndStoresOnce_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<int>("opened"); // -1: the menu
        QTest::newRow("closed by the window manager") << u"close"_s << -1;
        QTest::newRow("Alt+F4 without a window manager") << u"Alt+F4"_s << -1;
        QTest::newRow("close button") << u"BtnClose"_s << -1;
        QTest::newRow("back button") << u"BtnReturn"_s << -1;
        QTest::newRow("keypad button") << u"btnToNumpad"_s << int(DrillKind::Numpad);
        QTest::newRow("senior tab") << u"DrillTab1"_s << int(DrillKind::KeySenior);
        QTest::newRow("word tab") << u"DrillTab2"_s << int(DrillKind::Word);
        QTest::newRow("text tab") << u"DrillTab3"_s << int(DrillKind::Article);
    }

    void LeavesAndStoresOnce()
    {
        QFETCH(QString, way);
        QFETCH(int, opened);
        Open();
        Type(u"qas"_s);
        if (way == u"close"_s)
            m_drill->close();
        else if (way == u"Alt+F4"_s)
            QTest::keyClick(m_drill, Qt::Key_F4, Qt::AltModifier);
        else
            QTest::mouseClick(Button(way), Qt::LeftButton);
        QTRY_VERIFY(m_drill.isNull());
        QCOMPARE(m_navigator->menuShown, opened < 0 ? 1 : 0);
        QCOMPARE(m_navigator->opened,
                 opened < 0 ? QList<DrillKind>() : QList<DrillKind>({static_cast<DrillKind>(opened)}));
        QCOMPARE(Stored(u"KeyTrain_Index"_s), u"1"_s);
        QCOMPARE(m_install->Read(u"Users/Ann/MistakeEN.Dat"_s), QByteArray("\x01\x00"
                                                                           "A\x01\x00",
                                                                           5));
    }

    void StoresMisses()
    {
        WriteLesson(u"02.txt"_s, u"of another day\nzz"_s);
        Open();
        m_drill->close();
        QTRY_VERIFY(m_drill.isNull());
        QCOMPARE(m_install->Read(StandardFolder + "02.txt"_L1), QByteArray("of another day\nzz"));
        QVERIFY(m_install->Read(u"Users/Ann/MistakeEN.Dat"_s).isNull());

        Open();
        Type(u"xx"_s);
        QTest::keyClick(m_drill, Qt::Key_Return); // a wrong key, whatever it is
        Type(u"ax"_s);
        Type(u"S"_s);
        Store(u"Other"_s, u"kept"_s);
        m_drill->close();
        QTRY_VERIFY(m_drill.isNull());
        QCOMPARE(m_install->Read(u"Users/Ann/MistakeEN.Dat"_s), QByteArray("\x01\x00"
                                                                           "A\x03\x00\x01\x00"
                                                                           "S\x01\x00",
                                                                           10));
        QCOMPARE(Stored(u"Other"_s), u"kept"_s);

        const QByteArray lesson = m_install->Read(StandardFolder + "02.txt"_L1);
        const QList<QByteArray> lines = lesson.split('\n');
        QCOMPARE(lines.size(), 39); // the last line ends, too
        QCOMPARE(lines[0], QByteArray("fallible key training\r"));
        QCOMPARE(lines[1], QByteArray("\r"));
        for (int i = 2; i < 38; ++i) {
            QCOMPARE(lines[i].size(), 7);
            for (const char character : lines[i].chopped(1))
                QVERIFY(character == 'a' || character == 's');
        }

        // The next session adds to the records.
        Open();
        Type(u"q"_s);
        m_drill->close();
        QTRY_VERIFY(m_drill.isNull());
        const QByteArray records = m_install->Read(u"Users/Ann/MistakeEN.Dat"_s);
        QCOMPARE(records.size(), 15);
        QVERIFY(records.contains("D\x01"));
    }

    void StoresAtTheEndOfTheProgram()
    {
        Open();
        Type(u"xa"_s);
        const QByteArray once("\x01\x00"
                              "A\x01\x00",
                              5);
        const auto endProgram = [] { QMetaObject::invokeMethod(qApp, "aboutToQuit"); };
        endProgram();
        QCOMPARE(m_install->Read(u"Users/Ann/MistakeEN.Dat"_s), once);
        m_drill->close();
        endProgram();
        QCOMPARE(m_install->Read(u"Users/Ann/MistakeEN.Dat"_s), once);
    }

    void TabsTakeAClickThatStaysInside()
    {
        Open();
        const QPoint origin(14, 50);
        const auto press = [this, origin](const QPoint &from, const QPoint &to) {
            const auto at = [this, origin](const QPoint &point) { return m_drill->childAt(origin + point); };
            QWidget *target = at(from) ? at(from) : m_drill;
            const auto local = [&](const QPoint &point) { return target->mapFrom(m_drill, origin + point); };
            QTest::mousePress(target, Qt::LeftButton, {}, local(from));
            QTest::mouseRelease(target, Qt::LeftButton, {}, local(to));
        };
        press({680, 20}, {880, 20}); // from the word tab to the text tab
        press({100, 20}, {100, 20}); // its own
        press({578, 2}, {578, 2});   // right of the senior tab's slanted side
        press({985, 20}, {985, 20}); // behind the last
        press({680, 45}, {680, 45}); // below
        QVERIFY(m_navigator->opened.isEmpty());
        press({598, 39}, {412, 1}); // within the senior tab
        QCOMPARE(m_navigator->opened, QList<DrillKind>({DrillKind::KeySenior}));
    }

    void ADrillThatDoesNotExistYet()
    {
        m_navigator->drillsExist = false;
        Open();
        Type(u"x"_s);
        Button(u"DrillTab3"_s)->click();
        QVERIFY(m_drill->isVisible());
        QVERIFY(m_navigator->opened.isEmpty());
        QVERIFY(m_install->Read(u"Users/Ann/Setting.ini"_s).isNull());
        Type(u"a"_s);
        QTest::keyClick(m_drill, Qt::Key_F1);
        Button(u"BtnHelp"_s)->click();
        QCOMPARE(m_navigator->helpPages, QStringList({u"frmEn_KeyTrain_Basic"_s, u"frmEn_KeyTrain_Basic"_s}));
        QCOMPARE(m_navigator->menuShown, 0);
    }
};

QTEST_MAIN(tst_DrillWindow)
#include "tst_DrillWindow.moc"
