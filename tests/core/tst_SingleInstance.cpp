#include "platform/SessionSocket.h"
#include "platform/SingleInstance.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>
#include <filesystem>

using namespace Qt::Literals::StringLiterals;

class tst_SingleInstance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        qputenv("DISPLAY", ":7");
        qunsetenv("WAYLAND_DISPLAY");
        qunsetenv("XDG_ACTIVATION_TOKEN");
    }

    void secondAsksFirst()
    {
        SingleInstance first(Folder());
        QVERIFY(first.IsFirst() && !SingleInstance(Folder()).IsFirst()); // also before it listens
        int asked = 0;
        first.SetOnSecondStart([&asked] { ++asked; });
        qputenv("XDG_ACTIVATION_TOKEN", "token 1"); // the desktop's leave to come forward, handed over
        QVERIFY(!SingleInstance(Folder()).IsFirst());
        qunsetenv("XDG_ACTIVATION_TOKEN");
        QTRY_COMPARE(asked, 1);
        QCOMPARE(qgetenv("XDG_ACTIVATION_TOKEN"), "token 1"_ba);
    }

    void deadSocketIsReplaced()
    {
        const QString kept = Folder() + u"/kept"_s;
        QString socket;
        {
            SingleInstance killed(Folder());
            killed.SetOnSecondStart([] {});
            QCOMPARE(QFile::permissions(Socket()).toInt() & 0x77, 0);
            std::filesystem::create_hard_link(Socket().toStdString(), kept.toStdString());
            socket = Socket();
        }
        QVERIFY(!QFile::exists(socket));
        std::filesystem::rename(kept.toStdString(), socket.toStdString());
        SingleInstance first(Folder());
        QVERIFY(!SingleInstance(Folder()).IsFirst()); // nobody answers there
        int asked = 0;
        first.SetOnSecondStart([&asked] { ++asked; });
        QVERIFY(SessionSocket::Send(socket, "something else"));
        QVERIFY(!SingleInstance(Folder()).IsFirst());
        QTRY_COMPARE(asked, 1);
    }

    void firstThatHangsKeepsNobody()
    {
        SingleInstance first(Folder());
        int asked = 0;
        int sent = 0;
        first.SetOnSecondStart([&asked] { ++asked; });
        while (SessionSocket::Send(Socket(), "raise"))
            ++sent;
        QVERIFY(sent > 0 && !SingleInstance(Folder()).IsFirst());
        QTRY_COMPARE(asked, sent);
    }

    void pathTooLongForASocket()
    {
        const QString folder = Folder() + u'/' + QString(200, u'a');
        QVERIFY(QDir().mkdir(folder));
        SingleInstance first(folder);
        first.SetOnSecondStart([] {});
        QVERIFY(first.IsFirst() && !SingleInstance(folder).IsFirst());
    }

    void oneForEachDisplay()
    {
        const SingleInstance first(Folder());
        for (const char *display : {":8", "host.net:7", ":7.1", ":7"}) { // :7.1 is a screen of the same
            qputenv("DISPLAY", display);
            QCOMPARE(SingleInstance(Folder()).IsFirst(), !QByteArray(display).startsWith(":7"));
        }
    }

    void runtimeFolder()
    {
        qputenv("XDG_RUNTIME_DIR", Folder().toUtf8());
        QCOMPARE(SingleInstance::DefaultRuntimeFolder(), Folder());
        qputenv("TMPDIR", Folder().toUtf8());
        const QString open = Folder() + u"/open"_s;
        QVERIFY(QDir().mkdir(open) && QFile::setPermissions(open, QFile::Permissions::fromInt(0x7777)));
        for (const QByteArray &unusable : {QByteArray(), Folder().toUtf8() + "/none", open.toUtf8()}) {
            qputenv("XDG_RUNTIME_DIR", unusable);
            const QString folder = SingleInstance::DefaultRuntimeFolder();
            QVERIFY(folder.startsWith(Folder() + u"/quorvex-"_s));
            QCOMPARE(QFile::permissions(folder).toInt() & 0x77, 0);
            QVERIFY(QFile::setPermissions(folder, QFile::Permissions::fromInt(0x7777)));
            // Open to everybody: not to be trusted.
            QCOMPARE(SingleInstance::DefaultRuntimeFolder(), QString());
            QVERIFY(QDir().rmdir(folder));
        }
        QVERIFY(SingleInstance(QString()).IsFirst() && SingleInstance(Folder() + u"/none"_s).IsFirst());
    }

private:
    QString Folder() const { return m_folder->path(); }

    QString Socket() const
    {
        return QDir(Folder()).entryInfoList({u"*.socket"_s}, QDir::System).value(0).filePath();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(tst_SingleInstance)
#include "tst_SingleInstance.moc"
