#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/shell/ChooseFile.h"
#include "ui/speedtest/DlgSelLsn.h"
#include "ui/speedtest/DlgTestSelect.h"
#include "ui/speedtest/DlgTestSetting.h"
#include "ui/speedtest/PrintText.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrinter>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Public_Function::PrintOutcome;

class TestTestDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_install.emplace();
        m_messages.emplace();
        m_printed.clear();
        m_outcome = PrintOutcome::Printed;
        Public_Function::SetTextPrinter([this](const QString &text, const QString &title) {
            m_printed += title + u'|' + text;
            return m_outcome;
        });
        Public_Function::SetFileAnswerer([this](Public_Function::FilePurpose) { return m_file; });
        for (const char *file : {"English/E_General/lunch.txt", "English/E_General/10.txt",
                                 "English/E_General/2.TXT", "Chinese/E_General/a.txt",
                                 "Chinese/Professional/Law/one.txt", "Chinese/Professional/Law/two.txt",
                                 "Chinese/Professional/Empty/none.doc", "Appendix/Science.txt"})
            m_install->Write(u"Data/"_s + QLatin1StringView(file), "text of \xE6\x96\x87\r\n");
    }
    void cleanup()
    {
        Public_Function::SetTextPrinter({});
        Public_Function::SetFileAnswerer({});
        m_messages.reset();
    }

    void OpensAtTheCurrentText_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("shown");
        QTest::newRow("general") << u"Data\\English\\E_General\\lunch.txt"_s
                                 << u"optLanguage0 optClass0 - 2.TXT 10.txt *lunch.txt"_s;
        QTest::newRow("professional") << u"data\\chinese\\professional\\LAW\\TWO.txt"_s
                                      << u"optLanguage1 optClass1 Law one.txt *two.txt"_s;
        QTest::newRow("gone") << u"Data\\Chinese\\E_General\\b.txt"_s << u"optLanguage1 optClass0 - *a.txt"_s;
    }
    void OpensAtTheCurrentText()
    {
        QFETCH(QString, path);
        DlgSelLsn dialog(Shared().InstallDir + path, nullptr);
        Show(dialog);
        QTEST(Shown(dialog), "shown");
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(dialog.ChosenFile(), Shared().InstallDir + path);
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
    }

    void ChoosesAnotherText()
    {
        const QString before = Shared().InstallDir + u"Data\\English\\E_General\\lunch.txt"_s;
        DlgSelLsn dialog(before, nullptr);
        Show(dialog);
        Click(dialog, "optLanguage1");
        QCOMPARE(Shown(dialog), u"optLanguage1 optClass0 - *a.txt"_s);
        Click(dialog, "optClass1");
        QCOMPARE(Shown(dialog), u"optLanguage1 optClass1 Empty"_s);
        // With nothing to choose there is no OK.
        QTest::keyClick(&dialog, Qt::Key_Enter);
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.ChosenFile(), before);
        auto *folders = dialog.findChild<QComboBox *>(u"cbxFolder"_s);
        folders->setFocus();
        QTest::keyClick(folders, Qt::Key_Down);
        QCOMPARE(Shown(dialog), u"optLanguage1 optClass1 Law *one.txt two.txt"_s);
        auto *files = dialog.findChild<QListWidget *>(u"lstFile"_s);
        const QPoint second = files->visualItemRect(files->item(1)).center();
        QTest::mouseClick(files->viewport(), Qt::LeftButton, {}, second);
        QTest::mouseDClick(files->viewport(), Qt::LeftButton, {}, second);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.ChosenFile(), Shared().InstallDir + u"Data\\Chinese\\Professional\\Law\\two.txt"_s);
    }

    void ReturnsTheMaterial_data()
    {
        QTest::addColumn<QByteArrayList>("clicks");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("path");
        QTest::newRow("book") << QByteArrayList{"optFile1"} << QString() << u"%data\\Appendix\\Science.txt"_s;
        QTest::newRow("free") << QByteArrayList{"OptFreeInput"} << QString() << QString();
        QTest::newRow("own") << QByteArrayList{"optUserFile", "Command1"} << u"%own.txt"_s << u"%own.txt"_s;
        QTest::newRow("own, then book") << QByteArrayList{"optUserFile", "Command1", "OptBookFile"}
                                        << u"%own.txt"_s << u"%data\\Appendix\\Sweden.txt"_s;
        QTest::newRow("own, forgotten")
            << QByteArrayList{"optUserFile", "Command1", "OptFreeInput", "optUserFile"} << u"%own.txt"_s
            << QString();
    }
    void ReturnsTheMaterial()
    {
        QFETCH(QByteArrayList, clicks);
        QFETCH(QString, file);
        QFETCH(QString, path);
        m_file = file.replace(u'%', Shared().InstallDir);
        m_messages->answer = Public_Function::MessageNo;
        DlgTestSelect dialog(nullptr);
        Show(dialog);
        for (const QByteArray &name : clicks)
            Click(dialog, name);
        const bool own = clicks.last() == "Command1" || clicks.last() == "optUserFile";
        QCOMPARE(Part<QWidget>(dialog, "Command1")->isEnabled(), own);
        QCOMPARE(Part<QLabel>(dialog, "lblFile")->text(), clicks.last() == "Command1" ? m_file : QString());
        QTest::keyClick(&dialog, Qt::Key_Return);
        QVERIFY(dialog.Result());
        QCOMPARE(dialog.ChosenPath(), path.replace(u'%', Shared().InstallDir));
        QCOMPARE(m_messages->texts,
                 path.isEmpty() ? QStringList()
                                : QStringList{u"You have selected a text file,\nwould you print it?"_s});
        QCOMPARE(m_printed, QStringList());
    }

    void ArrowsStayWithinTheirOptions()
    {
        DlgTestSelect dialog(nullptr);
        Show(dialog);
        const auto pressed = [](Qt::Key key) {
            QTest::keyClick(QApplication::focusWidget(), key);
            return QApplication::focusWidget()->objectName();
        };
        QCOMPARE(pressed(Qt::Key_Tab), u"optFile0"_s);
        QCOMPARE(pressed(Qt::Key_Right), u"optFile1"_s);
        QCOMPARE(pressed(Qt::Key_Backtab), u"OptBookFile"_s);
        QCOMPARE(pressed(Qt::Key_Down), u"optUserFile"_s);
        QCOMPARE(pressed(Qt::Key_Tab), u"Command1"_s);
        QVERIFY(Part<QAbstractButton>(dialog, "optFile1")->isChecked());
    }

    void CancelledBrowsingKeepsTheFile()
    {
        DlgTestSelect dialog(nullptr);
        Show(dialog);
        Click(dialog, "optUserFile");
        for (const QString &answer : {u"/home/ann/own.txt"_s, QString()}) {
            m_file = answer;
            Click(dialog, "Command1");
            QCOMPARE(Part<QLabel>(dialog, "lblFile")->text(), u"/home/ann/own.txt"_s);
        }
        QTest::keyClick(&dialog, Qt::Key_F4, Qt::AltModifier);
        QVERIFY(!dialog.isVisible());
        QVERIFY(!dialog.Result());
    }

    void PrintsTheChosenText_data()
    {
        QTest::addColumn<QByteArray>("option");
        QTest::addColumn<PrintOutcome>("outcome");
        QTest::addColumn<QStringList>("printed");
        QTest::addColumn<QString>("problem");
        const QStringList science{u"Science.txt|text of 文\r\n"_s};
        QTest::newRow("printed") << QByteArray("optFile1") << PrintOutcome::Printed << science << QString();
        QTest::newRow("no printer") << QByteArray("optFile1") << PrintOutcome::NoPrinter << science
                                    << u"There is no default printer, so \"Science.txt\" is not printed."_s;
        QTest::newRow("missing") << QByteArray("optFile2") << PrintOutcome::Printed << QStringList()
                                 << u"The file \"Christmas.txt\" cannot be read, so it is not printed."_s;
    }
    void PrintsTheChosenText()
    {
        QFETCH(QByteArray, option);
        QFETCH(QString, problem);
        QFETCH(PrintOutcome, outcome);
        m_outcome = outcome;
        DlgTestSelect dialog(nullptr);
        Show(dialog);
        Click(dialog, option);
        Click(dialog, "BtnOk");
        QTEST(m_printed, "printed");
        QCOMPARE(m_messages->texts.mid(1), problem.isEmpty() ? QStringList() : QStringList{problem});
        QVERIFY(dialog.Result());
    }

    void LaysATextOutInPages()
    {
        QPrinter printer;
        printer.setOutputFileName(m_install->Native(u"out.pdf"_s));
        QVERIFY(Public_Function::PrintOn(printer, u"One line of text\n"_s.repeated(150), u"lunch"_s));
        const QByteArray pdf = m_install->Read(u"out.pdf"_s);
        QVERIFY(pdf.startsWith("%PDF"));
        QVERIFY(pdf.count("/Type /Page\n") >= 3);
    }

    void SettingEnablesWhatApplies()
    {
        DlgTestSetting dialog(nullptr);
        Show(dialog);
        QCOMPARE(Enabled(dialog), u"optNewLine0 optNewLine1 optNewLine2 chkKeySound"_s);
        QVERIFY(!dialog.DisplayMode() && !dialog.EndOption());
        dialog.SetDisplayMode(1);
        dialog.SetEndOption(0, 10);
        QCOMPARE(Enabled(dialog), u"optNewLine0 optNewLine1 optNewLine2 chkComp optComp0 optComp1 optComp2 "
                                  "optOverType0 optOverType1 chkKeySound"_s);
        Click(dialog, "chkComp");
        QCOMPARE(dialog.DisplayMode(), 2);
        Click(dialog, "optOverType1");
        QCOMPARE(Enabled(dialog), u"optNewLine0 optNewLine1 optNewLine2 chkComp optComp2 "
                                  "optOverType0 optOverType1 txtMinutes chkKeySound"_s);
        Click(dialog, "chkComp");
        Click(dialog, "optComp0");
        QCOMPARE(dialog.DisplayMode(), 0);
        Click(dialog, "optOverType0");
        QVERIFY(!Part<QWidget>(dialog, "txtMinutes")->isEnabled());
    }

    void SettingIsReadBack()
    {
        DlgTestSetting dialog(nullptr);
        dialog.SetNewLine(2);
        dialog.SetDisplayMode(1);
        dialog.SetEndOption(1, 15);
        dialog.SetKeySound(true);
        Show(dialog);
        QCOMPARE(dialog.NewLine(), 2);
        QCOMPARE(dialog.MinutesText(), u"15"_s);
        Click(dialog, "optNewLine1");
        Click(dialog, "chkKeySound");
        QTest::keyClick(&dialog, Qt::Key_Enter);
        QVERIFY(dialog.ReturnValue() && !dialog.isVisible());
        QCOMPARE(dialog.NewLine(), 1);
        QCOMPARE(dialog.DisplayMode(), 1);
        QCOMPARE(dialog.EndOption(), 1);
        QCOMPARE(dialog.Minutes(), 15);
        QVERIFY(!dialog.KeySound());
        dialog.show();
        Click(dialog, "XBtn_Sys_Close");
        QVERIFY(!dialog.ReturnValue() && !dialog.isVisible());
    }

    void ReadsMinutes_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("minutes");
        const std::array<std::pair<const char *, int>, 10> rows{{{"1234", 123},
                                                                 {"0.4", 0},
                                                                 {"0.5", 0},
                                                                 {"1.5", 2},
                                                                 {"2,5", 2},
                                                                 {"", 0},
                                                                 {".", 0},
                                                                 {"0", 0},
                                                                 {"-3", 3},
                                                                 {"9e9", 99}}};
        for (const auto &[typed, minutes] : rows)
            QTest::newRow(typed) << QString::fromLatin1(typed) << minutes;
    }
    void ReadsMinutes()
    {
        QFETCH(QString, typed);
        DlgTestSetting dialog(nullptr);
        dialog.SetEndOption(1, 10);
        Show(dialog);
        auto *box = Part<QLineEdit>(dialog, "txtMinutes");
        box->clear();
        QTest::keyClicks(box, typed);
        QTEST(dialog.Minutes().value_or(0), "minutes");
    }

    void TabVisitsEveryControlOnce()
    {
        DlgTestSetting dialog(nullptr);
        dialog.SetDisplayMode(0);
        dialog.SetEndOption(1, 3);
        Show(dialog);
        QStringList visited;
        for (int i = 0; i < 8; ++i) {
            visited += QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(visited, QStringList({u"optNewLine0"_s, u"chkComp"_s, u"optComp0"_s, u"optOverType1"_s,
                                       u"txtMinutes"_s, u"chkKeySound"_s, u"BtnOk"_s, u"BtnCancel"_s}));
    }

private:
    static void Show(QWidget &dialog)
    {
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
    }
    template <typename Control>
    static Control *Part(const QWidget &dialog, const QByteArray &name)
    {
        return dialog.findChild<Control *>(QString::fromLatin1(name));
    }
    static void Click(const QWidget &dialog, const QByteArray &name)
    {
        auto *part = Part<QWidget>(dialog, name);
        QTest::mouseClick(part, Qt::LeftButton, {}, QPoint(12, part->height() / 2));
    }
    static QString Shown(const DlgSelLsn &dialog)
    {
        QStringList shown;
        for (const char *name : {"optLanguage0", "optLanguage1", "optClass0", "optClass1"}) {
            if (Part<QAbstractButton>(dialog, name)->isChecked())
                shown += QString::fromLatin1(name);
        }
        const auto *folders = Part<QComboBox>(dialog, "cbxFolder");
        shown += folders->isEnabled() ? folders->currentText() : u"-"_s;
        const auto *files = Part<QListWidget>(dialog, "lstFile");
        for (int row = 0; row < files->count(); ++row)
            shown += (row == files->currentRow() ? u"*"_s : QString()) + files->item(row)->text();
        return shown.join(u' ');
    }
    static QString Enabled(const DlgTestSetting &dialog)
    {
        QStringList enabled;
        for (const char *name :
             {"optNewLine0", "optNewLine1", "optNewLine2", "chkComp", "optComp0", "optComp1", "optComp2",
              "optOverType0", "optOverType1", "txtMinutes", "chkKeySound"}) {
            if (Part<QWidget>(dialog, name)->isEnabled())
                enabled += QString::fromLatin1(name);
        }
        return enabled.join(u' ');
    }

    std::optional<SkinnedInstall> m_install;
    std::optional<FakeAnswers> m_messages;
    QStringList m_printed;
    PrintOutcome m_outcome = PrintOutcome::Printed;
    QString m_file;
};

QTEST_MAIN(TestTestDialogs)
#include "tst_TestDialogs.moc"
