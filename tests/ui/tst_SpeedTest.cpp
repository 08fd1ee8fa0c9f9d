#include "support/WindowTest.h"
#include "ui/shell/ChooseFile.h"
#include "ui/speedtest/frmFreeType.h"
#include "ui/speedtest/frmTest.h"
#include "ui/widgets/TypingBox.h"

using namespace Qt::Literals::StringLiterals;

class tst_SpeedTest : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUp(); }
    void cleanup()
    {
        Public_Function::SetFileAnswerer({});
        TearDown();
    }

    void ShowsWhatIsTyped_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("subject"); // after "a", a wrong "x" and "c" of "abcd"
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("takenBack"); // the row of the typing after two backspaces
        QTest::newRow("above") << 0 << u"abcd/----/d"_s << u"axc/rwr"_s << u"a/r"_s;
        QTest::newRow("beside") << 1 << u"abcd/----/d"_s << u"axc/rwr"_s << u"a/r"_s;
        QTest::newRow("over") << 2 << u"axcd/rwr-/d"_s << QString() << u"abcd/r---/b"_s;
        QTest::newRow("alone") << 3 << QString() << u"axc/rwr"_s << u"a/r"_s;
        QTest::newRow("a mode that does not exist") << 9 << u"abcd/----/d"_s << u"axc/rwr"_s << u"a/r"_s;
    }

    void ShowsWhatIsTyped()
    {
        QFETCH(int, mode);
        QFETCH(QString, subject);
        QFETCH(QString, input);
        WriteText(u"abcd\r\n\r\nef"_s);
        Shared().TestDisplayMode[0] = mode;
        Open<frmTest>();
        QCOMPARE(Text(u"labLessonMsg"_s), u"Speed Test/Screen Text —— E_General: lunch.txt"_s);
        QCOMPARE(m_window->windowTitle(), u"Speed Test \\ Screen Text"_s);
        QVERIFY(!IsRunning());
        Type(u"a"_s);
        QVERIFY(IsRunning());
        Type(u"xc"_s);
        QCOMPARE(Line(u"rtfSubject0"_s) ? Row(u"rtfSubject0"_s) : QString(), subject);
        QCOMPARE(Line(u"rtfInput0"_s) ? Row(u"rtfInput0"_s) : QString(), input);
        Press(Qt::Key_Delete);
        QTest::keyClick(Box(), Qt::Key_V, Qt::ControlModifier);
        Press(Qt::Key_Backspace);
        Press(Qt::Key_Backspace);
        QTEST(Row(mode == 2 ? u"rtfSubject0"_s : u"rtfInput0"_s), "takenBack");
        // The typing box lies over the place to type at.
        QCoreApplication::processEvents();
        TypingLine *row = Line(mode == 2 ? u"rtfSubject0"_s : u"rtfInput0"_s);
        QVERIFY(qAbs(Box()->x() - row->x() - row->CellRect(1).x()) <= 1);
        QCOMPARE(Box()->y(), row->y());
    }

    void CountsAndStores()
    {
        WriteText(u"abcde\nfghij"_s);
        Shared().ChSound = 1;
        Open<frmTest>();
        Type(u"abcdX"_s);
        QCOMPARE(m_services->sound.TakePlayed().mid(6),
                 QStringList({u"Type.WAV"_s, u"Type.WAV"_s, u"Type.WAV"_s, u"Error.wav"_s}));
        m_services->clock.Move(30);
        QCOMPARE(Status(), QStringList({u"0:00:30"_s, u"10WPM"_s, u"80%"_s, u"50 %"_s}));
        Type(u"fghi"_s);
        const QStringList result = ResultOf([this] { Type(u"j"_s); });
        QCOMPARE(result,
                 QStringList({u"Correct rate:  90"_s, u"Average speed: 20"_s, u"Backspace key: 0"_s}));
        QCOMPARE(Records("RecordEX.Dat"), QStringList(u"20 90 Screen Text"_s));
        QVERIFY(!IsRunning());
        Type(u"abc"_s); // the page stays, and nothing goes on
        QCOMPARE(Row(u"rtfInput1"_s), u"fghij/rrrrr"_s);
        QVERIFY(m_window->close());
        Type(u"a"_s); // on its way when the window closed
        InputMethod({}, u"a"_s);
        QCOMPARE(Records("RecordEX.Dat").size(), 1);
        QCOMPARE(m_navigator->menuShown, 1);
    }

    void WaitsAtTheEndOfALine_data()
    {
        QTest::addColumn<int>("rule");
        QTest::addColumn<Qt::Key>("goOn");
        QTest::addColumn<Qt::Key>("other");
        QTest::newRow("Enter") << 1 << Qt::Key_Return << Qt::Key_Space;
        QTest::newRow("Space") << 2 << Qt::Key_Space << Qt::Key_Return;
    }

    void WaitsAtTheEndOfALine()
    {
        QFETCH(int, rule);
        QFETCH(Qt::Key, goOn);
        QFETCH(Qt::Key, other);
        WriteText(u"ab\ncd"_s);
        Shared().NewLine = rule;
        Open<frmTest>();
        Type(u"abc"_s);
        Press(other);
        QTest::keyRelease(Box(), goOn); // its press chose a candidate of the input method
        Type(u"c"_s);
        QCOMPARE(Row(u"rtfInput0"_s), u"ab/rr"_s);
        QCOMPARE(Row(u"rtfInput1"_s), u"/"_s);
        Press(goOn);
        Type(u"c"_s);
        QCOMPARE(Row(u"rtfInput1"_s), u"c/r"_s);
        Type(u"d"_s);
        QVERIFY(IsRunning());
        Press(Qt::Key_Backspace); // there is something to type again
        Type(u"x"_s);
        QCOMPARE(Row(u"rtfInput1"_s), u"cx/rw"_s);
        Press(Qt::Key_Pause);
        QVERIFY(!IsRunning());
        if (rule == 2)
            Type(u"z"_s); // goes on, and is not judged
        QCOMPARE(ResultOf([&] { Press(goOn); }).size(), 3);
    }

    void TurnsPages()
    {
        WriteText(u"a1\na2\na3\na4\na5\nb1\nb2"_s);
        Open<frmTest>();
        Press(Qt::Key_Backspace);
        Type(u"a1a2a3a4ax"_s);
        QCOMPARE(Row(u"rtfSubject0"_s), u"b1/--/b"_s);
        QCOMPARE(Row(u"rtfSubject1"_s), u"b2/--"_s);
        QCOMPARE(Row(u"rtfSubject2"_s), u"/"_s);
        Press(Qt::Key_Backspace);
        QCOMPARE(Row(u"rtfSubject4"_s), u"a5/--/5"_s);
        QCOMPARE(Row(u"rtfInput4"_s), u"a/r"_s);
        QCOMPARE(Row(u"rtfInput0"_s), u"a1/rr"_s);
        Press(Qt::Key_Backspace);
        Press(Qt::Key_Backspace);
        QCOMPARE(Row(u"rtfInput3"_s), u"a/r"_s);
        QCOMPARE(Row(u"rtfSubject4"_s), u"a5/--"_s);
        QCOMPARE(Row(u"rtfSubject3"_s), u"a4/--/4"_s);
    }

    void TakesInputMethods()
    {
        WriteText(u"你好𠀀é ab"_s);
        Open<frmTest>();
        InputMethod(u"ni hao"_s, {});
        QVERIFY(!IsRunning());
        QVERIFY(Box()->width() > 40); // shows what is composed
        const QRect cursor = Box()->inputMethodQuery(Qt::ImCursorRectangle).toRect();
        QCOMPARE(Box()->y() + cursor.bottom(), Line(u"rtfInput0"_s)->geometry().bottom());
        InputMethod({}, u"你号"_s);
        InputMethod({}, u"𠀀"_s);
        InputMethod({}, u"é"_s); // a dead key
        InputMethod({}, u"\u3000"_s);
        QCOMPARE(Row(u"rtfInput0"_s), u"你号𠀀é /rwrrr"_s);

        // Where the text stands behind the place to type at, what is composed is shown below it.
        Shared().TestDisplayMode[0] = 2;
        m_window->close();
        Open<frmTest>();
        InputMethod(u"ni"_s, {});
        QVERIFY(Box()->geometry().bottom() > Line(u"rtfSubject0"_s)->geometry().bottom() + 10);
    }

    void EndsAtTheTimeLimit()
    {
        WriteText(u"abcdef"_s);
        Shared().OverType = 1;
        Shared().LimitTime = 1;
        Open<frmTest>();
        Type(u"ab"_s);
        m_services->clock.Move(50);
        Press(Qt::Key_Pause);
        Press(Qt::Key_Pause);
        m_services->clock.Move(500); // does not count
        Type(u"c"_s);
        m_services->clock.Move(10);
        QCOMPARE(Status().at(0), u"0:01:00"_s);
        QVERIFY(IsRunning());
        m_services->clock.Move(0.5);
        QCOMPARE(ResultOf([this] { Status(); }).value(1), u"Average speed: 3"_s);
        QCOMPARE(Records("RecordEX.Dat"), QStringList(u"3 100 Screen Text"_s));
    }

    void StoresWhatIsLeft_data()
    {
        QTest::addColumn<QStringList>("records");
        QTest::addColumn<QStringList>("tests"); // which open instead
        QTest::addColumn<int>("menuShown");
        const QStringList one{u"24 75 Screen Text"_s};
        QTest::newRow("BtnClose") << one << QStringList() << 1;
        QTest::newRow("BtnReturn") << one << QStringList() << 1;
        QTest::newRow("TestTab0") << QStringList() << QStringList() << 0; // its own, which goes on
        QTest::newRow("TestTab1") << one << QStringList(u"free typing"_s) << 0;
        QTest::newRow("TestTab2") << one << QStringList() << 0;
    }

    void StoresWhatIsLeft()
    {
        WriteText(u"abcdef"_s);
        Open<frmTest>();
        Type(u"abx"_s);
        Press(Qt::Key_Pause);
        m_services->clock.Move(100);
        Type(u"d"_s); // the pause is over
        m_services->clock.Move(10);
        const QString way = QString::fromLatin1(QTest::currentDataTag());
        Click(way);
        QTEST(Records("RecordEX.Dat"), "records");
        QTEST(m_navigator->tests, "tests");
        QTEST(m_navigator->menuShown, "menuShown");
        if (way == u"TestTab1"_s) {
            QCOMPARE(Shared().TestSource, 1);
            QCOMPARE(Shared().TestDisplayMode[1], 4);
        } else if (way == u"TestTab2"_s) { // not there yet: the page stays, and the test is over
            Type(u"c"_s);
            QVERIFY(!IsRunning());
            QCOMPARE(Row(u"rtfInput0"_s), u"abxd/rrwr"_s);
            Choose(u"BtnSetting"_s, {});
            Type(u"a"_s);
            QVERIFY(IsRunning());
        }
    }

    void ChangesSettings()
    {
        WriteText(u"abc\ndef"_s);
        Open<frmTest>();
        Type(u"abx"_s);
        Choose(u"BtnSetting"_s, {u"optComp2"_s, u"optNewLine1"_s});
        QCOMPARE(Row(u"rtfSubject0"_s), u"abx/rrw"_s);
        QCOMPARE(Row(u"rtfSubject1"_s), u"def/---/d"_s);
        QVERIFY(!Line(u"rtfInput0"_s));
        for (const bool retest : {false, true}) {
            m_messages->answer = retest ? Public_Function::MessageYes : Public_Function::MessageNo;
            Choose(u"BtnSetting"_s, {u"optOverType1"_s}, u"25"_s);
            QCOMPARE(Shared().OverType, retest ? 1 : 0);
            QCOMPARE(Shared().LimitTime, qint16(retest ? 25 : 10));
            QCOMPARE(IsRunning(), !retest);
        }
        QCOMPARE(m_messages->texts, QStringList(2, u"You changed the setting, would you like to retest?"_s));
        QCOMPARE(Row(u"rtfSubject0"_s), u"abc/---/a"_s);
        QVERIFY(Records("RecordEX.Dat").isEmpty());
        m_window->close();
        QCOMPARE(Stored(u"InComp"_s, u"Exam"_s), u"2"_s);
        QCOMPARE(Stored(u"NewLine"_s, u"Main"_s), u"1"_s);
        QCOMPARE(Stored(u"LimitTime"_s, u"Exam"_s), u"25"_s);
    }

    void TypesFromPaper()
    {
        m_install->Write(u"Data/own.txt"_s, "abc\ndef");
        Shared().TestSource = 1;
        Shared().TestDisplayMode[1] = 4; // as the tab leaves it
        Shared().TestFile[1] = Shared().InstallDir + u"Data\\own.txt"_s;
        Open<frmTest>();
        QCOMPARE(Text(u"labLessonMsg"_s), u"Speed Test/Printed Text"_s);
        QVERIFY(!Line(u"rtfSubject0"_s));
        QVERIFY(!Part(u"BtnSave"_s)->isEnabled());
        Type(u"ax"_s);
        QCOMPARE(Row(u"rtfInput0"_s), u"ax/rw"_s);
        QVERIFY(Part(u"BtnStop"_s)->isEnabled());
        Public_Function::SetFileAnswerer(
            [](Public_Function::FilePurpose) { return Shared().InstallDir + u"typed.txt"_s; });
        Click(u"BtnSave"_s);
        QVERIFY(!IsRunning());
        QCOMPARE(m_install->Read(u"typed.txt"_s), QByteArray("ax\r\n"));
        Click(u"BtnScore"_s);
        QCOMPARE(m_navigator->tests, QStringList(u"top list"_s));
        Type(u"c"_s);
        QVERIFY(IsRunning());
        Click(u"BtnPause"_s);
        QVERIFY(!IsRunning());
        QCOMPARE(ResultOf([this] { Click(u"BtnStop"_s); }).value(0), u"Correct rate:  66"_s);
        QVERIFY(!Part(u"BtnPause"_s)->isEnabled());
    }

    void TypesFreely()
    {
        Open<frmFreeType>();
        QCOMPARE(m_window->windowTitle(), u"Speed Test \\ Printed Text"_s);
        Press(Qt::Key_Backspace);
        QString line(70, u'm'); // wider than the box: the view goes along
        Type(line);
        const int columns = static_cast<int>(Line(u"rtfInput0"_s)->Text().size());
        QCOMPARE(columns, qMin(70, Line(u"rtfInput0"_s)->Columns()));
        Type(QString(qMax(0, Line(u"rtfInput0"_s)->Columns() - 70), u'm') + u"ab"_s);
        QCOMPARE(Line(u"rtfInput1"_s)->Text().right(2), u"ab"_s);
        while (!Line(u"rtfInput1"_s)->Text().isEmpty())
            Press(Qt::Key_Backspace);
        const int full = Line(u"rtfInput0"_s)->Length();
        Press(Qt::Key_Backspace);
        QCOMPARE(Line(u"rtfInput0"_s)->Length(), full - 1);
        m_services->clock.Move(60);
        const QString speed = QString::number(full - 1);
        QCOMPARE(ResultOf([this] { Click(u"BtnOver"_s); }).mid(0, 2),
                 QStringList({u"Correct rate:  0"_s, u"Average speed: "_s + speed}));
        QCOMPARE(Records("RecordEX.Dat"), QStringList(speed + u" 100 Printed Text"_s));

        Choose(u"BtnSelectLesson"_s, {u"OptFreeInput"_s});
        QCOMPARE(Row(u"rtfInput0"_s), u"/"_s);
        m_install->Write(u"Data/Appendix/Sweden.txt"_s, "x");
        m_messages->answer = Public_Function::MessageNo;
        Choose(u"BtnSelectLesson"_s, {u"OptBookFile"_s});
        QCOMPARE(m_navigator->tests, QStringList(u"speed test"_s));
        QCOMPARE(Shared().TestDisplayMode[1], 3);
        QVERIFY(Shared().TestFile[1].endsWith(u"Sweden.txt"_s, Qt::CaseInsensitive));
    }

    void AMillionCharactersInALine()
    {
        WriteText(QString(1'000'000, u'a')); // one word, which is not cut
        Shared().TestDisplayMode[0] = 2;
        Open<frmTest>();
        TypingLine *row = Line(u"rtfSubject0"_s);
        if (row->Length() == 0)
            row = Line(u"rtfSubject1"_s);
        QCOMPARE(row->Length(), 1'000'000);
        QCoreApplication::processEvents();
        const qint64 before = row->PlacedSoFar();
        Type(QString(300, u'a'));
        QVERIFY(row->PlacedSoFar() - before < 300 * 600);
        QCOMPARE(row->Mark(), 300);
        QVERIFY(row->rect().contains(row->CellRect(300)));
        QVERIFY(row->CellRect(0).isNull());
        Press(Qt::Key_Backspace);
        QCOMPARE(row->Mark(), 299);
    }

    void ClosesUnderAQuestion()
    {
        WriteText(u"abc"_s);
        Public_Function::SetMessageAnswerer([this](const Public_Function::Message &) {
            m_window->close(); // as at the end of the session
            return Public_Function::MessageNo;
        });
        Open<frmTest>();
        Type(u"ab"_s);
        Choose(u"BtnSetting"_s, {u"optOverType1"_s}, u"25"_s);
        QCOMPARE(Records("RecordEX.Dat").size(), 1);
        QCOMPARE(Shared().OverType, 0);
    }

    void ATextThatIsMissingOrEmpty()
    {
        Open<frmTest>();
        Type(u"a"_s);
        QVERIFY(!IsRunning());
        m_window->close();
        WriteText(u"\r\n\r\n"_s);
        Open<frmTest>();
        Type(u"a"_s);
        QVERIFY(!IsRunning());
        QVERIFY(Text(u"lblMsg"_s).contains(u"empty"_s));
        m_window->close();
        QVERIFY(Records("RecordEX.Dat").isEmpty());
        WriteText(u"abc"_s);
        Open<frmTest>();
        QVERIFY(QFile::remove(m_install->Native(u"Data/English/E_General/lunch.txt"_s)));
        Choose(u"BtnSetting"_s, {u"optComp2"_s});
        Type(u"a"_s); // the text that was loaded is still there
        QCOMPARE(Row(u"rtfSubject0"_s), u"abc/r--/b"_s);
    }

