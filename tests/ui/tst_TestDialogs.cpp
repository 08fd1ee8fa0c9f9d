#include "core/engine/TypingSession.h"
#include "support/Dialogs.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/shell/ChooseFile.h"
#include "ui/speedtest/DlgSelLsn.h"
#include "ui/speedtest/DlgTestResult.h"
#include "ui/speedtest/DlgTestSelect.h"
#include "ui/speedtest/DlgTestSetting.h"
#include "ui/speedtest/PrintText.h"
#include "ui/widgets/Chart.h"
#include "ui/widgets/ChartScale.h"

#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QToolTip>

using namespace Qt::Literals::StringLiterals;
using namespace Dialogs;
using Public_Function::PrintOutcome;

/// A session with the mistyped characters that a case needs.
struct Session final : TypingSession
{
    void SaveData(const QString &) override {}
    void CheckString(const QString &strInput) override { AddUnit(strInput.toStdU32String()); }
    bool SetNextLine() override { return false; }
    void BackSpace() override {}
    WrongCharacters GetWrong() const override { return wrong; }
    int FinalUnits() const override { return m_nTyped; }

    WrongCharacters wrong;
};

/// Paints a bar chart; heights of its bars from left to right in pixels.
static QList<int> PaintedHeights(const QList<double> &values, double maximum)
{
    Chart chart(u"chart"_s, u"Chart"_s, nullptr);
    chart.resize(500, 260);
    ChartData data;
    data.kind = ChartData::Kind::Bar;
    data.values = values;
    data.maximum = maximum;
    data.color = QColor(200, 10, 20);
    chart.SetData(data);
    const QImage image = chart.grab().toImage();
    QList<int> heights;
    for (int x = 0, last = 0; x < image.width(); ++x) {
        int height = 0;
        for (int y = 0; y < image.height(); ++y)
            height += image.pixelColor(x, y) == data.color;
        if (height > 0 && last == 0)
            heights += height;
        else if (height > 0)
            heights.last() = qMax(heights.last(), height);
        last = height;
    }
    return heights;
}

class TestTestDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_install.emplace();
        m_messages.emplace();
        Public_Function::SetTextPrinter([this](const QString &text, const QString &title) {
            m_messages->texts += title + u'|' + text;
            return m_outcome;
        });
        Public_Function::SetFileAnswerer(
            [this](Public_Function::FilePurpose) { return std::exchange(m_file, {}); });
        for (const char *file : {"English/E_General/lunch.txt", "English/E_General/10.txt",
                                 "English/E_General/2.TXT", "Chinese/E_General/a.txt",
                                 "Chinese/Professional/Law/one.txt", "Chinese/Professional/Law/two.txt",
                                 "Chinese/Professional/Empty/none.doc", "Appendix/Science.txt"})
            m_install->Write(u"Data/"_s + QLatin1StringView(file), "text of \xE6\x96\x87\r\n");
    }

    void OpensAtTheCurrentText()
    {
        for (const auto &[text, shown] :
             {std::pair(u"English\\E_General\\lunch.txt"_s,
                        u"optLanguage0 optClass0 - 2.TXT 10.txt *lunch.txt"_s),
              std::pair(u"chinese\\professional\\LAW\\TWO.txt"_s,
                        u"optLanguage1 optClass1 Law one.txt *two.txt"_s),
              std::pair(u"Chinese\\E_General\\gone.txt"_s, u"optLanguage1 optClass0 - *a.txt"_s)}) {
            const QString path = Shared().InstallDir + u"Data\\"_s + text;
            DlgSelLsn dialog(path, nullptr);
            Show(dialog);
            QCOMPARE(Shown(dialog), shown);
            QTest::keyClick(&dialog, Qt::Key_Escape);
            QCOMPARE(dialog.ChosenFile(), path);
        }
    }

    void ChoosesAnotherText()
    {
        DlgSelLsn dialog(Shared().InstallDir + u"Data\\English\\E_General\\lunch.txt"_s, nullptr);
        Show(dialog);
        Click(dialog, "optLanguage1");
        Click(dialog, "optClass1");
        QCOMPARE(Shown(dialog), u"optLanguage1 optClass1 Empty"_s);
        // With nothing to choose there is no OK.
        QTest::keyClick(&dialog, Qt::Key_Enter);
        QVERIFY(dialog.isVisible());
        QTest::keyClick(Part<QComboBox>(dialog, "cbxFolder"), Qt::Key_Down);
        QCOMPARE(Shown(dialog), u"optLanguage1 optClass1 Law *one.txt two.txt"_s);
        ClickRow(Part<QListWidget>(dialog, "lstFile"), 1, true);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.ChosenFile(), Shared().InstallDir + u"Data\\Chinese\\Professional\\Law\\two.txt"_s);
    }

    void ReturnsAndPrintsTheMaterial()
    {
        // What is clicked, how printing goes (nothing: the question is answered with No), and the path that
        // is returned with all that is asked (?), printed and said.
        using Row = std::tuple<const char *, std::optional<PrintOutcome>, QString>;
        const std::optional<PrintOutcome> yes = PrintOutcome::Printed;
        for (const auto &[clicks, print, result] :
             {Row{"OptFreeInput", yes, {}},
              // Browsing that is cancelled keeps the file.
              Row{"optUserFile Command1 Command1", {}, u"own.txt ?"_s},
              Row{"optUserFile Command1 OptBookFile", {}, u"data\\Appendix\\Sweden.txt ?"_s},
              Row{"optUserFile Command1 OptFreeInput optUserFile", yes, {}},
              Row{"optFile1", yes, u"data\\Appendix\\Science.txt ? Science.txt|text of 文"_s},
              Row{"optFile1", PrintOutcome::NoPrinter,
                  u"data\\Appendix\\Science.txt ? Science.txt|text of 文 "
                  "There is no default printer, so \"Science.txt\" is not printed."_s},
              Row{"optFile1", PrintOutcome::NoModule,
                  u"data\\Appendix\\Science.txt ? Science.txt|text of 文 "
                  "\"Science.txt\" is not printed, because this file cannot be loaded: "_s +
                      m_install->Native(u"libquorvex_print.so"_s)},
              Row{"optFile2", yes,
                  u"data\\Appendix\\Christmas.txt ? "
                  "The file \"Christmas.txt\" cannot be read, so it is not printed."_s}}) {
            m_messages->texts.clear();
            m_messages->answer = print ? Public_Function::MessageYes : Public_Function::MessageNo;
            m_outcome = print.value_or(PrintOutcome::Failed);
            m_file = Shared().InstallDir + u"own.txt"_s;
            DlgTestSelect dialog(nullptr);
            Show(dialog);
            QVERIFY(!Part<QWidget>(dialog, "Command1")->isEnabled());
            for (const QByteArray &name : QByteArray(clicks).split(' '))
                Click(dialog, name);
            QCOMPARE(Part<QLabel>(dialog, "lblFile")->text().isEmpty(), !result.startsWith(u"own"));
            QTest::keyClick(&dialog, Qt::Key_Return);
            QString told =
                dialog.ChosenPath().remove(Shared().InstallDir) + u' ' + m_messages->texts.join(u' ');
            told.replace(u"You have selected a text file,\nwould you print it?"_s, u"?"_s);
            QCOMPARE(told.simplified(), result);
            QVERIFY(dialog.Result());
        }
    }

    void LaysATextOutInPages()
    {
        const QString module = m_install->Native(u"libquorvex_print.so"_s);
        const auto print = [this] {
            return Public_Function::PrintToFile(u"One line of text\n"_s.repeated(150), u"lunch"_s,
                                                m_install->Native(u"out.pdf"_s));
        };
        QCOMPARE(print(), PrintOutcome::NoModule);
        m_install->Write(u"libquorvex_print.so"_s, "damaged");
        QCOMPARE(print(), PrintOutcome::NoModule);
        QVERIFY(QFile::remove(module));
        QVERIFY(QFile::link(qEnvironmentVariable("QUORVEX_INSTALL") + u"/libquorvex_print.so"_s, module));
        QCOMPARE(print(), PrintOutcome::Printed);
        QVERIFY(m_install->Read(u"out.pdf"_s).count("/Type /Page\n") >= 3);
    }

    void SettingEnablesWhatApplies()
    {
        DlgTestSetting dialog(nullptr);
        Show(dialog);
        const auto enabled = [&] { return Those(dialog, u"^(chkComp|opt[CO]|txt)"_s, "enabled"); };
        QCOMPARE(enabled(), QString());
        QVERIFY(!dialog.DisplayMode() && !dialog.EndOption());
        dialog.SetDisplayMode(1);
        dialog.SetEndOption(0, 10);
        QCOMPARE(enabled(), u"chkComp optComp0 optComp1 optComp2 optOverType0 optOverType1"_s);
        Click(dialog, "chkComp");
        Click(dialog, "optOverType1");
        QCOMPARE(enabled(), u"chkComp optComp2 txtMinutes optOverType0 optOverType1"_s);
        QCOMPARE(dialog.DisplayMode(), 2);
        dialog.SetEndOption(1, 15);
        auto *box = Part<QLineEdit>(dialog, "txtMinutes");
        QString minutes = box->text();
        for (const char *typed : {"1234", "0.5", "1.5", "2,5", "", ".", "-3"}) {
            box->clear();
            QTest::keyClicks(box, QLatin1StringView(typed));
            minutes += u' ' + QString::number(dialog.Minutes().value_or(0));
        }
        QCOMPARE(minutes, u"15 123 0 2 2 0 0 3"_s);
        Click(dialog, "optNewLine1");
        QTest::keyClick(&dialog, Qt::Key_Enter);
        QVERIFY(dialog.ReturnValue() && !dialog.isVisible());
        QCOMPARE(QList({dialog.NewLine(), *dialog.DisplayMode(), *dialog.EndOption()}), QList({1, 2, 1}));
    }

    void ScaleMarksAreRound()
    {
        for (const auto &[maximum, marks] : {std::pair(0, u"0"_s),
                                             {1, u"0 1"_s},
                                             {97, u"0 20 40 60 80 97"_s},
                                             {208, u"0 50 100 150 200"_s}}) {
            QStringList shown;
            for (const double mark : ChartScale(maximum, 5, true).Marks())
                shown += ChartScale::Text(mark);
            QCOMPARE(shown.join(u' '), marks);
        }
    }

    void BarsStandAsHighAsTheirValues()
    {
        const QList<int> runs = PaintedHeights({40, 20, 0, 10}, 40);
        QVERIFY(runs.size() == 3 && runs[0] > 150);
        QVERIFY(qAbs(runs[0] - 2 * runs[1]) <= 3 && qAbs(runs[0] - 4 * runs[2]) <= 6);
    }

    void ShowsTheResult()
    {
        FakeServices services;
        Session session;
        session.StartType();
        for (const int units : {40, 55, 30}) {
            for (int i = 0; i < units; ++i)
                session.CheckString(u"x"_s);
            services.clock.Move(30);
            session.CalTypeSpeed();
        }
        session.StopType();
        session.m_fLastAveSpeed = 12;
        session.m_fLastRate = 90;
        session.m_nBackSpace = 7;
        DlgTestResult dialog(nullptr);
        QStringList texts;
        // Without an input method keys are counted, five to a word.
        for (const QString &ime : {QString(), u"Sunpinyin"_s, u"Intelligent Pinyin"_s}) {
            QVERIFY(dialog.CalChartData(&session, ime));
            texts += Part<QLabel>(dialog, "labLevel")->text().section(u' ', -1);
        }
        for (const char *name : {"Label2", "Label3", "Label4", "labLevel"})
            texts += Part<QLabel>(dialog, name)->text();
        QCOMPARE(texts.join(u'|'), u"Fresher|Beginner|Junior|Correct rate:  90|Average speed: 12|"
                                   "Backspace key: 7|Your level is:   Junior"_s);
        dialog.SelectChart(0);
        Show(dialog);
        auto *chart = Part<QWidget>(dialog, "picChart");
        QStringList points;
        for (const int quarter : {1, 2, 3}) {
            const QPoint place(chart->width() * quarter / 4, chart->height() / 2);
            QHelpEvent hover(QEvent::ToolTip, place, chart->mapToGlobal(place));
            QCoreApplication::sendEvent(chart, &hover);
            points += QToolTip::text();
        }
        QCOMPARE(points.join(u", "_s), u"0.5: 80, 1: 110, 1.5: 60"_s);
        QCOMPARE(chart->accessibleDescription(), points.join(u", "_s));
        Click(dialog, "optChart1");
        // Ten wrong characters have room; of more, the nine most frequent are shown.
        for (const auto &[count, shown] : {std::pair(10, 10), std::pair(11, 9)}) {
            session.wrong = {true, std::vector<int>(std::size_t(count), 3), QStringList(count, u"中"_s)};
            QVERIFY(dialog.CalChartData(&session, {}));
            QCOMPARE(chart->accessibleDescription(), QStringList(shown, u"中: 3"_s).join(u", "_s));
        }
    }

private:
    static QString Shown(const DlgSelLsn &dialog)
    {
        const auto *folders = Part<QComboBox>(dialog, "cbxFolder");
        QString shown = Those(dialog, u"^opt"_s, "checked");
        shown += folders->isEnabled() ? u' ' + folders->currentText() : u" -"_s;
        const QString files = Rows(Part<QListWidget>(dialog, "lstFile"));
        return files.isEmpty() ? shown : shown + u' ' + files;
    }

    std::optional<SkinnedInstall> m_install;
    std::optional<FakeAnswers> m_messages; ///< and what was printed
    PrintOutcome m_outcome{};
    QString m_file;
};

QTEST_MAIN(TestTestDialogs)
#include "tst_TestDialogs.moc"
