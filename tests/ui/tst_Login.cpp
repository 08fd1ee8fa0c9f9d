#include "support/SkinnedInstall.h"
#include "ui/shell/DlgUr_UserLogin.h"
#include "ui/shell/ShowMessage.h"
#include "ui/widgets/SkinButton.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestLogin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_install.emplace();
        m_messages.clear();
        m_answer = Public_Function::MessageYes;
        Public_Function::SetMessageAnswerer([this](const Public_Function::Message &message) {
            m_messages.append(message.caption + u'|' + message.text);
            return m_answer;
        });
    }

    void cleanup()
    {
        m_dialog.reset();
        m_install.reset();
    }

    void TypedName_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("user");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("the first user") << QByteArray() << u"Ann"_s << u"Ann"_s << QByteArray("Ann;\r\n");
        QTest::newRow("a further user")
            << QByteArray("Ann;\r\n") << u"Bob"_s << u"Bob"_s << QByteArray("Ann;\r\nBob;\r\n");
        QTest::newRow("a known user in another case")
            << QByteArray("Ann;\r\n") << u"aNN"_s << u"aNN"_s << QByteArray("Ann;\r\n");
        QTest::newRow("the space bar types nothing")
            << QByteArray() << u"A n n"_s << u"Ann"_s << QByteArray("Ann;\r\n");
        QTest::newRow("a bar is a character")
            << QByteArray() << u"a|b"_s << u"a|b"_s << QByteArray("a|b;\r\n");
        QTest::newRow("junk lines go")
            << QByteArray("junk\r\n\r\nAnn;\r\n") << u"Bob"_s << u"Bob"_s << QByteArray("Ann;\r\nBob;\r\n");
        QTest::newRow("nothing typed")
            << QByteArray("Ann;\r\n") << QString() << QString() << QByteArray("Ann;\r\n");
    }

    void TypedName()
    {
        QFETCH(QByteArray, before);
        QFETCH(QString, typed);
        QFETCH(QString, user);
        if (!before.isEmpty())
            m_install->Write(u"user.ini"_s, before);
        Open();
        QVERIFY(NameBox()->hasFocus());
        QTest::keyClicks(NameBox(), typed);
        QTest::keyClick(NameBox(), Qt::Key_Return);
        QCOMPARE(m_dialog->isVisible(), user.isEmpty());
        QCOMPARE(Shared().CurrentUserName, user);
        QTEST(m_install->Read(u"user.ini"_s), "after");
        if (!user.isEmpty())
            QCOMPARE(m_install->Entries(u"Users"_s).size(), 1);
        QVERIFY(!m_install->Entries(u"."_s).contains(u"tmp.ini"_s));
        QVERIFY(m_messages.isEmpty());
    }

    void ForbiddenNameIsRefused_data()
    {
        QTest::addColumn<QString>("name");
        for (const QChar bad : u"?*;:/\\<>\""_s)
            QTest::newRow(qPrintable(bad)) << u"a"_s + bad + u"b"_s;
        QTest::newRow("the folder above") << u".."_s;
    }

    void ForbiddenNameIsRefused()
    {
        QFETCH(QString, name);
        Open();
        QTest::keyClicks(NameBox(), name);
        QTest::keyClick(NameBox(), Qt::Key_Return);
        QCOMPARE(m_messages, QStringList{u"Create account|The user name is unavailable."_s});
        QVERIFY(m_dialog->isVisible());
        QVERIFY(NameBox()->hasFocus());
        QCOMPARE(Shared().CurrentUserName, QString());
        QVERIFY(m_install->Read(u"user.ini"_s).isNull());
    }

    void PastedSpacesAreDropped()
    {
        Open();
        QApplication::clipboard()->setText(u" Ann \t Lee "_s);
        QTest::keyClick(NameBox(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(NameBox()->text(), u"AnnLee"_s);
    }

    void ChosenFromTheList_data()
    {
        QTest::addColumn<QString>("way");
        for (const QString &way : {u"double click"_s, u"click and button"_s, u"click and Enter"_s, u"keys"_s})
            QTest::newRow(qPrintable(way)) << way;
    }

    void ChosenFromTheList()
    {
        QFETCH(QString, way);
        m_install->Write(u"user.ini"_s, "Ann;\r\nBob;\r\n");
        Open();
        QVERIFY(!Delete()->isEnabled());
        if (way == u"keys"_s) {
            QTest::keyClick(NameBox(), Qt::Key_Down);
            QCOMPARE(NameBox()->text(), u"Ann"_s);
            QTest::keyClick(List(), Qt::Key_Down);
            QTest::keyClick(List(), Qt::Key_Return);
        } else {
            ClickRow(1);
            QCOMPARE(NameBox()->text(), u"Bob"_s);
            QVERIFY(Delete()->isEnabled());
            if (way == u"double click"_s)
                QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, RowCentre(1));
            else if (way == u"click and Enter"_s)
                QTest::keyClick(List(), Qt::Key_Enter);
            else
                QTest::mouseClick(m_dialog->findChild<SkinButton *>(u"XBtnEnter"_s), Qt::LeftButton);
        }
        QVERIFY(!m_dialog->isVisible());
        QCOMPARE(Shared().CurrentUserName, u"Bob"_s);
        QCOMPARE(m_install->Entries(u"Users"_s), QStringList{u"Bob"_s});
    }

    void DeletesAfterTheQuestion_data()
    {
        QTest::addColumn<qint16>("answer");
        QTest::addColumn<bool>("byKey");
        QTest::newRow("yes, by button") << qint16(6) << false;
        QTest::newRow("yes, by the Delete key") << qint16(6) << true;
        QTest::newRow("no") << qint16(7) << false;
    }

    void DeletesAfterTheQuestion()
    {
        QFETCH(qint16, answer);
        QFETCH(bool, byKey);
        m_answer = answer;
        m_install->Write(u"user.ini"_s, "Ann;\r\nBob;\r\n");
        m_install->Write(u"Users/Ann/Setting.ini"_s, "[Main]\r\nEnSound=0\r\n");
        m_install->Write(u"Users/Bob/Setting.ini"_s, "[Main]\r\n");
        Open();
        ClickRow(0);
        if (byKey)
            QTest::keyClick(List(), Qt::Key_Delete);
        else
            QTest::mouseClick(Delete(), Qt::LeftButton);
        QCOMPARE(m_messages, QStringList{u"Confirm|Are you sure you want to delete this user?"_s});
        const bool gone = answer == 6;
        QCOMPARE(m_install->Entries(u"Users"_s),
                 gone ? QStringList{u"Bob"_s} : QStringList({u"Ann"_s, u"Bob"_s}));
        QCOMPARE(m_install->Read(u"user.ini"_s), gone ? "Bob;\r\n" : "Ann;\r\nBob;\r\n");
        QCOMPARE(List()->count(), gone ? 1 : 2);
        QCOMPARE(Delete()->isEnabled(), !gone);
        QCOMPARE(NameBox()->text(), QString());
        QVERIFY(m_dialog->isVisible());
    }

    void ClosingChangesNobody()
    {
        m_install->Write(u"user.ini"_s, "Ann;\r\n");
        Shared().CurrentUserName = u"Ann"_s;
        Open();
        QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
        QVERIFY(!m_dialog->isVisible());
        QCOMPARE(Shared().CurrentUserName, u"Ann"_s);
    }

    void ListIgnoresLinesThatAreNoUsers()
    {
        m_install->Write(u"user.ini"_s, "\r\nno end\r\nAnn;\r\nB;C;\r\n\xE5\xBC\xA0;\r\n");
        Open();
        QStringList shown;
        for (int row = 0; row < List()->count(); ++row)
            shown.append(List()->item(row)->text());
        QCOMPARE(shown, QStringList({u"Ann"_s, u"B"_s, u"张"_s}));
    }

private:
    void Open()
    {
        m_dialog = std::make_unique<DlgUr_UserLogin>(nullptr);
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }
    QLineEdit *NameBox() const { return m_dialog->findChild<QLineEdit *>(u"TxtUserName"_s); }
    QListWidget *List() const { return m_dialog->findChild<QListWidget *>(u"LstUser"_s); }
    SkinButton *Delete() const { return m_dialog->findChild<SkinButton *>(u"XBtnDelete"_s); }
    QPoint RowCentre(int row) const { return List()->visualItemRect(List()->item(row)).center(); }
    void ClickRow(int row) { QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, RowCentre(row)); }

    std::optional<SkinnedInstall> m_install;
    std::unique_ptr<DlgUr_UserLogin> m_dialog;
    QStringList m_messages;
    qint16 m_answer = 0;
};

QTEST_MAIN(TestLogin)
#include "tst_Login.moc"
