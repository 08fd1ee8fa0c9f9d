#include "core/drills/KeyLesson.h"

#include "platform/Files.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void AppendGroups(QStringList &groups, const QString &line)
{
    for (const QStringView piece : QStringView(line).split(u' ', Qt::SkipEmptyParts)) {
        QString group = piece.toString();
        group.remove(u'\t').remove(QChar::ByteOrderMark); // no key types a mark where files were joined
        if (!group.isEmpty())
            groups += group;
    }
}

} // namespace

namespace Public_Function {

KeyLessonResult LoadKeyLesson(const QString &path)
{
    const std::optional<QString> text = ReadTextFile(path);
    if (!text)
        return {{}, LessonError::Missing};
    KeyLessonResult result;
    const QStringList lines = SplitLines(*text);
    if (!lines.isEmpty())
        result.lesson.title = lines.front();
    for (qsizetype i = 1; i < lines.size(); ++i)
        AppendGroups(result.lesson.groups, lines[i]);
    if (result.lesson.groups.isEmpty())
        result.error = LessonError::NoGroups;
    return result;
}

QString ReadLessonTitle(const QString &path)
{
    const QStringList lines = SplitLines(ReadTextFile(path).value_or(QString()));
    for (const QString &line : lines) {
        if (!line.isEmpty())
            return line;
    }
    return {};
}

} // namespace Public_Function
