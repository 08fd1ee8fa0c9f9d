#include "platform/DBusInputMethod.h"
#include "support/FakeBus.h"
#include "support/FakeServices.h"
#include "support/TestInstall.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QtTest>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds untilAnswered = 20s;

/// A row of Fcitx 5's list: id, name and what it says besides.
struct FcitxRow
{
    QString id;
    QString name;
};

QDBusArgument &operator<<(QDBusArgument &argument, const FcitxRow &row)
{
    argument.beginStructure();
    argument << row.id << row.name << u"拼音"_s << u"icon"_s << u"拼"_s << u"zh_CN"_s << true;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, FcitxRow &)
{
    return argument;
}

QVariant IBusEngine(const QString &id, const QString &name)
{
    QDBusArgument engine;
    engine.beginStructure();
    engine << u"IBusEngineDesc"_s << QVariantMap() << id << name << u"description"_s << u"zh_CN"_s;
    engine.endStructure();
    const auto boxed = [](const QVariant &inner) { return QVariant::fromValue(QDBusVariant(inner)); };
    return boxed(boxed(QVariant::fromValue(engine)));
}

} // namespace

Q_DECLARE_METATYPE(FcitxRow)

/// Against buses of its own, on which something speaks like Fcitx 5 or IBus.
class tst_InputMethod : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        qDBusRegisterMetaType<FcitxRow>();
        qDBusRegisterMetaType<QList<FcitxRow>>();
        m_fcitx.reset();
        m_ibus.reset();
        m_install = std::make_unique<TestInstall>();
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
        qputenv("XDG_CONFIG_HOME", m_install->Native({}).toUtf8());
        qputenv("DISPLAY", ":7.0");
        for (const char *const name : {"IBUS_ADDRESS", "WAYLAND_DISPLAY", "QT_IM_MODULE"})
            qunsetenv(name);
    }

    void names()
    {
        const QList<std::array<QString, 3>> rows{
            {u"libpinyin"_s, u"Intelligent Pinyin"_s, u"Intelligent Pinyin"_s},
            {u"pinyin"_s, u"拼音"_s, u"拼音 (Pinyin)"_s},
            {u"libpinyin"_s, QString(), u"libPinyin"_s},
            {u"shuangpin"_s, u"Shuangpin"_s, u"Shuangpin (Pinyin)"_s},
            {u"somebody"_s, u"某双拼"_s, u"某双拼 (Pinyin)"_s},
            {u"wbx"_s, u"Wubi"_s, u"Wubi"_s},
            {u"keyboard-us"_s, u"English (US)"_s, QString()},
            {u"xkb:us::eng"_s, u"English (US)"_s, QString()}};
        for (const auto &[id, name, expected] : rows) {
            init();
            StartFcitx(id, name);
            QCOMPARE(DBusInputMethod().AskName(untilAnswered), expected);
            m_fcitx.reset();
            StartIBus(id, name);
            QCOMPARE(DBusInputMethod().AskName(untilAnswered), expected);
        }
    }

    void followsWhatRuns()
    {
        const auto module = [] {
            DBusInputMethod().ChooseRunning(untilAnswered);
            QByteArray chosen = qgetenv("QT_IM_MODULE");
            qunsetenv("QT_IM_MODULE");
            return chosen;
        };
        DBusInputMethod method;
        QCOMPARE(method.AskName(untilAnswered), QString()); // not even a bus
        QCOMPARE(module(), QByteArray());
        StartIBus(u"wubi"_s, u"Wubi"_s);
        QCOMPARE(method.AskName(untilAnswered), u"Wubi"_s);
        m_ibus.reset(); // its address stays behind
        QCOMPARE(method.AskName(untilAnswered), QString());
        StartIBus(u"libpinyin"_s, u"Intelligent Pinyin"_s);
        QCOMPARE(method.AskName(untilAnswered), u"Intelligent Pinyin"_s);
        QCOMPARE(module(), "ibus"_ba);
        StartFcitx(u"keyboard-us"_s, {});
        QCOMPARE(method.AskName(untilAnswered), QString());
        QVERIFY(!module().isEmpty()); // either: Fcitx 5 speaks both
        qputenv("QT_IM_MODULE", "ibus");
        QCOMPARE(method.AskName(untilAnswered), u"Intelligent Pinyin"_s);
    }

    void silenceKeepsTheNameAndEndsTheWait()
    {
        StartFcitx(u"wbx"_s, u"Wubi"_s);
        FakeServices services;
        QCOMPARE(Public_Function::GetImeName(), QString());
        DBusInputMethod method;
        PlatformServices().inputMethod = &method;
        method.Refresh();
        QTRY_COMPARE(Public_Function::KnownImeName(), u"Wubi"_s);
        m_fcitx->Answer(u"CurrentInputMethod"_s, std::nullopt);
        QCOMPARE(Public_Function::GetImeName(), u"Wubi"_s); // still waiting behind this
        QCOMPARE(method.AskName(untilAnswered), u"Wubi"_s); // given up
        m_fcitx->Answer(u"CurrentInputMethod"_s, u"keyboard-us"_s);
        QCOMPARE(method.AskName(untilAnswered), QString());
        m_fcitx->Answer(u"CurrentInputMethod"_s, std::nullopt);
        method.Refresh(); // its worker is left behind
    }

private:
    void StartFcitx(const QString &id, const QString &name)
    {
        m_fcitx = std::make_unique<FakeBus>(u"org.fcitx.Fcitx5"_s);
        m_fcitx->Answer(u"CurrentInputMethod"_s, id);
        m_fcitx->Answer(u"AvailableInputMethods"_s,
                        QVariant::fromValue(QList<FcitxRow>{{u"other"_s, u"Other"_s}, {id, name}}));
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_fcitx->Address());
    }

    void StartIBus(const QString &id, const QString &name)
    {
        m_ibus = std::make_unique<FakeBus>(u"org.freedesktop.IBus"_s);
        m_ibus->Answer(u"Get"_s, IBusEngine(id, name));
        const QString display = QString::fromLatin1(QDBusConnection::localMachineId()) + u"-unix-7"_s;
        m_install->Write(u"ibus/bus/"_s + display,
                         "# a note\nIBUS_ADDRESS=" + m_ibus->Address() + "\nIBUS_DAEMON_PID=7\n");
    }

    std::unique_ptr<TestInstall> m_install;
    std::unique_ptr<FakeBus> m_fcitx;
    std::unique_ptr<FakeBus> m_ibus;
};

QTEST_GUILESS_MAIN(tst_InputMethod)
#include "tst_InputMethod.moc"
