#include "core/shell/UserList.h"

#include "core/shell/Public_Define.h"
#include "core/shell/UserSettings.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/SharedFolder.h"

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestFolderName = 255; // bytes, on the usual file systems

QString ListPath()
{
    return Shared().InstallDir + u"user.ini"_s;
}

/// The lines that name a user; nothing when there is a list that cannot be read.
std::optional<QStringList> ReadEntries()
{
    const std::optional<QString> text = Public_Function::ReadTextFile(ListPath());
    if (!text && !Public_Function::IsMissing(ListPath()))
        return std::nullopt;
    QString list = text.value_or(QString());
    list.remove(QChar::ByteOrderMark); // where files were joined; no name holds one
    QStringList lines = Public_Function::SplitLines(list);
    lines.removeIf([](const QString &line) { return !line.contains(u';'); });
    return lines;
}

bool WriteEntries(const QStringList &entries)
{
    QString text;
    for (const QString &entry : entries)
        text += entry + u"\r\n"_s;
    return Public_Function::ReplaceFile(ListPath(), Shared().InstallDir + u"tmp.ini"_s, text.toUtf8());
}

QStringView EntryName(const QString &entry)
{
    return QStringView(entry).first(entry.indexOf(u';'));
}

bool IsEntryOf(const QString &entry, const QString &name)
{
    return EntryName(entry).compare(name, Qt::CaseInsensitive) == 0;
}

/// Names that mean a device instead of a folder on some systems, whatever follows a dot.
bool IsDeviceName(const QString &name)
{
    const QString stem = name.section(u'.', 0, 0).toUpper();
    static const QStringList devices{u"CON"_s, u"PRN"_s, u"AUX"_s, u"NUL"_s};
    const bool numbered = stem.size() == 4 && stem[3] >= u'1' && stem[3] <= u'9' &&
                          (stem.startsWith("COM"_L1) || stem.startsWith("LPT"_L1));
    return numbered || devices.contains(stem);
}

/// Whether `Users\<name>` is a folder of its own inside `Users`.
bool CanBeFolder(const QString &name)
{
    const auto isDot = [](QChar c) { return c == u'.'; };
    return !std::all_of(name.begin(), name.end(), isDot) && name.toUtf8().size() <= longestFolderName &&
           name.isValidUtf16() && !name.contains(u'/') && !name.contains(u'\\') && !name.contains(u'\0');
}

} // namespace

QStringList UserList::Names() const
{
    QStringList names;
    const QStringList entries = ReadEntries().value_or(QStringList());
    for (const QString &entry : entries) {
        if (const QStringView name = EntryName(entry); !name.isEmpty())
            names += name.toString();
    }
    return names;
}

bool UserList::UserExists(const QString &name) const
{
    return Names().contains(name, Qt::CaseInsensitive);
}

bool UserList::IsInvalidName(const QString &name) const
{
    const auto isForbidden = [](QChar c) {
        return c == u' ' || c == QChar::ByteOrderMark || c.category() == QChar::Other_Control ||
               u"?*;:/\\<>\""_s.contains(c);
    };
    return std::any_of(name.begin(), name.end(), isForbidden) || !CanBeFolder(name) || IsDeviceName(name);
}

bool UserList::AddUser(const QString &name)
{
    std::optional<QStringList> entries = ReadEntries();
    const auto isIts = [&](const QString &entry) { return IsEntryOf(entry, name); };
    if (!entries || IsInvalidName(name) || std::any_of(entries->begin(), entries->end(), isIts))
        return false;
    *entries += name + u';';
    if (!WriteEntries(*entries))
        return false;
    MakeFolder(name); // where it fails, the next login tries again
    return true;
}

UserList::Deletion UserList::DeleteUser(const QString &name)
{
    std::optional<QStringList> entries = ReadEntries();
    if (!entries || entries->removeIf([&](const QString &entry) { return IsEntryOf(entry, name); }) == 0 ||
        !WriteEntries(*entries))
        return {};
    // A list that somebody edited may hold a name that leads out of the user folders.
    return {true,
            CanBeFolder(name) ? Public_Function::RemoveFolder(Public_Function::UserDir(name)) : QString()};
}

bool UserList::MakeFolder(const QString &name)
{
    return CanBeFolder(name) && Public_Function::MakeFolder(Public_Function::UserDir(name));
}
