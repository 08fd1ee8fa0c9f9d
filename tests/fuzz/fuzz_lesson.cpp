#include "core/drills/KeyLesson.h"
#include "core/drills/LineSession.h"
#include "fuzz/FuzzTarget.h"
#include "support/TestInstall.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void TypeLesson(const QStringList &groups)
{
    LineSession session([](const std::u32string &line) { return line.size() <= 40; });
    session.SetItems(static_cast<int>(groups.size()), [&](int index) { return groups[index]; });
    session.Restart();
    qsizetype keys = 0;
    for (const QString &group : groups)
        keys += group.toUcs4().size() + 1;
    for (qsizetype key = 0; key < keys; ++key) {
        Require(session.Line().ends.size() == 1 || session.Line().Length() <= 40, "a line fits its box");
        const LineSession::Outcome outcome = session.Type(session.Expected());
        Require(outcome.right, "the expected key is right");
        Require((outcome.step == LineSession::Step::LessonDone) == (key == keys - 1), "a lesson has an end");
    }
    Require(session.CurrentItem() == session.ItemCount(), "every group was typed");
}

void ReadLesson(const QByteArray &bytes)
{
    static const TestInstall install;
    const QString path = install.Write(u"lesson.txt"_s, bytes);
    const auto [lesson, error] = Public_Function::LoadKeyLesson(path);
    Require(lesson.groups.isEmpty() == (error == Public_Function::LessonError::NoGroups),
            "only a lesson without a group is refused");
    for (const QString &group : lesson.groups)
        Require(!group.isEmpty() && !group.contains(u' ') && !group.contains(u'\t'), "a group is a word");
    if (!lesson.title.isEmpty())
        Require(Public_Function::ReadLessonTitle(path) == lesson.title, "a lesson is listed by its title");
    TypeLesson(lesson.groups);

    install.Write(u"lesson.txt"_s, (lesson.title + u"\r\n"_s + lesson.groups.join(u' ')).toUtf8());
    const KeyLesson again = Public_Function::LoadKeyLesson(path).lesson;
    Require(again.title == lesson.title && again.groups == lesson.groups,
            "a lesson that is written is the same");
}

const FuzzTarget lessonTarget("lesson", ReadLesson);

} // namespace
