#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/drills/frmEn_KeyTrain_Basic.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputMethodEvent>
#include <QLabel>
#include <QListWidget>
#include <QPaintEvent>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto Standard = "Data/English/T_Character/Standard/"_L1;

} // namespace

class tst_KeyDrill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void OpensWhereItWasLeft_data();
    void OpensWhereItWasLeft();
    void TellsWhatToType();
    void JudgesKeys();
    void TakesKeysThatTypeNothing_data();
    void TakesKeysThatTypeNothing();
    void SwallowsKeys_data();
    void SwallowsKeys();
    void PausesAndResumes();
    void PlaysSounds_data();
    void PlaysSounds();
    void InputMethods();
    void WideGroupKeepsTheKeyInSight();
    void PressedKeysAreSunkUntilReleased();
    void PaintsOnlyWhatChanged();

    void AsksAtTheEnd_data();
    void AsksAtTheEnd();
    void TakesAnotherLesson();
    void ALessonThatCannotBeLoaded_data();
    void ALessonThatCannotBeLoaded();
    void ChoosesTheSound();
    void PausesForDialogsAndMinimising_data();
    void PausesForDialogsAndMinimising();

    void LeavesAndStoresOnce_data();
    void LeavesAndStoresOnce();
    void StoresMisses();
    void StoresAtTheEndOfTheProgram();
    void TabsTakeAClickThatStaysInside();
    void ADrillThatDoesNotExistYet();

private:
    void WriteLesson(const QString &name, const QString &text)
    {
        m_install->Write(Standard + name, text.toUtf8());
    }
    void Open(int index = 0)
    {
        if (index != 0)
            Store(u"KeyTrain_Index"_s, QString::number(index));
        m_drill = new frmEn_KeyTrain_Basic(*m_navigator, m_owner.get());
        m_drill->ShowDrill();
        QVERIFY(QTest::qWaitForWindowActive(m_drill));
        QTest::qWait(0);
    }
    static void Store(const QString &key, const QString &value, const QString &section = u"English"_s)
    {
        SettingFile file(Public_Function::SettingFilePath());
        file.Set(section, key, value);
        QVERIFY(file.Save());
    }
    static QString Stored(const QString &key, const QString &section = u"English"_s)
    {
        return SettingFile(Public_Function::SettingFilePath()).Text(section, key, u"-"_s);
    }
    void Type(const QString &text) { QTest::keyClicks(m_drill, text); }
    QLabel *Label(const QString &name) const { return m_drill->findChild<QLabel *>(name); }
    QString Text(const QString &name) const { return Label(name)->text(); }
    QAbstractButton *Button(const QString &name) const { return m_drill->findChild<QAbstractButton *>(name); }
    QWidget *Part(const QString &name) const { return m_drill->findChild<QWidget *>(name); }
    QString Keys() const { return Part(u"PromptKeys"_s)->accessibleDescription(); }
    QString Cap(int index) const
    {
        const QWidget *cap = Part(u"PromptKey"_s + QString::number(index));
        return cap->accessibleName() + u": "_s + cap->accessibleDescription();
    }
    QString Keyboard() const { return Part(u"CXKeyBoard1"_s)->accessibleDescription(); }
    bool IsRunning() const { return m_drill->findChild<QTimer *>(u"Timer1"_s)->isActive(); }
    void Tick() { QMetaObject::invokeMethod(m_drill->findChild<QTimer *>(u"Timer1"_s), "timeout"); }
    QStringList Status()
    {
        Tick();
        return {Text(u"labTime"_s), Text(u"labSpeed"_s), Text(u"labVeracity"_s),
                Part(u"picProgress"_s)->toolTip()};
    }
    /// Does something to the next dialog that opens.
    void InDialog(std::function<void(QWidget *)> action)
    {
        QTimer::singleShot(0, this, [action] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (dialog && QTest::qWaitForWindowActive(dialog))
                action(dialog);
            if (QApplication::activeModalWidget() == dialog && dialog)
                qFatal("the dialog stays open");
        });
    }

    std::optional<FakeServices> m_services;
    std::optional<SkinnedInstall> m_install;
    std::optional<FakeNavigator> m_navigator;
    std::optional<FakeAnswers> m_messages;
    std::unique_ptr<QWidget> m_owner;
    QPointer<frmEn_KeyTrain_Basic> m_drill;
};

