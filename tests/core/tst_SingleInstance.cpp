#include "platform/SingleInstance.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::Literals::StringLiterals;

/// The test starts itself as a further copy of the program: `tst_SingleInstance --copy FOLDER` prints "first"
/// and waits to be ended, or prints "second" and ends.
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
        QProcess killed;
        QCOMPARE(RoleOf(killed), "first"_ba);
        QVERIFY(!SingleInstance(Folder()).IsFirst());
        killed.kill();
        QVERIFY(killed.waitForFinished() && !QDir(Folder()).isEmpty()); // the lock file is still there
        SingleInstance first(Folder());
        QVERIFY(first.IsFirst() && !SingleInstance(Folder()).IsFirst()); // also before it listens
        int asked = 0;
        first.SetOnSecondStart([&asked] { ++asked; });
        QVERIFY(!SingleInstance(Folder()).IsFirst());
        QTRY_COMPARE(asked, 1);
        QProcess second;
        QCOMPARE(RoleOf(second), "second"_ba);
        QVERIFY(second.waitForFinished());
        QTRY_COMPARE(asked, 2);
        QCOMPARE(qgetenv("XDG_ACTIVATION_TOKEN"), "token 1"_ba);
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
        for (const QByteArray &unusable : {QByteArray(), Folder().toUtf8() + "/none"}) {
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

    QByteArray RoleOf(QProcess &copy) const
    {
        copy.setEnvironment(QProcess::systemEnvironment() << u"XDG_ACTIVATION_TOKEN=token 1"_s);
        copy.start(QCoreApplication::applicationFilePath(), {u"--copy"_s, Folder()});
        copy.waitForReadyRead(10000);
        return copy.readLine().trimmed();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--copy") == 0) {
        SingleInstance copy(QString::fromUtf8(argv[2]));
        copy.SetOnSecondStart([] {});
        printf(copy.IsFirst() ? "first\n" : "second\n");
        fflush(stdout);
        return copy.IsFirst() ? QCoreApplication::exec() : 0;
    }
    tst_SingleInstance test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_SingleInstance.moc"
