#include "platform/InputMethod.h"
#include "platform/Services.h"
#include "support/DictionaryBytes.h"
#include "support/KeyDrillTest.h"
#include "ui/drills/frmEn_KeyTrain_Advanced.h"
#include "ui/drills/frmEn_WordTrain.h"

using namespace Qt::Literals::StringLiterals;

/// The drills that are typed line by line: the key drill for seniors and the word drill.
class tst_LineDrills : public KeyDrillTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        SetUp();
        WriteDictionary("Dictionary/TOEFL", u"art sky"_s);
    }
    void cleanup() { TearDown(); }

    void JudgesWhatIsTyped_data()
    {
        QTest::addColumn<QString>("typed");  // < Backspace, $ Enter, ^ Escape, | Pause
        QTest::addColumn<QString>("prompt"); // how it looks, and what is marked
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("status");
        QTest::addColumn<QString>("mistakes");
        const auto row = [](const char *title, const QString &typed, const QString &prompt,
                            const QString &input, const QString &status, const QString &mistakes) {
            QTest::newRow(title) << typed << u"aB 1! /"_s + prompt << input << status << mistakes;
        };
        row("nothing", {}, u"------/a"_s, {}, u"0KPM 0% 0 %"_s, {});
        row("the other case", u"Ab"_s, u"ww----/ "_s, u"Ab"_s, u"0WPM 0% 0 %"_s, u"01004201000100410100"_s);
        row("a wrong space", u"aBx1"_s, u"rrwr--/!"_s, u"aBx1"_s, u"60WPM 75% 50 %"_s, {});
        row("a space too early", u"a "_s, u"rw----/ "_s, u"a "_s, u"0WPM 50% 0 %"_s, u"0100420100"_s);
        row("taken back", u"ax<B<<"_s, u"------/a"_s, {}, u"0WPM 66% 0 %"_s, u"0100420100"_s);
        row("Enter and Escape", u"$a^$"_s, u"r-----/B"_s, u"a"_s, u"0WPM 100% 0 %"_s, {});
        row("paused", u"a|B"_s, u"rr----/ "_s, u"aB"_s, u"0WPM 100% 0 %"_s, {});
    }

    void JudgesWhatIsTyped()
    {
        QFETCH(QString, typed);
        WriteLesson("00.txt", u"Title\naB 1!"_s);
        Open<frmEn_KeyTrain_Advanced>();
        QCOMPARE(Text("labLessonMsg"), u"Title"_s);
        TypeKeys(typed);
        m_services->clock.Move(1);
        QTEST(Row("PromptRTB"), "prompt");
        QTEST(Line("InputRTB")->Text(), "input");
        QCOMPARE(Line("InputRTB")->Text().size(), Line("InputRTB")->Length());
        const QStringList status = IsRunning() ? Status() : Shown();
        QTEST(status.mid(1).join(u' '), "status");
        Leave();
        QTEST(QString::fromLatin1(Mistakes()), "mistakes");
    }

    void FillsTheBoxWithoutEverScrolling()
    {
        QString groups;
        for (int i = 0; i < 40; ++i)
            groups += u"Wij%1 "_s.arg(i);
        WriteLesson("00.txt", u"Title\n"_s + groups + QString(120, u'W') + u" end"_s);
        Open<frmEn_KeyTrain_Advanced>();
        TypingLine *prompt = Line("PromptRTB");
        const QFontMetricsF metrics(prompt->font());
        QString before;
        for (QString typed; typed != groups; typed += before) {
            const QString next = prompt->Text().section(u' ', 0, 0) + u' ';
            QVERIFY(before.isEmpty() || metrics.horizontalAdvance(before + next) > prompt->width() - 12);
            before = prompt->Text();
            for (const QChar character : before.chopped(1)) {
                QCOMPARE(prompt->CellRect(0).left(), 6); // the padding
                Type(character);
            }
            Press(Qt::Key_Return); // as good as the last space
        }
        // Alone, and its end comes into sight when it is typed.
        QCOMPARE(prompt->Text(), QString(120, u'W') + u' ');
        Type(QString(119, u'W'));
        QVERIFY(prompt->rect().contains(prompt->CellRect(119)));
    }

    void LeavesNoTracesOfFormerColours()
    {
        WriteLesson("00.txt", u"Title\njfj fjf jyf"_s);
        Open<frmEn_KeyTrain_Advanced>();
        const auto look = [this] {
            QTest::qWait(20);
            return m_window->screen()->grabWindow(m_window->winId()).toImage();
        };
        look();
        for (const QString &keys : {u"j"_s, u"fj"_s, u"qfx"_s, u"<<"_s}) {
            TypeKeys(keys);
            const QImage left = look();
            QVERIFY(!left.isNull());
            m_window->repaint();
            Line("PromptRTB")->repaint();
            Line("InputRTB")->repaint();
            QVERIFY2(left == look(), qPrintable(keys));
        }
    }

    void OnlyKeysEdit()
    {
        Open<frmEn_KeyTrain_Advanced>();
        for (const char *box : {"PromptRTB", "InputRTB"}) {
            QTest::mouseClick(Part(box), Qt::LeftButton);
            QTest::mouseDClick(Part(box), Qt::LeftButton);
            QTest::mouseClick(Part(box), Qt::MiddleButton);
            QTest::mouseClick(Part(box), Qt::RightButton);
            QVERIFY(m_window->hasFocus() && !QApplication::activePopupWidget());
        }
        QGuiApplication::clipboard()->setText(u"as"_s);
        Press(Qt::Key_V, Qt::ControlModifier);
        Press(Qt::Key_Insert, Qt::ShiftModifier);
        Press(Qt::Key_Tab);
        InputMethod(u"ni"_s, {});
        QCOMPARE(Text("labPromptMsg"), u"Please switch to English input"_s);
        InputMethod({}, u"你"_s);
        QCOMPARE(Line("InputRTB")->Text(), QString());
        InputMethod({}, u"a𝒳"_s); // committed without a composition
        QCOMPARE(Row("PromptRTB"), u"as Df 1! x /rw---------/ "_s);
        QCOMPARE(Line("InputRTB")->Text(), u"a𝒳"_s);
        QCOMPARE(Keyboard(), u"Next key: Space, thumb"_s);
    }

    void ADictionaryThatCannotBeLoaded()
    {
        Store(u"WordTrain_FileName"_s, u"Missing"_s);
        Store(u"WordTrain_Index"_s, u"7"_s);
        Open<frmEn_WordTrain>();
        Type(u"ab"_s);
        QVERIFY(!IsRunning());
        Leave();
        QCOMPARE(m_messages->texts, QStringList(u"Thesaurus data initialize failure\n"
                                                "Please choose other file."_s));
        QCOMPARE(Stored(u"WordTrain_Index"_s), u"7"_s); // kept until there is another
    }

    void ExplainsTheWordBeingTyped()
    {
        const QString art = u"art / ɑːt / n. made \"well\""_s;
        const QString sky = u"sky n. blue"_s;
        Store(u"WordTrain_ShowExplanation"_s, u"1"_s);
        Open<frmEn_WordTrain>();
        QCOMPARE(Text("labLessonMsg"), u"Typing Course \\ Word Drill -- TOEFL"_s);
        QCOMPARE(State("picExplanation"), art);
        QCOMPARE(Part("picExplanation")->toolTip(), u"<qt>"_s + art.toHtmlEscaped() + u"</qt>"_s);
        Type(u"axt"_s);
        QCOMPARE(State("picExplanation"), art);
        Type(u" "_s);
        QCOMPARE(State("picExplanation"), sky);
        TypeKeys(u"<"_s);
        QCOMPARE(State("picExplanation"), art);
        Type(u" s"_s);
        ChooseSettings(false);
        QCOMPARE(State("picExplanation"), QString());
        Type(u"k"_s);
        ChooseSettings(true);
        QCOMPARE(State("picExplanation"), sky);
        m_services->clock.Move(0.4);
        Type(u"y"_s);
        QCOMPARE(Status(), QStringList({u"0:00:01"_s, u"60WPM"_s, u"87%"_s, u"50 %"_s}));
        m_messages->answer = Public_Function::MessageNo;
        Type(u" "_s);
        QCOMPARE(m_messages->texts, QStringList(u"You have been completed all the words inTOEFL.\n"
                                                "Continued to practice other thesaurus?"_s));
        QCOMPARE(State("picExplanation"), art);
        Press(Qt::Key_Return);
        QCOMPARE(Line("InputRTB")->Text(), QString());
        Leave();
        QCOMPARE(
            m_install->Read(u"Users/Ann/Setting.ini"_s).replace("\r\n", "|"),
            QStringLiteral("[English]|WordTrain_ShowExplanation=1|WordTrain_Path=%1Data\\English\\T_Word\\"
                           "Dictionary\\|WordTrain_FileName=TOEFL|WordTrain_DictionaryName=TOEFL|"
                           "WordTrain_Index=0|[Main]|EnSound=0|")
                .arg(Shared().InstallDir)
                .toUtf8());
        QCOMPARE(Shared().EnSound, 0);
    }

    void GoesOnWhereTheInstallFolderIsNow()
    {
        Store(u"WordTrain_Path"_s, u"C:\\Old\\Data\\English\\T_Word\\Dictionary\\"_s);
        Store(u"WordTrain_Index"_s, u"5"_s);
        Store(u"WordTrain_ShowExplanation"_s, u"1"_s);
        Open<frmEn_WordTrain>();
        QCOMPARE(Row("PromptRTB"), u"art sky /--------/a"_s);
        QVERIFY(State("picExplanation").startsWith(u"art"_s));
        Type(u"art "_s);
        m_services->clock.Move(60);
        QCOMPARE(Status().at(1), u"-4WPM"_s); // since the word that was stored
    }

    void TakesAnotherDictionary()
    {
        WriteDictionary("General/1000", u"new words"_s);
        Store(u"WordTrain_ShowExplanation"_s, u"1"_s);
        Open<frmEn_WordTrain>();
        Type(u"art "_s);
        ChooseDictionary(1);
        QCOMPARE(m_messages->texts,
                 QStringList(u"Thesaurus data initialization failure\nPlease choose other file."_s));
        Type(u"s"_s);
        QCOMPARE(Row("PromptRTB"), u"art sky /rrrrr---/k"_s);
        ChooseDictionary(2);
        QCOMPARE(Row("PromptRTB"), u"new words /----------/n"_s);
        QCOMPARE(Text("labLessonMsg"), u"Typing Course \\ Word Drill -- Familiar word"_s);
        QCOMPARE(State("picExplanation"), QString());
        QVERIFY(!IsRunning());
        ChooseSettings(true); // which cannot be chosen here
        QCOMPARE(State("picExplanation"), QString());
        Leave();
        QCOMPARE(Stored(u"WordTrain_FileName"_s), u"1000"_s);
        QCOMPARE(Stored(u"WordTrain_ShowExplanation"_s), u"0"_s);
    }

    void NamesTheInputMethod()
    {
        class Wubi final : public NoInputMethod
        {
        public:
            QString AskName(std::chrono::milliseconds) override { return name; }
            QString name;
        } wubi;
        PlatformServices().inputMethod = &wubi;
        Open<frmEn_KeyTrain_Advanced>();
        // No key of the switch arrives but the first.
        QTest::keyPress(m_window, Qt::Key_Control, Qt::ControlModifier);
        wubi.name = u"Wubi"_s;
        Q_EMIT QGuiApplication::inputMethod()->localeChanged();
        QCOMPARE(Text("labPromptMsg"), u"The current input methodWubi"_s);
        Type(u"aa"_s);
        Q_EMIT QGuiApplication::inputMethod()->localeChanged(); // nobody switched it here
        QCOMPARE(Text("labPromptMsg"), u"Suspended by PAUSE/BREAK"_s);
    }

