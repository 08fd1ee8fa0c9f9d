#include "platform/SingleInstance.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

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

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(tst_SingleInstance)
#include "tst_SingleInstance.moc"