void tst_KeyDrill::init()
{
    m_services.emplace();
    m_install.emplace(u"Ann"_s);
    m_navigator.emplace();
    m_messages.emplace();
    m_owner = std::make_unique<QWidget>();
    WriteLesson(u"00.txt"_s, u"Home row\r\nas Df\r\n  1!  \tx\r\n"_s);
}

void tst_KeyDrill::cleanup()
{
    delete m_drill;
    m_owner.reset();
    m_messages.reset();
    m_navigator.reset();
    m_install.reset();
    m_services.reset();
}

void tst_KeyDrill::OpensWhereItWasLeft_data()
{
    QTest::addColumn<QString>("index");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("progress");
    QTest::newRow("a new user") << QString() << u"as"_s << u"0 %"_s;
    QTest::newRow("in the middle") << u"2"_s << u"1!"_s << u"50 %"_s;
    QTest::newRow("beyond the end") << u"4"_s << u"as"_s << u"0 %"_s;
    QTest::newRow("no number") << u"x"_s << u"as"_s << u"0 %"_s;
}

void tst_KeyDrill::OpensWhereItWasLeft()
{
    QFETCH(QString, index);
    if (!index.isNull())
        Store(u"KeyTrain_Index"_s, index);
    Open();
    QCOMPARE(Text(u"labLessonMsg"_s), u"Home row"_s);
    QTEST(Keys(), "group");
    QTEST(Part(u"picProgress"_s)->toolTip(), "progress");
    QCOMPARE(Text(u"labTime"_s), u"0:00:00"_s);
    QCOMPARE(Text(u"labSpeed"_s), u"0KPM"_s);
    QCOMPARE(Text(u"labVeracity"_s), u"0%"_s);
    QCOMPARE(Text(u"labPromptMsg"_s), u"Input by the current key suggested"_s);
    QVERIFY(!IsRunning());
    QVERIFY(m_messages->texts.isEmpty());
    for (const QAbstractButton *button : m_drill->findChildren<QAbstractButton *>()) {
        QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        QVERIFY(!button->accessibleName().isEmpty());
    }
}

void tst_KeyDrill::TellsWhatToType()
{
    Open();
    QCOMPARE(Cap(0), u"A: type this key now"_s);
    QCOMPARE(Cap(1), u"S: to type"_s);
    QCOMPARE(Keyboard(), u"Next key: A, left little finger"_s);
    QCOMPARE(Part(u"picActivateFinger"_s)->accessibleDescription(), u"left little finger"_s);
    Type(u"a"_s);
    QCOMPARE(Cap(0), u"A: typed"_s);
    QCOMPARE(Cap(1), u"S: type this key now"_s);
    QCOMPARE(Part(u"picActivateFinger"_s)->accessibleDescription(), u"left ring finger"_s);
    Type(u"s"_s);
    QCOMPARE(Keys(), u"Df"_s);
    QCOMPARE(Cap(0), u"D: type this key now"_s);
    QCOMPARE(Keyboard(), u"Next key: Right Shift and D, left middle finger"_s);
    Type(u"df1"_s);
    QCOMPARE(Keyboard(), u"Next key: Right Shift and 1, left little finger"_s);
}

