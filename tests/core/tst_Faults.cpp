#include "core/drills/ArticlePlace.h"
#include "core/drills/FallibleKeyLesson.h"
#include "core/drills/KeyLessonPlace.h"
#include "core/drills/KeyMistakeStore.h"
#include "core/drills/WordTrainPlace.h"
#include "core/engine/KFreeType.h"
#include "core/engine/KTest.h"
#include "core/records/MistakeHistory.h"
#include "core/records/TrainingHistory.h"
#include "core/shell/UserList.h"
#include "core/shell/UserSettings.h"
#include "support/FakeServices.h"
#include "support/SystemCalls.h"
#include "support/TestInstall.h"

#include <QMap>
#include <QtTest>
#include <cerrno>
#include <memory>

using namespace Qt::Literals::StringLiterals;
using namespace SystemCalls;

namespace {

/// What a save says: whether it was done, or nothing where it has no answer.
using Answer = std::optional<bool>;
/// A save that is ready to be made, once.
using Save = std::function<Answer()>;
/// Every path of the install folder with the bytes of the file, null for a folder.
using Content = QMap<QString, QByteArray>;

/// Makes a save ready.
using Prepare = std::function<Save()>;

Save WithoutAnswer(const std::function<void()> &save)
{
    return [save]() -> Answer {
        save();
        return std::nullopt;
    };
}

/// A save without an answer for which nothing has to be ready.
Prepare Plain(const std::function<void()> &save)
{
    return [save] { return WithoutAnswer(save); };
}

/// An engine in which this was typed.
template <typename Engine>
std::shared_ptr<std::optional<Engine>> Typed(const QString &text)
{
    auto shared = std::make_shared<std::optional<Engine>>();
    Engine &engine = shared->emplace();
    engine.m_nMaxCols = 40;
    Shared().TestFile[0] = Shared().InstallDir + u"lesson.txt"_s;
    if constexpr (std::is_same_v<Engine, KTest>)
        engine.LoadLesson();
    engine.StartType();
    for (const QChar c : text)
        engine.CheckString(c);
    engine.StopType();
    return shared;
}

Save AddMistakes()
{
    KeyMistakes mistakes;
    for (const char32_t key : U"a;a")
        mistakes.Add(key);
    return WithoutAnswer([store = std::make_shared<KeyMistakeStore>(), mistakes] { store->Store(mistakes); });
}

/// A save of the records of the user who is logged in, by a page that shows them.
template <typename History>
Prepare OnPage(const std::function<bool(History &)> &change)
{
    return [change]() -> Save {
        const auto records = std::make_shared<IUserRecord>();
        records->SetCurrentUser(Shared().CurrentUserName);
        const auto history = std::make_shared<History>(*records, 0);
        history->Read();
        return [records, history, change] { return change(*history); };
    };
}

struct Writer
{
    const char *name;
    Prepare prepare;
    QString guard = {}; ///< as long as this path is as before, everything is
};

enum class Aftermath {
    Clean,    ///< no scratch file is left
    Overcome, ///< the save succeeds all the same
    Scratch,  ///< one may be left until the next save
    NoProcess ///< the same, and the process is gone
};

using enum Fault::Effect;
using enum Aftermath;

/// Something that goes wrong, in steps: `step` makes the next one of the fault.
struct Trouble
{
    const char *name;
    Aftermath aftermath;
    Fault fault;
    void (*step)(Fault &next, int number) = [](Fault &next, int number) { next.first = number; };
};

const std::vector<Writer> writers{
    {"text drill's record", Plain([] { StoreArticleResult(60, 90, u"new"_s); })},
    {"speed test's record, mistakes and settings",
     [] {
         return WithoutAnswer([test = Typed<KTest>(u"X好好"_s)] {
             (*test)->SaveData(u"new"_s);
             test->reset();
         });
     }},
    {"drill's mistakes", AddMistakes},
    {"record deleted",
     OnPage<TrainingHistory>([](TrainingHistory &page) { return page.Amount() == 0 || page.Delete({0}); })},
    {"records cleared", OnPage<TrainingHistory>([](TrainingHistory &page) { return page.Clear(); })},
    {"mistakes deleted", OnPage<MistakeHistory>([](MistakeHistory &page) { return page.Delete({u"A"_s}); })},
    {"key drill's place", Plain([] {
         StoreKeyLessonPlace(MainKeyLessonSettings(), {u"\\l.txt"_s, 7, 2});
     })},
    {"word drill's place", Plain([] {
         StoreWordTrainPlace({u"\\d\\"_s, u"GRE"_s, u"GRE"_s, 3, true, 2});
     })},
    {"text drill's place", Plain([] {
         StoreArticlePlace({u"\\a.txt"_s, u"a"_s, 5, DisplayForm::InPlace, 2});
     })},
    {"sounds", Plain(Public_Function::SaveSoundSetting)},
    {"placement question",
     [] {
         IUserRecord records;
         records.SetCurrentUser(Shared().CurrentUserName);
         return [records]() mutable { return records.SetIfBeginTest(false); };
     }},
    {"lesson of missed keys",
     [] { return [] { return Public_Function::WriteFallibleKeyLesson(u"abc"_s); }; }},
    {"typed text",
     [] {
         Shared().CurrentUserName.clear(); // or the engine would store settings when it is released
         return [free = Typed<KFreeType>(u"new 好"_s)] {
             return (*free)->SaveInput(Shared().InstallDir + u"typed.txt"_s);
         };
     }},
    {"user added", Plain([] {
         UserList users;
         if (!users.UserExists(u"Bob"_s))
             users.AddUser(u"Bob"_s);
         users.MakeFolder(u"Bob"_s);
     })},
    {"user deleted",
     [] {
         return [] {
             UserList users;
             if (!users.UserExists(u"Anna"_s)) // what is left of one goes with the next of the name
                 users.AddUser(u"Anna"_s);
             const UserList::Deletion deletion = users.DeleteUser(u"Anna"_s);
             return deletion.deleted && deletion.error.isEmpty();
         };
     },
     u"user.ini"_s},
};

const std::vector<Trouble> troubles{
    {"killed before a change", NoProcess, {.calls = Changes | Closes, .effect = KillBefore, .count = 1}},
    {"killed after a change", NoProcess, {.calls = Changes | Closes, .effect = KillAfter, .count = 1}},
    {"disk full after n bytes", Clean, {.count = 0}, [](Fault &next, int number) { next.room = number; }},
    {"disk full from a call on", Clean, {.calls = TakesRoom, .error = ENOSPC}},
    {"quota used up", Clean, {.calls = TakesRoom, .error = EDQUOT}},
    {"read-only from a call on", Scratch, {.calls = Changes, .error = EROFS}},
    {"access denied once", Scratch, {.count = 1, .error = EACCES}},
    {"5 calls fail", Scratch, {.count = 5, .error = EIO}},
    {"20 calls fail", Scratch, {.count = 20, .error = EIO}},
    {"a signal comes", Overcome, {.calls = Interruptible, .count = 1, .error = EINTR}},
    {"short writes", Overcome, {.count = 0}, [](Fault &next, int number) {
         next.longestWrite = 1 << number;
     }}};

} // namespace

