#include "support/KeyDrillTest.h"

using namespace Qt::Literals::StringLiterals;

/// The frame of a drill: the end of a lesson, the dialogs, tabs and buttons, and what is stored on leaving.
class tst_DrillWindow : public KeyDrillTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUp(); }
    void cleanup() { TearDown(); }

    void AsksAtTheEnd()
    {
        Open(u"2"_s);
        InDialog();
        Type(u"1!x"_s);
        const QString question =
            u"You have been completed the courses you selected\nContinued to practice other courses?"_s;
        QCOMPARE(m_messages->texts, QStringList(question));
        QVERIFY(!IsRunning());
        QCOMPARE(m_services->sound.TakePlayed().size(), 2); // the last key is silent
        // Yes, and then none chosen: the last key again.
        QCOMPARE(Part("picProgress")->toolTip(), u"100 %"_s);
        QCOMPARE(Cap(0), u"X: type this key now"_s);
        m_messages->answer = Public_Function::MessageNo;
        Type(u"qx"_s);
        QCOMPARE(m_messages->texts, QStringList({question, question}));
        QCOMPARE(Keys(), u"as"_s);
        QCOMPARE(Keyboard(), u"Next key: A, left little finger"_s);
        QCOMPARE(Shown(), QStringList({u"0:00:00"_s, u"0KPM"_s, u"0%"_s, u"0 %"_s}));
        Type(u"a"_s);
        m_services->clock.Move(1);
        QCOMPARE(Status().mid(0, 3), QStringList({u"0:00:01"_s, u"60KPM"_s, u"100%"_s}));
    }

    void TakesAnotherLesson()
    {
        WriteLesson("10.txt", u"Tenth\njk\n"_s);
        WriteLesson("9.TXT", u"\nNinth\nuv\n"_s);
        Open(u"1"_s);
        Type(u"d"_s);
        InLessons([](QListWidget *list) {
            QVERIFY(list->hasFocus());
            QCOMPARE(list->count(), 3);
            QCOMPARE(list->currentRow(), 0);
            QCOMPARE(list->item(1)->text(), u"Ninth"_s);
            for (const auto key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
                QTest::keyClick(list, key);
        });
        QCOMPARE(Text("labLessonMsg"), u"Tenth"_s);
        QCOMPARE(Keys(), u"jk"_s);
        QVERIFY(!IsRunning());
        QCOMPARE(Text("labVeracity"), u"0%"_s);

        InLessons([](QListWidget *list) {
            const QPoint second = list->visualItemRect(list->item(1)).center();
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, second);
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, second);
        });
        QCOMPARE(Text("labLessonMsg"), QString()); // what is listed is its first group, though
        QCOMPARE(Keys(), u"Ninth"_s);
        Leave();
        QVERIFY(Stored(u"KeyTrain_FileName"_s).endsWith(u"\\Data\\English\\T_Character\\Standard\\9.TXT"_s));
        QCOMPARE(Stored(u"KeyTrain_Index"_s), u"0"_s);
    }

    void ALessonThatCannotBeLoaded()
    {
        WriteLesson("01.txt", u"Good\nfg\n"_s);
        for (const QString &content : {QString(), u""_s, u"Nothing\r\n \r\n\t \r\n"_s}) {
            if (m_window)
                Leave();
            WriteLesson("00.txt", content);
            if (content.isNull())
                QFile::remove(m_install->Native(StandardFolder + "00.txt"_L1));
            else
                QCOMPARE(Stored(u"KeyTrain_Index"_s), u"3"_s); // the place is kept until there is another
            Open(u"3"_s);
            QCOMPARE(m_messages->texts.takeFirst(),
                     u"Thesaurus data initialization failure\nPlease choose other courses."_s);
            QCOMPARE(Text("labLessonMsg"), content.left(7));
            Type(u"ab"_s);
            QVERIFY(!IsRunning());
            QCOMPARE(Keyboard(), QString());
        }
        InLessons([](QListWidget *list) {
            QTest::keyClick(list, Qt::Key_End);
            QTest::keyClick(list, Qt::Key_Return);
        });
        QCOMPARE(Keys(), u"fg"_s);
        Type(u"f"_s);
        QVERIFY(IsRunning());
    }

    void ChoosesTheSound()
    {
        Store(u"EnSound"_s, u"2"_s, u"Main"_s);
        WriteLesson("00.txt", u"Home row\naaaaaa"_s);
        Open();
        const auto choose = [this](int shown, int mode, Qt::Key leave) {
            InDialog([=](QWidget *dialog) {
                const auto option = [dialog](int number) {
                    return dialog->findChild<QRadioButton *>(u"opnSetting%1"_s.arg(number));
                };
                QVERIFY(option(shown)->isChecked());
                QTest::keyClick(option(shown), Qt::Key_Up);
                QVERIFY(option(mode)->isChecked());
                QTest::keyClick(option(mode), leave);
            });
            Click("BtnSetting");
            Type(u"aq"_s);
            return m_services->sound.TakePlayed();
        };
        QCOMPARE(choose(2, 1, Qt::Key_Escape), QStringList({u"0.wav"_s, u"Error.wav"_s}));
        QCOMPARE(choose(2, 1, Qt::Key_Return), QStringList({u"Type.WAV"_s, u"Error.wav"_s}));
        QCOMPARE(choose(1, 0, Qt::Key_Return), QStringList());
        Leave();
        QCOMPARE(Stored(u"EnSound"_s, u"Main"_s), u"0"_s);
        QCOMPARE(Shared().EnSound, 0); // or logging out would store the old one
    }

    void PausesForDialogsAndMinimising()
    {
        Open();
        for (const char *button : {"btnMiniMize", "BtnSelectLesson", "BtnSetting"}) {
            Type(u"q"_s);
            m_services->clock.Move(3);
            if (m_navigator->minimized > 0)
                InDialog();
            Click(button);
            QVERIFY2(!IsRunning(), button);
            QCOMPARE(m_navigator->minimized, 1);
            m_services->clock.Move(100);
        }
        Type(u"a"_s);
        QCOMPARE(Status().at(0), u"0:00:09"_s);
    }

    void LeavesAndStoresOnce()
    {
        using Row = std::pair<const char *, std::optional<DrillKind>>;
        for (const auto &[way, opens] :
             {Row{"closed by the window manager", {}}, Row{"Alt+F4", {}}, Row{"BtnClose", {}},
              Row{"BtnReturn", {}}, Row{"btnToNumpad", DrillKind::Numpad},
              Row{"DrillTab1", DrillKind::KeySenior}, Row{"DrillTab2", DrillKind::Word},
              Row{"DrillTab3", DrillKind::Article}}) {
            Open();
            Type(u"qas"_s);
            if (QLatin1StringView(way) == "Alt+F4"_L1)
                Press(Qt::Key_F4, Qt::AltModifier);
            else if (Part(way))
                Click(way);
            else
                m_window->close();
            QTRY_VERIFY2(m_window.isNull(), way);
            QCOMPARE(m_navigator->menuShown, opens ? 0 : 1);
            QCOMPARE(m_navigator->opened, opens ? QList{*opens} : QList<DrillKind>());
            QCOMPARE(Stored(u"KeyTrain_Index"_s), u"1"_s);
            QCOMPARE(Mistakes(), QByteArray("0100410100"));
            TearDown();
            SetUp();
        }
    }

    void StoresMisses()
    {
        Open();
        Type(u"xx"_s);
        Press(Qt::Key_Return); // a wrong key, whatever it is
        Type(u"axS"_s);
        Store(u"Other"_s, u"kept"_s);
        Leave();
        QCOMPARE(Mistakes(), QByteArray("01004103000100530100"));
        QCOMPARE(Stored(u"Other"_s), u"kept"_s);
        static const QRegularExpression lesson(u"\\Afallible key training\r\n\r\n([as]{6}\r\n){36}\\z"_s);
        QVERIFY(lesson.match(QString::fromLatin1(m_install->Read(StandardFolder + "02.txt"_L1))).hasMatch());
    }

    void StoresAtTheEndOfTheProgram()
    {
        Open();
        Type(u"xa"_s);
        for (int time = 0; time < 2; ++time) {
            QMetaObject::invokeMethod(qApp, "aboutToQuit");
            QCOMPARE(Mistakes(), QByteArray("0100410100"));
            m_window->close(); // it lives on until the event loop runs
        }
    }

    void TabsTakeAClickThatStaysInside()
    {
        Open();
        const auto press = [this](QPoint from, QPoint to) {
            from += QPoint(14, 50);
            to += QPoint(14, 50);
            QWidget *target = m_window->childAt(from) ? m_window->childAt(from) : m_window.data();
            QTest::mousePress(target, Qt::LeftButton, {}, target->mapFrom(m_window, from));
            QTest::mouseRelease(target, Qt::LeftButton, {}, target->mapFrom(m_window, to));
        };
        press({680, 20}, {880, 20}); // from the word tab to the text tab
        press({100, 20}, {100, 20}); // its own
        press({578, 2}, {578, 2});   // right of the senior tab's slanted side
        press({985, 20}, {985, 20}); // behind the last
        press({680, 45}, {680, 45}); // below
        QVERIFY(m_navigator->opened.isEmpty());
        press({598, 39}, {412, 1}); // within the senior tab
        QCOMPARE(m_navigator->opened, QList{DrillKind::KeySenior});
    }

    void StaysForHelp()
    {
        Open();
        Press(Qt::Key_F1);
        Click("BtnHelp");
        QCOMPARE(m_navigator->helpPages, QStringList({u"frmEn_KeyTrain_Basic"_s, u"frmEn_KeyTrain_Basic"_s}));
        QVERIFY(m_window && m_window->isVisible());
        QVERIFY(m_install->Read(u"Users/Ann/Setting.ini"_s).isNull());
    }

private:
    void InLessons(const std::function<void(QListWidget *)> &choose)
    {
        InDialog([choose](QWidget *dialog) { choose(dialog->findChild<QListWidget *>(u"lstLesson"_s)); });
        Click("BtnSelectLesson");
    }
};

QTEST_MAIN(tst_DrillWindow)
#include "tst_DrillWindow.moc"