void tst_KeyDrill::JudgesKeys()
{
    Open();
    Type(u"asq"_s); // D is expected
    QVERIFY(IsRunning());
    QCOMPARE(Text(u"labPromptMsg"_s), u"Input by the current key suggested"_s);
    m_services->clock.Move(0.4);
    QCOMPARE(Status(), QStringList({u"0:00:01"_s, u"180KPM"_s, u"66%"_s, u"25 %"_s}));
    Type(u"d"_s);
    QCOMPARE(Text(u"labPromptMsg"_s), u"Suspended by PAUSE/BREAK"_s);
    Type(u"F!"_s); // 1 is expected
    m_services->clock.Move(6.6);
    QCOMPARE(Status(), QStringList({u"0:00:07"_s, u"51KPM"_s, u"66%"_s, u"50 %"_s}));
    QTest::keyClick(m_drill, Qt::Key_Backspace);
    QTest::keyClick(m_drill, Qt::Key_Return);
    QTest::keyClick(m_drill, Qt::Key_Escape);
    QVERIFY(m_drill->isVisible());
    QCOMPARE(Status().at(1), u"77KPM"_s);
}

void tst_KeyDrill::TakesKeysThatTypeNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Shift") << int(Qt::Key_Shift);
    QTest::newRow("Alt, as of Alt+Tab") << int(Qt::Key_Alt);
    QTest::newRow("Caps Lock") << int(Qt::Key_CapsLock);
    QTest::newRow("Num Lock") << int(Qt::Key_NumLock);
    QTest::newRow("F5") << int(Qt::Key_F5);
    QTest::newRow("louder") << int(Qt::Key_VolumeUp);
}

void tst_KeyDrill::TakesKeysThatTypeNothing()
{
    QFETCH(int, key);
    Open();
    QTest::keyClick(m_drill, static_cast<Qt::Key>(key));
    QVERIFY(!IsRunning());
    Type(u"a"_s);
    QTest::keyClick(m_drill, static_cast<Qt::Key>(key));
    m_services->clock.Move(1);
    QCOMPARE(Status().at(1), u"60KPM"_s);
    QCOMPARE(m_services->sound.TakePlayed(), QStringList(u"Type.WAV"_s));
}

void tst_KeyDrill::SwallowsKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("keys"); // that count
    for (const auto key : {Qt::Key_Insert, Qt::Key_Delete, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home,
                           Qt::Key_End, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down})
        QTest::addRow("editing key %x", key) << int(key) << 0 << 0;
    QTest::newRow("Ctrl alone") << int(Qt::Key_Control) << 0 << 0;
    QTest::newRow("Ctrl+A") << int(Qt::Key_A) << int(Qt::ControlModifier) << 0;
    QTest::newRow("Ctrl+Shift+A") << int(Qt::Key_A) << int(Qt::ControlModifier | Qt::ShiftModifier) << 0;
    // Tab is struck by mistake like any other key, but starts nothing and misses nothing.
    QTest::newRow("Tab") << int(Qt::Key_Tab) << 0 << 1;
}

void tst_KeyDrill::SwallowsKeys()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(int, keys);
    Open();
    QTest::keyClick(m_drill, static_cast<Qt::Key>(key), Qt::KeyboardModifiers(modifiers));
    QVERIFY(!IsRunning());
    QVERIFY(m_drill->hasFocus());
    QCOMPARE(m_services->sound.TakePlayed().size(), keys);
    Type(u"a"_s);
    m_services->clock.Move(1);
    QCOMPARE(Status().at(1), QString::number(60 * (1 + keys)) + u"KPM"_s);
    m_drill->close();
    QVERIFY(m_install->Read(u"Users/Ann/MistakeEN.Dat"_s).isEmpty());
}

void tst_KeyDrill::PausesAndResumes()
{
    Open();
    Type(u"a"_s);
    m_services->clock.Move(10);
    QTest::keyClick(m_drill, Qt::Key_Pause);
    QVERIFY(!IsRunning());
    QCOMPARE(Text(u"labPromptMsg"_s), u"Input by the current key suggested"_s);
    QCOMPARE(Text(u"labTime"_s), u"0:00:00"_s); // pausing shows nothing new
    m_services->clock.Move(1000);
    Type(u"s"_s);
    m_services->clock.Move(2);
    QCOMPARE(Status().mid(0, 3), QStringList({u"0:00:12"_s, u"10KPM"_s, u"100%"_s}));
    QTest::keyClick(m_drill, Qt::Key_Pause);
    QTest::keyClick(m_drill, Qt::Key_Pause);
    QVERIFY(IsRunning());
}