class tst_Faults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (QFileInfo(u"/dev/shm"_s).isWritable()) // thousands of saves, none of which has to reach a disk
            qputenv("TMPDIR", "/dev/shm");
    }

    void init()
    {
        m_install = std::make_unique<TestInstall>(u"Anna"_s);
        IUserRecord records;
        records.SetCurrentUser(u"Anna"_s);
        bool chinese = true;
        records.AddMistakeRecord(u"你"_s, 3, chinese);
        records.AddMistakeRecord(u"a"_s, 3, chinese);
        for (const int list : {0, 1, 3}) {
            records.AddTrainingRecord(30, 80, u"old"_s, list);
            records.SaveTrainingRecordFile(list);
            records.SaveMistakeRecordFile(list);
        }
        m_install->Write(u"Users/Zoe/RecordEN.Dat"_s, "hers");
        // Its name is spelled as somebody else might.
        m_install->Write(u"Users/Anna/setting.ini"_s,
                         "; mine\r\n[Other]\r\nKey=1\r\n[Main]\r\nEnSound=2\r\n");
        m_install->Write(u"user.ini"_s, "Anna;\r\nZoe;\r\n");
        m_install->Write(u"lesson.txt"_s, "你好吗");
        m_install->Write(u"typed.txt"_s, "old");
        m_install->Write(u"Data/English/T_Character/Standard/02.txt"_s, "old");
        Shared().CurrentUserName = u"ANNA"_s;
        m_old = Snapshot();
    }

    void nothingIsLost_data()
    {
        QTest::addColumn<int>("number");
        for (const Writer &writer : writers)
            QTest::newRow(writer.name) << static_cast<int>(&writer - writers.data());
    }

    void nothingIsLost()
    {
        QFETCH(const int, number);
        const Writer &writer = writers[static_cast<std::size_t>(number)];
        PlatformServices().random.seed(7);
        writer.prepare()();
        m_now = m_fresh = Snapshot();
        QVERIFY(m_fresh != m_old);
        for (const Trouble &trouble : troubles) {
            bool met = true;
            for (int step = 0; met; ++step) {
                Fault fault = trouble.fault;
                trouble.step(fault, step);
                const QString wrong = Wrong(writer, trouble, fault, met);
                QVERIFY2(
                    wrong.isEmpty(),
                    qPrintable(u"%1, %2: %3"_s.arg(QLatin1StringView(trouble.name)).arg(step).arg(wrong)));
            }
        }
        // A user who is deleted in between stays deleted.
        bool met = true;
        for (int step = 0; met; ++step) {
            Restore();
            const Save save = writer.prepare();
            const auto deleteAnna = [this] { QDir(m_install->Native(u"Users/Anna"_s)).removeRecursively(); };
            met = Run({.calls = Changes | Closes,
                       .effect = Meanwhile,
                       .first = step,
                       .count = 1,
                       .meanwhile = deleteAnna},
                      save);
            m_now = Snapshot();
            QVERIFY2(!met || !m_now.contains(u"Users/Anna"_s), qPrintable(QString::number(step)));
        }
    }

