#include "platform/WriteFault.h"
#include "support/Dialogs.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/shell/DlgUr_UserLogin.h"
#include "ui/widgets/SkinButton.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::Literals::StringLiterals;

class TestLogin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_dialog.reset(); }

    void TypedName()
    {
        using Row = std::array<QByteArray, 3>; // the list of users before, what is typed, the list after
        for (const auto &[before, typed, after] :
             {Row{"", "Ann", "Ann;\r\n"}, Row{"Ann;\r\n", "Bob", "Ann;\r\nBob;\r\n"},
              Row{"Ann;\r\n", "aNN", "Ann;\r\n"}, Row{"", "A n n", "Ann;\r\n"}, Row{"", "a|b", "a|b;\r\n"},
              Row{"junk\r\n\r\nAnn;\r\n", "Bob", "Ann;\r\nBob;\r\n"}, Row{"Ann;\r\n", "", "Ann;\r\n"},
              Row{"", QByteArray(200, 'x'), QByteArray(200, 'x') + ";\r\n"}}) {
            Open(before);
            QVERIFY(m_name->hasFocus());
            QTest::keyClicks(m_name, QString::fromLatin1(typed));
            QTest::keyClick(m_name, Qt::Key_Return);
            QCOMPARE(m_dialog->isVisible(), typed.isEmpty());
            QCOMPARE(Shared().CurrentUserName, QString::fromLatin1(typed).remove(u' '));
            QCOMPARE(m_install->Read(u"user.ini"_s), after);
            QCOMPARE(m_install->Entries(u"Users"_s).isEmpty(), typed.isEmpty());
        }
        QVERIFY(m_answers.texts.isEmpty());
    }

    void ForbiddenNameIsRefused()
    {
        for (const QString &name : {u"a?b"_s, u".."_s}) {
            Open("");
            QTest::keyClicks(m_name, name);
            QTest::keyClick(m_name, Qt::Key_Return);
            QCOMPARE(m_answers.texts, QStringList(u"The user name is unavailable."_s));
            m_answers.texts.clear();
            QVERIFY(m_dialog->isVisible() && m_name->hasFocus());
            QCOMPARE(Shared().CurrentUserName, QString());
            QVERIFY(m_install->Read(u"user.ini"_s).isEmpty());
        }
        m_name->clear();
        QApplication::clipboard()->setText(u" Ann \t Lee "_s);
        QTest::keyClick(m_name, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(m_name->text(), u"AnnLee"_s);
    }

    void ChosenFromTheList()
    {
        for (const bool byKeys : {false, true}) {
            Open("Ann;\r\n\u674E;\r\n");
            QVERIFY(!Button(u"XBtnDelete"_s)->isEnabled());
            if (byKeys) {
                QTest::keyClick(m_name, Qt::Key_Down);
                QCOMPARE(m_name->text(), u"Ann"_s);
                QTest::keyClick(m_list, Qt::Key_Down);
                QTest::keyClick(m_list, Qt::Key_Return);
            } else {
                Dialogs::ClickRow(m_list, 1);
                QVERIFY(Button(u"XBtnDelete"_s)->isEnabled());
                QTest::mouseClick(Button(u"XBtnEnter"_s), Qt::LeftButton);
            }
            QCOMPARE(m_name->text(), u"李"_s);
            QVERIFY(!m_dialog->isVisible());
            QCOMPARE(Shared().CurrentUserName, u"李"_s);
            QCOMPARE(m_install->Entries(u"Users"_s), QStringList{u"李"_s});
        }
    }

    void DeletesAfterTheQuestion()
    {
        Open("Ann;\r\nBob;\r\n");
        m_install->Write(u"Users/Ann/Setting.ini"_s, "[Main]\r\nEnSound=0\r\n");
        Shared().CurrentUserName = u"Bob"_s;
        for (const qint16 answer : {Public_Function::MessageNo, Public_Function::MessageYes}) {
            m_answers.answer = answer;
            Dialogs::ClickRow(m_list, 0);
            if (answer == Public_Function::MessageYes) { // not on a full disk
                CurrentWriteFault() = WriteFault();
                QTest::keyClick(m_list, Qt::Key_Delete);
                CurrentWriteFault().reset();
                QVERIFY(m_answers.texts.takeLast().startsWith(u"This user could not be deleted"_s));
                QCOMPARE(m_list->count(), 2);
                m_answers.texts.clear();
            }
            QTest::keyClick(m_list, Qt::Key_Delete);
            QCOMPARE(m_answers.texts.takeLast(), u"Are you sure you want to delete this user?"_s);
            const bool gone = answer == Public_Function::MessageYes;
            QCOMPARE(m_install->Read(u"user.ini"_s), gone ? "Bob;\r\n" : "Ann;\r\nBob;\r\n");
            QCOMPARE(m_install->Entries(u"Users"_s).isEmpty(), gone);
            QCOMPARE(Button(u"XBtnDelete"_s)->isEnabled(), !gone);
            QCOMPARE(m_name->text(), QString());
            if (!gone) {
                Dialogs::ClickRow(m_list, 0);
                QCOMPARE(m_name->text(), u"Ann"_s);
            }
        }
        QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
        QVERIFY(!m_dialog->isVisible());
        QCOMPARE(Shared().CurrentUserName, u"Bob"_s);
    }

private:
    void Open(const QByteArray &users)
    {
        m_dialog.reset();
        m_install.emplace();
        if (!users.isEmpty())
            m_install->Write(u"user.ini"_s, users);
        m_dialog = std::make_unique<DlgUr_UserLogin>(nullptr);
        m_name = m_dialog->findChild<QLineEdit *>(u"TxtUserName"_s);
        m_list = m_dialog->findChild<QListWidget *>(u"LstUser"_s);
        Dialogs::Show(*m_dialog);
    }
    SkinButton *Button(const QString &name) const { return m_dialog->findChild<SkinButton *>(name); }

    FakeAnswers m_answers;
    std::optional<SkinnedInstall> m_install;
    std::unique_ptr<DlgUr_UserLogin> m_dialog;
    QLineEdit *m_name = nullptr;
    QListWidget *m_list = nullptr;
};

QTEST_MAIN(TestLogin)
#include "tst_Login.moc"