void tst_KeyDrill::PlaysSounds_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QStringList>("played");
    QTest::newRow("none") << u"0"_s << QStringList();
    QTest::newRow("keys") << u"1"_s << QStringList({u"Type.WAV"_s, u"Error.wav"_s});
    QTest::newRow("music") << u"2"_s << QStringList({u"0.wav"_s, u"Error.wav"_s});
    QTest::newRow("not set") << QString() << QStringList({u"Type.WAV"_s, u"Error.wav"_s});
}

void tst_KeyDrill::PlaysSounds()
{
    QFETCH(QString, mode);
    if (!mode.isNull())
        Store(u"EnSound"_s, mode, u"Main"_s);
    Open();
    Type(u"aq"_s);
    QTEST(m_services->sound.TakePlayed(), "played");
}

void tst_KeyDrill::InputMethods()
{
    Open();
    const auto send = [this](const QString &preedit, const QString &commit) {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(m_drill, &event);
    };
    QVERIFY(m_drill->inputMethodQuery(Qt::ImEnabled).toBool());
    send(u"ni"_s, {});
    QCOMPARE(Text(u"labPromptMsg"_s), u"Please switch to English input"_s);
    QCOMPARE(m_services->sound.TakePlayed(), QStringList(u"Error.wav"_s));
    QVERIFY(!IsRunning());
    send({}, {});
    send({}, u"你好"_s);
    QVERIFY(!IsRunning());

    send({}, u"A𝒳s"_s);
    QCOMPARE(Keys(), u"Df"_s);
    m_services->clock.Move(1);
    QCOMPARE(Status().mid(1, 2), QStringList({u"180KPM"_s, u"66%"_s}));
    m_drill->close();
    QCOMPARE(m_install->Read(u"Users/Ann/MistakeEN.Dat"_s), QByteArray("\x01\x00S\x01\x00", 5));
}

void tst_KeyDrill::WideGroupKeepsTheKeyInSight()
{
    const QString group = u"𝒳中"_s + QString(98, u'f');
    WriteLesson(u"00.txt"_s, u"Wide\n"_s + group + u" a"_s);
    Open();
    const QWidget *row = Part(u"PromptKeys"_s);
    const std::u32string characters = group.toStdU32String();
    for (int index = 0; index < 100; ++index) {
        const QWidget *cap = Part(u"PromptKey"_s + QString::number(index));
        const QString character = QString::fromUcs4(&characters[static_cast<std::size_t>(index)], 1);
        QCOMPARE(cap->accessibleName(), character.toUpper());
        QCOMPARE(cap->accessibleDescription(), u"type this key now"_s);
        QVERIFY(row->rect().contains(cap->geometry()));
        QInputMethodEvent commit;
        commit.setCommitString(character);
        QCoreApplication::sendEvent(m_drill, &commit);
    }
    QCOMPARE(Keys(), u"a"_s);
}

void tst_KeyDrill::PressedKeysAreSunkUntilReleased()
{
    Open();
    const QString next = u"Next key: A, left little finger"_s;
    QTest::keyPress(m_drill, Qt::Key_Shift);
    QTest::keyPress(m_drill, 'k');
    QCOMPARE(Keyboard(), next + u". Pressed: Left Shift, K"_s);
    QTest::keyRelease(m_drill, 'k');
    QCOMPARE(Keyboard(), next + u". Pressed: Left Shift"_s);
    // The release goes to whatever window is active by then.
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QCOMPARE(Keyboard(), next);
}