private:
    QString Wrong(const Writer &writer, const Trouble &trouble, const Fault &fault, bool &met)
    {
        Restore();
        const Save save = writer.prepare();
        Answer answer;
        met = trouble.aftermath == NoProcess ? RunApart(fault, save) : Run(fault, [&] { answer = save(); });
        Content after = Snapshot();
        const QString left = TakeScratch(after);
        if (!left.isEmpty() && trouble.aftermath < Scratch)
            return u"left "_s + left;
        for (const Content *const content : {&m_old, &m_fresh}) {
            for (auto path = content->keyBegin(); path != content->keyEnd(); ++path) {
                if (!IsSame(after, m_old, *path) && !IsSame(after, m_fresh, *path))
                    return u"damaged "_s + *path + u' ' + QString::fromUtf8(after.value(*path).toHex(' '));
            }
        }
        if (!writer.guard.isEmpty() && IsSame(after, m_old, writer.guard) && after != m_old)
            return u"begun without "_s + writer.guard;
        if (answer && *answer != (after == m_fresh))
            return *answer ? u"said to be done"_s : u"said to have failed"_s;
        if (trouble.aftermath == Overcome && after != m_fresh)
            return u"given up"_s;
        const bool nothingDone = after == m_old;
        PlatformServices().random.seed(7);
        writer.prepare()();
        m_now = Snapshot();
        if (nothingDone ? m_now != m_fresh : m_now.keys() != m_fresh.keys())
            return u"not mended by the next: "_s + m_now.keys().join(u' ');
        return {};
    }

    Content Snapshot() const
    {
        Content content;
        for (const QString &path : m_install->Tree())
            content[path] = QFileInfo(m_install->Native(path)).isDir() ? QByteArray() : m_install->Read(path);
        return content;
    }

    void Restore()
    {
        PlatformServices().random.seed(7);
        for (auto path = m_now.keyEnd(); path != m_now.keyBegin();) {
            --path;
            if (!m_old.contains(*path))
                QFile(m_install->Native(*path)).remove() || QDir().rmdir(m_install->Native(*path));
        }
        for (auto entry = m_old.keyValueBegin(); entry != m_old.keyValueEnd(); ++entry) {
            if (entry->second.isNull())
                m_install->MakeFolder(entry->first);
            else if (m_now.value(entry->first) != entry->second)
                m_install->Write(entry->first, entry->second);
        }
    }

    /// Takes out what belongs neither to the old nor to the new content.
    QString TakeScratch(Content &content) const
    {
        QStringList scratch;
        for (const QString &path : content.keys()) {
            if (!m_old.contains(path) && !m_fresh.contains(path)) {
                scratch += path;
                content.remove(path);
            }
        }
        return scratch.join(u' ');
    }

    static bool IsSame(const Content &a, const Content &b, const QString &path)
    {
        return a.contains(path) == b.contains(path) && a.value(path) == b.value(path);
    }

    FakeServices m_services;
    std::unique_ptr<TestInstall> m_install;
    Content m_old;
    Content m_fresh; ///< after the save
    Content m_now;
};

QTEST_GUILESS_MAIN(tst_Faults)
#include "tst_Faults.moc"