private:
    void WriteText(const QString &text)
    {
        m_install->Write(u"Data/English/E_General/lunch.txt"_s, text.toUtf8());
    }
    template <typename Window>
    void Open()
    {
        OpenBy<Window>(&Window::ShowTest);
        QCOMPARE(QApplication::focusWidget(), Box());
    }
    TypingBox *Box() const { return Part<TypingBox>("rtfCursor"); }
    /// Does what ends the test, and returns what the result dialog says.
    QStringList ResultOf(const std::function<void()> &end)
    {
        m_result.clear();
        InDialog([this](QWidget *dialog) {
            for (const auto &label : {u"Label2"_s, u"Label3"_s, u"Label4"_s})
                m_result += dialog->findChild<QLabel *>(label)->text();
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        end();
        return m_result;
    }
    /// Opens a dialog by its button, chooses options and types the minutes there, and confirms it.
    void Choose(const QString &button, const QStringList &options, const QString &minutes = {})
    {
        InDialog([options, minutes](QWidget *dialog) {
            for (const QString &option : options)
                dialog->findChild<QRadioButton *>(option)->click();
            if (!minutes.isEmpty())
                dialog->findChild<QLineEdit *>(u"txtMinutes"_s)->setText(minutes);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        Click(button);
    }

    QStringList m_result;
};

QTEST_MAIN(tst_SpeedTest)
#include "tst_SpeedTest.moc"
