#include "platform/SingleInstance.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::Literals::StringLiterals;

/// The test starts itself as further copies of the program: `tst_SingleInstance --copy FOLDER` prints "first"
/// and waits to be ended, or prints "second" and ends.
class tst_SingleInstance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void secondAsksFirst();
    void askedBeforeItListens();
    void killedCopyLeavesNoLock();
    void otherDisplays_data();
    void otherDisplays();
    void withoutAFolder();
    void runtimeFolder();

private:
    void Start(QProcess &copy, const QString &display = u":7"_s) const;
    static QByteArray Role(QProcess &copy);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_SingleInstance::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("DISPLAY", ":7");
    qunsetenv("WAYLAND_DISPLAY");
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

void tst_SingleInstance::Start(QProcess &copy, const QString &display) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DISPLAY"_s, display);
    environment.insert(u"XDG_ACTIVATION_TOKEN"_s, u"token 1"_s);
    copy.setProcessEnvironment(environment);
    copy.start(QCoreApplication::applicationFilePath(), {u"--copy"_s, m_folder->path()});
}

QByteArray tst_SingleInstance::Role(QProcess &copy)
{
    while (!copy.canReadLine() && copy.waitForReadyRead(10000)) {
    }
    return copy.readLine().trimmed();
}

void tst_SingleInstance::secondAsksFirst()
{
    SingleInstance first(m_folder->path());
    QVERIFY(first.IsFirst());
    int asked = 0;
    first.SetOnSecondStart([&] { ++asked; });
    for (int round = 1; round <= 3; ++round) {
        QProcess second;
        Start(second);
        QCOMPARE(Role(second), QByteArray("second"));
        QVERIFY(second.waitForFinished());
        QTRY_COMPARE(asked, round);
    }
    QCOMPARE(qgetenv("XDG_ACTIVATION_TOKEN"), QByteArray("token 1"));
    const SingleInstance sameProcess(m_folder->path());
    QVERIFY(!sameProcess.IsFirst());
    QTRY_COMPARE(asked, 4);
}

void tst_SingleInstance::askedBeforeItListens()
{
    SingleInstance first(m_folder->path());
    QVERIFY(!SingleInstance(m_folder->path()).IsFirst());
    QTest::qWait(50); // the request is taken while nobody can come forward yet
    int asked = 0;
    first.SetOnSecondStart([&] { ++asked; });
    QTRY_COMPARE(asked, 1);
}

void tst_SingleInstance::killedCopyLeavesNoLock()
{
    QProcess first;
    Start(first);
    QCOMPARE(Role(first), QByteArray("first"));
    QVERIFY(!SingleInstance(m_folder->path()).IsFirst());
    first.kill();
    QVERIFY(first.waitForFinished());
    QVERIFY(!QDir(m_folder->path()).isEmpty()); // the lock file is still there
    SingleInstance next(m_folder->path());
    QVERIFY(next.IsFirst());
    int asked = 0;
    next.SetOnSecondStart([&] { ++asked; });
    QVERIFY(!SingleInstance(m_folder->path()).IsFirst());
    QTRY_COMPARE(asked, 1);
}

void tst_SingleInstance::otherDisplays_data()
{
    QTest::addColumn<QString>("display");
    QTest::addColumn<QByteArray>("role");
    QTest::newRow("same") << u":7"_s << QByteArray("second");
    QTest::newRow("its second screen") << u":7.1"_s << QByteArray("second");
    QTest::newRow("other display") << u":8"_s << QByteArray("first");
    QTest::newRow("other machine") << u"host.net:7"_s << QByteArray("first");
}

void tst_SingleInstance::otherDisplays()
{
    QFETCH(QString, display);
    QFETCH(QByteArray, role);
    const SingleInstance first(m_folder->path());
    QVERIFY(first.IsFirst());
    QProcess copy;
    Start(copy, display);
    QCOMPARE(Role(copy), role);
    copy.kill();
    copy.waitForFinished();
}

void tst_SingleInstance::withoutAFolder()
{
    QVERIFY(SingleInstance(QString()).IsFirst());
    QVERIFY(SingleInstance(m_folder->filePath(u"none"_s)).IsFirst());
    // Too long for a socket's name: the lock still holds.
    const QString deep = m_folder->filePath(QString(100, u'x'));
    QVERIFY(QDir().mkpath(deep));
    const SingleInstance first(deep);
    QVERIFY(first.IsFirst());
    QVERIFY(!SingleInstance(deep).IsFirst());
}

void tst_SingleInstance::runtimeFolder()
{
    qputenv("XDG_RUNTIME_DIR", m_folder->path().toUtf8());
    QCOMPARE(SingleInstance::DefaultRuntimeFolder(), m_folder->path());
    qputenv("TMPDIR", m_folder->path().toUtf8());
    for (const QByteArray &unusable : {QByteArray(), m_folder->filePath(u"none"_s).toUtf8()}) {
        qputenv("XDG_RUNTIME_DIR", unusable);
        const QString folder = SingleInstance::DefaultRuntimeFolder();
        QVERIFY(folder.startsWith(m_folder->path() + u"/quorvex-"_s));
        QVERIFY(!(QFile::permissions(folder) &
                  (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther)));
        QVERIFY(QFile::setPermissions(
            folder, QFile::Permissions::fromInt(0x7777))); // open to everybody: not to be trusted
        QCOMPARE(SingleInstance::DefaultRuntimeFolder(), QString());
        QVERIFY(QDir().rmdir(folder));
    }
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--copy") == 0) {
        const SingleInstance copy(QString::fromUtf8(argv[2]));
        printf(copy.IsFirst() ? "first\n" : "second\n");
        fflush(stdout);
        return copy.IsFirst() ? QCoreApplication::exec() : 0;
    }
    tst_SingleInstance test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_SingleInstance.moc"
