#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// A key lesson: a title and the key groups to type, in file order. A group holds no space and no tab.
struct KeyLesson
{
    QString title;
    QStringList groups;
};

namespace Public_Function {

enum class LessonError { Missing, NoGroups };

struct KeyLessonResult
{
    KeyLesson lesson; ///< `groups` is empty exactly when `error` is set
    std::optional<LessonError> error;
};

/// Line 1 is the title; every further line holds groups separated by spaces.
KeyLessonResult LoadKeyLesson(const QString &path);

/// The name under which a lesson is listed: its first line that is not empty.
QString ReadLessonTitle(const QString &path);

} // namespace Public_Function
