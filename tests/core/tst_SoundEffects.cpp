#include "core/engine/SoundEffects.h"
#include "core/shell/Public_Define.h"
#include "platform/Paths.h"
#include "platform/Services.h"
#include "platform/SoundPlayer.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace {

struct RecordingPlayer final : SoundPlayer
{
    void Play(const QString &nativePath, bool wait) override
    {
        paths.append(nativePath);
        waits.append(wait);
    }
    QStringList paths;
    QList<bool> waits;
};

} // namespace

class tst_SoundEffects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QVERIFY(m_folder.isValid());
        QDir folder(m_folder.path());
        QVERIFY(folder.mkpath(u"Sound/SoundEffect"_s) && folder.mkpath(u"Sound/MusicKeyboard"_s));
        Shared().InstallDir = Public_Function::ProductPath(m_folder.path()) + u'\\';
        m_player.paths.clear();
        m_player.waits.clear();
        PlatformServices().sound = &m_player;
    }

    void everyCharacterHasItsKey()
    {
        std::map<char16_t, int> keys{{u' ', 26}, {u';', 27}, {u':', 27}, {u',', 28}, {u'<', 28}, {u'.', 29},
                                     {u'>', 29}, {u'/', 30}, {u'?', 30}, {13, 31},   {9, 32},    {u'`', 33},
                                     {u'~', 33}, {u'!', 41}, {u'@', 42}, {u'#', 43}, {u'$', 44}, {u'%', 45},
                                     {u'^', 46}, {u'&', 47}, {u'*', 48}, {u'(', 49}, {u'0', 50}, {u')', 50},
                                     {u'-', 51}, {u'_', 51}, {u'=', 52}, {u'+', 52}, {8, 53},    {u'\\', 54},
                                     {u'|', 54}, {u'"', 55}, {u'[', 56}, {u'{', 56}, {u']', 57}, {u'}', 57}};
        keys[u'\''] = 55;
        for (int n = 0; n < 26; ++n)
            keys[static_cast<char16_t>(u'a' + n)] = keys[static_cast<char16_t>(u'A' + n)] = n;
        for (int n = 1; n <= 9; ++n)
            keys[static_cast<char16_t>(u'0' + n)] = 40 + n;

        for (int code = 0; code <= 0xFFFF; ++code) {
            const auto key = static_cast<char16_t>(code);
            const auto known = keys.find(key);
            const int expected = known == keys.end() ? 0 : known->second;
            if (Public_Function::GetMusicKeyIndex(key) != expected)
                QFAIL(qPrintable(u"character %1"_s.arg(code)));
        }
    }

    void effect_data()
    {
        QTest::addColumn<QString>("onDisk");
        QTest::addColumn<QString>("asked");
        QTest::addColumn<bool>("wait");
        QTest::addColumn<bool>("heard");
        QTest::newRow("right key") << u"Type.WAV"_s << u"Type.WAV"_s << false << true;
        QTest::newRow("other letter case on the disk") << u"error.WAV"_s << u"Error.wav"_s << false << true;
        QTest::newRow("waiting") << u"Type.WAV"_s << u"Type.WAV"_s << true << true;
        QTest::newRow("missing file") << u"Type.WAV"_s << u"Error.wav"_s << false << false;
        QTest::newRow("no name") << u"Type.WAV"_s << QString() << false << false;
    }

    void effect()
    {
        QFETCH(QString, onDisk);
        QFETCH(QString, asked);
        QFETCH(bool, wait);
        QFETCH(bool, heard);
        const QString file = m_folder.filePath(u"Sound/SoundEffect/"_s + onDisk);
        Touch(file);
        Public_Function::PlayEffect(asked, wait);
        QFile::remove(file);
        QCOMPARE(m_player.paths, heard ? QStringList{file} : QStringList{});
        QCOMPARE(m_player.waits, heard ? QList<bool>{wait} : QList<bool>{});
    }

    void musicKeyPlaysItsNote_data()
    {
        QTest::addColumn<char16_t>("key");
        QTest::addColumn<QString>("name");
        QTest::newRow("letter") << u'h' << u"7.wav"_s;
        QTest::newRow("capital letter") << u'A' << u"0.wav"_s;
        QTest::newRow("shifted sign") << u'}' << u"57.wav"_s;
        QTest::newRow("no key of its own") << u'é' << u"0.wav"_s;
        QTest::newRow("its note is missing") << u'q' << QString();
    }

    void musicKeyPlaysItsNote()
    {
        QFETCH(char16_t, key);
        QFETCH(QString, name);
        for (const QString &note : {u"0.wav"_s, u"7.wav"_s, u"57.wav"_s})
            Touch(m_folder.filePath(u"Sound/MusicKeyboard/"_s + note));
        Public_Function::PlayMusicKey(key);
        const QString path = m_folder.filePath(u"Sound/MusicKeyboard/"_s + name);
        QCOMPARE(m_player.paths, name.isEmpty() ? QStringList{} : QStringList{path});
        QVERIFY(!m_player.waits.contains(true));
    }

private:
    static void Touch(const QString &path)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    QTemporaryDir m_folder;
    RecordingPlayer m_player;
};

QTEST_GUILESS_MAIN(tst_SoundEffects)
#include "tst_SoundEffects.moc"