void tst_KeyDrill::PaintsOnlyWhatChanged()
{
    class Watcher : public QObject
    {
    public:
        bool eventFilter(QObject *watched, QEvent *event) override
        {
            auto *widget = qobject_cast<QWidget *>(watched);
            if (event->type() == QEvent::Paint && widget)
                painted[widget] += static_cast<QPaintEvent *>(event)->region();
            return false;
        }
        QHash<QWidget *, QRegion> painted;
    } watcher;
    Open();
    QTest::qWait(50);
    m_drill->installEventFilter(&watcher);
    for (QWidget *child : m_drill->findChildren<QWidget *>())
        child->installEventFilter(&watcher);

    Type(u"a"_s); // the hint changes with this first key only
    QTest::qWait(20);
    Type(u"q"_s);
    QTest::qWait(20);
    watcher.painted.clear();
    QTest::keyClick(m_drill, 's');
    QTest::qWait(20);
    QVERIFY(watcher.painted.contains(Part(u"PromptKey0"_s)));
    for (const auto &name : {"BtnClose", "labTime", "labSpeed", "labVeracity", "picProgress", "labLessonMsg"})
        QVERIFY2(!watcher.painted.contains(Part(QLatin1StringView(name))), name);
    const auto area = [](const QRegion &region) {
        int pixels = 0;
        for (const QRect &rect : region)
            pixels += rect.width() * rect.height();
        return pixels;
    };
    const QWidget *keyboard = Part(u"CXKeyBoard1"_s);
    QVERIFY(area(watcher.painted.value(Part(u"CXKeyBoard1"_s))) <
            keyboard->width() * keyboard->height() / 12);
    QVERIFY(area(watcher.painted.value(m_drill)) < m_drill->width() * m_drill->height() / 16);
}

void tst_KeyDrill::AsksAtTheEnd_data()
{
    QTest::addColumn<bool>("another");
    QTest::newRow("no: the same lesson again") << false;
    QTest::newRow("yes, and then none chosen") << true;
}

