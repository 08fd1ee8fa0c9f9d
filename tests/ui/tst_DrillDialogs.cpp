#include "support/Dialogs.h"
#include "support/SkinnedInstall.h"
#include "ui/drills/DlgEn_ArticleLesson.h"
#include "ui/drills/DlgEn_WordLesson.h"

#include <QComboBox>
#include <QListWidget>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Dialogs;

class tst_DrillDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_install.emplace();
        for (const char *file :
             {"T_Article/Adage/1.txt", "T_Article/Adage/11.txt", "T_Article/Adage/2.TXT",
              "T_Article/Bare/notes.doc", "Professional/Law/one.txt", "Professional/Law/two.txt"})
            m_install->Write(u"Data/English/"_s + QLatin1StringView(file), "text");
    }

    void HandsBackADictionary()
    {
        using Row = std::tuple<int, int, QString>; // steps down in the two lists, name, folder and file
        for (const auto &[classSteps, listSteps, result] :
             {Row{0, 0, u"Toefl|Dictionary\\|TOEFL"_s}, Row{1, 10, u"Psychics|Professional\\|PsychicsEN"_s},
              Row{2, 0, u"Familiar word|General\\|1000"_s}, Row{1, 3, u"||"_s}}) {
            const bool cancelled = result == u"||"_s;
            DlgEn_WordLesson dialog(nullptr);
            Show(dialog);
            Press(Part<QComboBox>(dialog, "cbxClass"), Qt::Key_Down, classSteps);
            Press(Part<QListWidget>(dialog, "lstDictionary"), Qt::Key_Down, listSteps);
            QTest::keyClick(&dialog, cancelled ? Qt::Key_Escape : Qt::Key_Enter);
            QCOMPARE(dialog.ReturnValue(), cancelled ? DialogAnswer::Cancelled : DialogAnswer::Confirmed);
            const QString root = Shared().InstallDir + u"Data\\English\\T_Word\\"_s;
            QCOMPARE(dialog.DictionaryName() + u'|' + dialog.DictionaryPath().remove(root) + u'|' +
                         dialog.DictionaryFileName(),
                     result);
        }
    }

    void HandsBackAnArticle()
    {
        DlgEn_ArticleLesson dialog(nullptr);
        Show(dialog);
        auto *articles = Part<QComboBox>(dialog, "cbxFolder0");
        auto *professional = Part<QComboBox>(dialog, "cbxFolder1");
        const auto *files = Part<QListWidget>(dialog, "lstFile");
        QCOMPARE(Rows(files), u"*1.txt 2.TXT 11.txt"_s);
        QVERIFY(articles->isEnabled() && !professional->isEnabled());

        // A folder without texts leaves the list.
        Press(articles, Qt::Key_Down, 1);
        QCOMPARE(articles->currentText(), u"Bare"_s);
        QCOMPARE(Rows(files), u"*1.txt 2.TXT 11.txt"_s);

        Click(dialog, "OpnClass1");
        QCOMPARE(Rows(files), u"*one.txt two.txt"_s);
        QVERIFY(!articles->isEnabled() && professional->isEnabled());
        ClickRow(files, 1, true);
        QCOMPARE(dialog.ReturnValue(), DialogAnswer::Confirmed);
        QCOMPARE(dialog.ArticleFile(), Shared().InstallDir + u"Data\\English\\Professional\\Law\\two.txt"_s);
        QCOMPARE(dialog.ArticleMessage(), u"Law:two.txt"_s);
    }

private:
    static void Press(QWidget *widget, Qt::Key key, int times)
    {
        for (int i = 0; i < times; ++i)
            QTest::keyClick(widget, key);
    }
    std::optional<SkinnedInstall> m_install;
};

QTEST_MAIN(tst_DrillDialogs)
#include "tst_DrillDialogs.moc"
