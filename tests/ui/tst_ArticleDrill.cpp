#include "support/KeyDrillTest.h"
#include "ui/drills/ArticleBox.h"
#include "ui/drills/frmEn_ArticleTrain.h"
#include "ui/widgets/TypingLine.h"

using namespace Qt::Literals::StringLiterals;

/// The text drill of the user Ann, as a person sees and uses it.
class tst_ArticleDrill : public KeyDrillTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        SetUp();
        m_messages->answer = Public_Function::MessageNo;
        WriteArticle("1.txt", "ab cd\r\n\r\nef gh\r\n");
    }
    void cleanup() { TearDown(); }

    void TakesTheStoredForm()
    {
        using Row = std::pair<QString, int>; // stored, boxes
        for (const auto &[stored, boxes] :
             {Row{QString(), 2}, Row{u"7"_s, 10}, Row{u"3"_s, 10}, Row{u"5"_s, 1}, Row{u"x"_s, 10}}) {
            OpenIn(stored);
            QCOMPARE(m_window->findChildren<ArticleBox *>().size(), boxes);
            QCOMPARE(Text("labLessonMsg"), u"Typing Course \\ Text Drill --Adage：11.txt"_s);
            QCOMPARE(Shown(), QStringList({u"0:00:00"_s, u"0WPM"_s, u"0%"_s, u"0 %"_s}));
            Leave();
        }
        QVERIFY(Records("RecordEN.Dat").empty()); // nothing was typed
    }

    void TypesInEachForm_data()
    {
        QTest::addColumn<int>("form");
        QTest::addColumn<QString>("typed"); // in the input boxes, when the second line is reached
        QTest::newRow("pairs") << 3 << u"aX cd|"_s;
        QTest::newRow("page and input") << 4 << u"aX cd\n\n\n"_s;
        QTest::newRow("in place") << 5 << QString();
    }

    void TypesInEachForm()
    {
        QFETCH(int, form);
        QFETCH(QString, typed);
        OpenIn(QString::number(form));
        const int second = form == 3 ? 2 : 0;
        TypingLine *line = Row(0, 0);
        QCOMPARE(line->Mark(), 0);
        for (const auto key : {Qt::Key_Return, Qt::Key_Delete, Qt::Key_Tab, Qt::Key_Left})
            Press(key);
        QVERIFY(!IsRunning());
        Type(u"aX"_s);
        QVERIFY(IsRunning());
        QCOMPARE(line->LookAt(0), TypingLine::Look::Right);
        QCOMPARE(line->LookAt(1), TypingLine::Look::Wrong);
        QCOMPARE(line->Mark(), 2);
        QCOMPARE(m_services->sound.TakePlayed(), QStringList({u"Type.WAV"_s, u"Error.wav"_s}));
        Type(u"q"_s);
        Press(Qt::Key_Backspace);
        QCOMPARE(line->LookAt(2), TypingLine::Look::Untyped);
        Type(u" cd"_s);

        // The line end shows as a sign, and takes Enter or Space only.
        QCOMPARE(line->Text(), u"ab cd↵"_s);
        QCOMPARE(Accessible(0, QAccessible::Description).section(u'\n', -1), u"Next: ↵"_s);
        Type(u"e"_s);
        Press(Qt::Key_Escape);
        QCOMPARE(line->Mark(), 5);
        Type(u" "_s);
        QCOMPARE(line->Text(), u"ab cd"_s);
        QCOMPARE(line->Mark(), -1);
        QCOMPARE(Row(second, form == 3 ? 0 : 1)->Mark(), 0);
        if (form == 3)
            QCOMPARE(Box(1)->Text() + u'|' + Box(3)->Text(), typed);
        else if (form == 4)
            QCOMPARE(Accessible(1, QAccessible::Value), typed);

        m_services->clock.Move(3);
        // One space passed of seven tokens; seven keys, two of them wrong.
        QCOMPARE(Status(), QStringList({u"0:00:03"_s, u"20WPM"_s, u"71%"_s, u"14 %"_s}));
        Leave();
        QCOMPARE(Stored(u"ArticleTrain_Index"_s), u"1"_s);
        QCOMPARE(Stored(u"ArticleTrain_FormType"_s), QString::number(form));
        QCOMPARE(Stored(u"ArticleTrain_ArticleMsg"_s), u"Adage：11.txt"_s);
        QVERIFY(Stored(u"ArticleTrain_FileName"_s).endsWith(u"\\T_Article\\Adage\\1.txt"_s));
        QCOMPARE(Records("RecordEN.Dat"), QStringList(u"20 71 Adage：11.txt Text Training "_s));
    }

    void AsksAtTheEnd()
    {
        OpenIn(u"3"_s);
        Type(u"ab cd ef g"_s);
        m_services->clock.Move(2);
        Status();
        Press(Qt::Key_H);
        Press(Qt::Key_Return);
        QCOMPARE(m_messages->texts,
                 QStringList(
                     u"You have been completed the text you selected\nContinued to practice other text?"_s));
        QCOMPARE(Records("RecordEN.Dat"), QStringList(u"60 100 Adage：11.txt Text Training "_s));
        QCOMPARE(Shown(), QStringList({u"0:00:00"_s, u"0WPM"_s, u"0%"_s, u"0 %"_s}));
        QVERIFY(!IsRunning());
        QCOMPARE(Row(0, 0)->Mark(), 0);
    }

    void GoesOnInAnotherForm()
    {
        QByteArray article;
        for (int i = 0; i < 40; ++i)
            article += "aa bb cc dd\n";
        WriteArticle("1.txt", article);
        OpenIn(u"4"_s);
        Type(u"aa bb cc dd aa b"_s);
        m_services->clock.Move(4);
        InDialog([](QWidget *dialog) {
            dialog->findChild<QRadioButton *>(u"optUIStyle2"_s)->click();
            dialog->findChild<QRadioButton *>(u"opnSetting0"_s)->click();
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        Click("BtnSetting");
        QVERIFY(!IsRunning());
        // Four words behind, at the first line break's place: the next line begins the page.
        QCOMPARE(m_window->findChildren<ArticleBox *>().size(), 1);
        QCOMPARE(Box(0)->Text(), QStringList(10, u"aa bb cc dd"_s).join(u'\n'));
        QCOMPARE(Shown().at(1), u"60WPM"_s);
        m_services->sound.TakePlayed();
        Type(u"aq"_s);
        QVERIFY(IsRunning() && m_services->sound.TakePlayed().isEmpty());
        QTRY_VERIFY(m_window->hasFocus());
        Leave();
        QCOMPARE(Stored(u"EnSound"_s, u"Main"_s), u"0"_s);
    }

    void TakesAnotherArticle()
    {
        WriteArticle("2.txt", " \n\n");
        WriteArticle("3.txt", "zz\n");
        OpenIn();
        Type(u"ab "_s);
        for (const int row : {1, 2}) {
            InDialog([row](QWidget *dialog) {
                dialog->findChild<QListWidget *>(u"lstFile"_s)->setCurrentRow(row);
                QTest::keyClick(dialog, Qt::Key_Return);
            });
            Click("BtnSelectLesson");
            QTest::qWait(0);
            if (row == 1) {
                QCOMPARE(Box(0)->Text().left(5), u"ab cd"_s);
                QCOMPARE(Row(0, 0)->Mark(), 3);
            }
        }
        QCOMPARE(m_messages->texts,
                 QStringList(u"Thesaurus data initialization failure\nPlease choose other text."_s));
        QCOMPARE(Text("labLessonMsg"), u"Typing Course \\ Text Drill -- Adage:3.txt"_s);
        QCOMPARE(Accessible(0, QAccessible::Description).section(u'\n', -1), u"Next: z"_s);
    }

    void NoLineIsWiderThanItsBox()
    {
        WriteArticle("1.txt",
                     (QByteArray("iiii MMMMM w. ").repeated(60) + QByteArray(10'000, 'W') + ' ').repeated(3));
        for (const int form : {3, 4, 5}) {
            OpenIn(QString::number(form));
            for (ArticleBox *box : m_window->findChildren<ArticleBox *>()) {
                TypingLine *line = box->Row(0);
                QVERIFY(line->CellRect(line->Length()).right() < line->width());
                QVERIFY(line->fontMetrics().height() <= line->height());
            }
            const QString first = Row(0, 0)->Text();
            Type(first);
            QCOMPARE(Row(0, 0)->ShownText(), first + u'↵');
            Leave();
        }
    }

private:
    static constexpr QLatin1StringView ArticleFolder{"Data/English/T_Article/Adage/"};

    void WriteArticle(const char *name, const QByteArray &bytes)
    {
        m_install->Write(ArticleFolder + QLatin1StringView(name), bytes);
    }
    void OpenIn(const QString &form = QString())
    {
        if (!form.isNull())
            Store(u"ArticleTrain_FormType"_s, form);
        Open<frmEn_ArticleTrain>();
    }
    ArticleBox *Box(int index) const { return Part<ArticleBox>(u"RTB%1"_s.arg(index)); }
    TypingLine *Row(int box, int row) const { return Box(box)->Row(row); }
    QString Accessible(int box, QAccessible::Text kind) const
    {
        return QAccessible::queryAccessibleInterface(Box(box))->text(kind);
    }
};

QTEST_MAIN(tst_ArticleDrill)
#include "tst_ArticleDrill.moc"