void tst_KeyDrill::AsksAtTheEnd()
{
    QFETCH(bool, another);
    m_messages->answer = another ? Public_Function::MessageYes : Public_Function::MessageNo;
    Open(2);
    if (another)
        InDialog([](QWidget *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    Type(u"1!x"_s);
    QCOMPARE(
        m_messages->texts,
        QStringList(
            u"You have been completed the courses you selected\nContinued to practice other courses?"_s));
    QVERIFY(!IsRunning());
    QCOMPARE(m_services->sound.TakePlayed().size(), 2); // the last key is silent
    if (another) {
        QCOMPARE(Part(u"picProgress"_s)->toolTip(), u"100 %"_s);
        QCOMPARE(Cap(0), u"X: type this key now"_s);
        Type(u"q"_s);
        QCOMPARE(m_messages->texts.size(), 1);
        InDialog([](QWidget *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
        Type(u"x"_s);
        QCOMPARE(m_messages->texts.size(), 2);
    } else {
        QCOMPARE(Keys(), u"as"_s);
        QCOMPARE(Keyboard(), u"Next key: A, left little finger"_s);
        QCOMPARE(Part(u"picProgress"_s)->toolTip(), u"0 %"_s);
        QCOMPARE(Text(u"labSpeed"_s), u"0KPM"_s);
        Type(u"a"_s);
        m_services->clock.Move(1);
        QCOMPARE(Status().mid(0, 3), QStringList({u"0:00:01"_s, u"60KPM"_s, u"100%"_s}));
    }
}

void tst_KeyDrill::TakesAnotherLesson()
{
    WriteLesson(u"10.txt"_s, u"Tenth\njk\n"_s);
    WriteLesson(u"9.TXT"_s, u"\nNinth\nuv\n"_s);
    Open(1);
    Type(u"d"_s);
    InDialog([](QWidget *dialog) {
        auto *list = dialog->findChild<QListWidget *>(u"lstLesson"_s);
        QCOMPARE(dialog->focusWidget(), list);
        QCOMPARE(list->count(), 3);
        QCOMPARE(list->currentRow(), 0);
        QCOMPARE(list->item(1)->text(), u"Ninth"_s);
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
    });
    Button(u"BtnSelectLesson"_s)->click();
    QCOMPARE(Text(u"labLessonMsg"_s), u"Tenth"_s);
    QCOMPARE(Keys(), u"jk"_s);
    QVERIFY(!IsRunning());
    QCOMPARE(Text(u"labVeracity"_s), u"0%"_s);

    InDialog([](QWidget *dialog) {
        auto *list = dialog->findChild<QListWidget *>(u"lstLesson"_s);
        const QPoint second = list->visualItemRect(list->item(1)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, second);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, second);
    });
    Button(u"BtnSelectLesson"_s)->click();
    QCOMPARE(Text(u"labLessonMsg"_s), QString()); // what is listed is its first group, though
    QCOMPARE(Keys(), u"Ninth"_s);
    m_drill->close();
    QVERIFY(Stored(u"KeyTrain_FileName"_s).endsWith(u"\\Data\\English\\T_Character\\Standard\\9.TXT"_s));
    QCOMPARE(Stored(u"KeyTrain_Index"_s), u"0"_s);
}

void tst_KeyDrill::ALessonThatCannotBeLoaded_data()
{
    QTest::addColumn<QByteArray>("content"); // null: no such file
    QTest::addColumn<QString>("title");
    QTest::newRow("missing") << QByteArray() << QString();
    QTest::newRow("empty") << QByteArray("") << QString();
    QTest::newRow("a title only") << QByteArray("Nothing\r\n \r\n\t \r\n") << u"Nothing"_s;
}

void tst_KeyDrill::ALessonThatCannotBeLoaded()
{
    QFETCH(QByteArray, content);
    if (content.isNull())
        QFile::remove(m_install->Native(Standard + "00.txt"_L1));
    else
        m_install->Write(Standard + "00.txt"_L1, content);
    WriteLesson(u"01.txt"_s, u"Good\nfg\n"_s);
    Open(3);
    QCOMPARE(m_messages->texts,
             QStringList(u"Thesaurus data initialization failure\nPlease choose other courses."_s));
    QTEST(Text(u"labLessonMsg"_s), "title");
    Type(u"ab"_s);
    QVERIFY(!IsRunning());
    QCOMPARE(Keyboard(), QString());

    if (content.isNull()) {
        m_drill->close();
        QCOMPARE(Stored(u"KeyTrain_Index"_s), u"3"_s); // the place is kept until there is another
        return;
    }
    InDialog([](QWidget *dialog) {
        auto *list = dialog->findChild<QListWidget *>(u"lstLesson"_s);
        list->setCurrentRow(list->count() - 1);
        QTest::keyClick(list, Qt::Key_Return);
    });
    Button(u"BtnSelectLesson"_s)->click();
    QCOMPARE(Keys(), u"fg"_s);
    Type(u"f"_s);
    QVERIFY(IsRunning());
}

void tst_KeyDrill::ChoosesTheSound()
{
    Store(u"EnSound"_s, u"2"_s, u"Main"_s);
    Open();
    const auto option = [](QWidget *dialog, int mode) {
        return dialog->findChild<QRadioButton *>(u"opnSetting"_s + QString::number(mode));
    };
    InDialog([&](QWidget *dialog) {
        QVERIFY(option(dialog, 2)->isChecked());
        option(dialog, 0)->setChecked(true);
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    Button(u"BtnSetting"_s)->click();
    Type(u"a"_s);
    QCOMPARE(m_services->sound.TakePlayed(), QStringList(u"0.wav"_s));

    InDialog([&](QWidget *dialog) {
        QTest::keyClick(option(dialog, 2), Qt::Key_Up);
        QVERIFY(option(dialog, 1)->isChecked());
        QTest::keyClick(option(dialog, 1), Qt::Key_Return);
    });
    Button(u"BtnSetting"_s)->click();
    QVERIFY(!IsRunning());
    Type(u"s"_s);
    QCOMPARE(m_services->sound.TakePlayed(), QStringList(u"Type.WAV"_s));
    m_drill->close();
    QCOMPARE(Stored(u"EnSound"_s, u"Main"_s), u"1"_s);
    QCOMPARE(Shared().EnSound, 1); // or logging out would store the old one
}

void tst_KeyDrill::PausesForDialogsAndMinimising_data()
{
    QTest::addColumn<QString>("button");
    for (const auto &name : {"btnMiniMize", "BtnSelectLesson", "BtnSetting"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_KeyDrill::PausesForDialogsAndMinimising()
{
    QFETCH(QString, button);
    Open();
    Type(u"a"_s);
    m_services->clock.Move(3);
    const bool dialog = button != u"btnMiniMize"_s;
    if (dialog)
        InDialog([](QWidget *window) { QTest::keyClick(window, Qt::Key_Escape); });
    QTest::mouseClick(Button(button), Qt::LeftButton);
    QVERIFY(!IsRunning());
    QCOMPARE(m_navigator->minimized, dialog ? 0 : 1);
    m_services->clock.Move(100);
    Type(u"s"_s);
    QCOMPARE(Status().at(0), u"0:00:03"_s);
}

void tst_KeyDrill::LeavesAndStoresOnce_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<int>("opened"); // -1: the menu
    QTest::newRow("closed by the window manager") << u"close"_s << -1;
    QTest::newRow("Alt+F4 without a window manager") << u"Alt+F4"_s << -1;
    QTest::newRow("close button") << u"BtnClose"_s << -1;
    QTest::newRow("back button") << u"BtnReturn"_s << -1;
    QTest::newRow("keypad button") << u"btnToNumpad"_s << int(DrillKind::Numpad);
    QTest::newRow("senior tab") << u"DrillTab1"_s << int(DrillKind::KeySenior);
    QTest::newRow("word tab") << u"DrillTab2"_s << int(DrillKind::Word);
    QTest::newRow("text tab") << u"DrillTab3"_s << int(DrillKind::Article);
}

void tst_KeyDrill::LeavesAndStoresOnce()
{
    QFETCH(QString, way);
    QFETCH(int, opened);
    Open();
    Type(u"qas"_s);
    if (way == u"close"_s)
        m_drill->close();
    else if (way == u"Alt+F4"_s)
        QTest::keyClick(m_drill, Qt::Key_F4, Qt::AltModifier);
    else
        QTest::mouseClick(Button(way), Qt::LeftButton);
    QTRY_VERIFY(m_drill.isNull());
    QCOMPARE(m_navigator->menuShown, opened < 0 ? 1 : 0);
    QCOMPARE(m_navigator->opened,
             opened < 0 ? QList<DrillKind>() : QList<DrillKind>({static_cast<DrillKind>(opened)}));
    QCOMPARE(Stored(u"KeyTrain_Index"_s), u"1"_s);
    QCOMPARE(m_install->Read(u"Users/Ann/MistakeEN.Dat"_s), QByteArray("\x01\x00"
                                                                       "A\x01\x00",
                                                                       5));
}

void tst_KeyDrill::StoresMisses()
{
    WriteLesson(u"02.txt"_s, u"of another day\nzz"_s);
    Open();
    m_drill->close();
    QTRY_VERIFY(m_drill.isNull());
    QCOMPARE(m_install->Read(Standard + "02.txt"_L1), QByteArray("of another day\nzz"));
    QVERIFY(m_install->Read(u"Users/Ann/MistakeEN.Dat"_s).isNull());

    Open();
    Type(u"xx"_s);
    QTest::keyClick(m_drill, Qt::Key_Return); // a wrong key, whatever it is
    Type(u"ax"_s);
    Type(u"S"_s);
    Store(u"Other"_s, u"kept"_s);
    m_drill->close();
    QTRY_VERIFY(m_drill.isNull());
    QCOMPARE(m_install->Read(u"Users/Ann/MistakeEN.Dat"_s), QByteArray("\x01\x00"
                                                                       "A\x03\x00\x01\x00"
                                                                       "S\x01\x00",
                                                                       10));
    QCOMPARE(Stored(u"Other"_s), u"kept"_s);

    const QByteArray lesson = m_install->Read(Standard + "02.txt"_L1);
    const QList<QByteArray> lines = lesson.split('\n');
    QCOMPARE(lines.size(), 39); // the last line ends, too
    QCOMPARE(lines[0], QByteArray("fallible key training\r"));
    QCOMPARE(lines[1], QByteArray("\r"));
    for (int i = 2; i < 38; ++i) {
        QCOMPARE(lines[i].size(), 7);
        for (const char character : lines[i].chopped(1))
            QVERIFY(character == 'a' || character == 's');
    }

    // The next session adds to the records.
    Open();
    Type(u"q"_s);
    m_drill->close();
    QTRY_VERIFY(m_drill.isNull());
    const QByteArray records = m_install->Read(u"Users/Ann/MistakeEN.Dat"_s);
    QCOMPARE(records.size(), 15);
    QVERIFY(records.contains("D\x01"));
}

void tst_KeyDrill::StoresAtTheEndOfTheProgram()
{
    Open();
    Type(u"xa"_s);
    const QByteArray once("\x01\x00"
                          "A\x01\x00",
                          5);
    const auto endProgram = [] { QMetaObject::invokeMethod(qApp, "aboutToQuit"); };
    endProgram();
    QCOMPARE(m_install->Read(u"Users/Ann/MistakeEN.Dat"_s), once);
    m_drill->close();
    endProgram();
    QCOMPARE(m_install->Read(u"Users/Ann/MistakeEN.Dat"_s), once);
}

void tst_KeyDrill::TabsTakeAClickThatStaysInside()
{
    Open();
    const QPoint origin(14, 50);
    const auto press = [this, origin](const QPoint &from, const QPoint &to) {
        const auto at = [this, origin](const QPoint &point) { return m_drill->childAt(origin + point); };
        QWidget *target = at(from) ? at(from) : m_drill;
        const auto local = [&](const QPoint &point) { return target->mapFrom(m_drill, origin + point); };
        QTest::mousePress(target, Qt::LeftButton, {}, local(from));
        QTest::mouseRelease(target, Qt::LeftButton, {}, local(to));
    };
    press({680, 20}, {880, 20}); // from the word tab to the text tab
    press({100, 20}, {100, 20}); // its own
    press({578, 2}, {578, 2});   // right of the senior tab's slanted side
    press({985, 20}, {985, 20}); // behind the last
    press({680, 45}, {680, 45}); // below
    QVERIFY(m_navigator->opened.isEmpty());
    press({598, 39}, {412, 1}); // within the senior tab
    QCOMPARE(m_navigator->opened, QList<DrillKind>({DrillKind::KeySenior}));
}

void tst_KeyDrill::ADrillThatDoesNotExistYet()
{
    m_navigator->drillsExist = false;
    Open();
    Type(u"x"_s);
    Button(u"DrillTab3"_s)->click();
    QVERIFY(m_drill->isVisible());
    QVERIFY(m_navigator->opened.isEmpty());
    QVERIFY(m_install->Read(u"Users/Ann/Setting.ini"_s).isNull());
    Type(u"a"_s);
    QTest::keyClick(m_drill, Qt::Key_F1);
    Button(u"BtnHelp"_s)->click();
    QCOMPARE(m_navigator->helpPages, QStringList({u"frmEn_KeyTrain_Basic"_s, u"frmEn_KeyTrain_Basic"_s}));
    QCOMPARE(m_navigator->menuShown, 0);
}

QTEST_MAIN(tst_KeyDrill)
#include "tst_KeyDrill.moc"
