#include "core/drills/KeyLesson.h"
#include "fuzz/FuzzTarget.h"
#include "support/TestInstall.h"

using namespace Qt::Literals::StringLiterals;

namespace {

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

    install.Write(u"lesson.txt"_s, (lesson.title + u"\r\n"_s + lesson.groups.join(u' ')).toUtf8());
    const KeyLesson again = Public_Function::LoadKeyLesson(path).lesson;
    Require(again.title == lesson.title && again.groups == lesson.groups,
            "a lesson that is written is the same");
}

const FuzzTarget lessonTarget("lesson", ReadLesson);

} // namespace