private:
    /// A dictionary that says something about "art" and "sky".
    void WriteDictionary(const char *name, const QString &words)
    {
        const QString path = u"Data/English/T_Word/"_s + QLatin1StringView(name);
        QByteArray list;
        for (const QString &word : words.split(u' '))
            list += ListRecord(word == u"art"_s ? 1 : 2, word.toUtf8(), 1);
        m_install->Write(path + u".ID"_s, list);
        WriteEntryFile(m_install->Native(path + u".Dat"_s),
                       {{1, "&1 ɑːt\r\n% n. \n# made \"well\""}, {2, "% n. \n# blue"}});
    }
    void TypeKeys(const QString &keys)
    {
        static const QHash<QChar, Qt::Key> named{
            {u'<', Qt::Key_Backspace}, {u'$', Qt::Key_Return}, {u'^', Qt::Key_Escape}, {u'|', Qt::Key_Pause}};
        for (const QChar key : keys) {
            if (named.contains(key))
                Press(named[key]);
            else
                Type(QString(key));
        }
    }
    /// Switches the sounds off too.
    void ChooseSettings(bool explain)
    {
        InDialog([explain](QWidget *dialog) {
            dialog->findChild<QRadioButton *>(u"opnSetting0"_s)->click();
            auto *box = dialog->findChild<QCheckBox *>(u"chkShowExplanation"_s);
            if (box->isChecked() != explain)
                QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        Click("BtnSetting");
    }
    /// The first one of a class.
    void ChooseDictionary(int classIndex)
    {
        InDialog([classIndex](QWidget *dialog) {
            dialog->findChild<QComboBox *>(u"cbxClass"_s)->setCurrentIndex(classIndex);
            QTest::keyClick(dialog->findChild<QListWidget *>(u"lstDictionary"_s), Qt::Key_Return);
        });
        Click("BtnSelectLesson");
        QTest::qWait(0);
    }
};

QTEST_MAIN(tst_LineDrills)
#include "tst_LineDrills.moc"
