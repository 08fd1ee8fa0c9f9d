#include "core/shell/Public_Define.h"
#include "core/shell/UserList.h"
#include "fuzz/FuzzTarget.h"
#include "platform/Files.h"
#include "support/TestInstall.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A user comes and goes, and the others stay.
void AddAndDelete(const QString &name)
{
    UserList users;
    const QStringList before = users.Names();
    const bool isNew = !users.IsInvalidName(name) && !before.contains(name, Qt::CaseInsensitive);
    Require(users.AddUser(name) == isNew, "a new name with a valid spelling is added");
    if (!isNew)
        return;
    Require(users.Names() == before + QStringList(name), "a user comes behind the others");
    Require(users.DeleteUser(name).deleted, "a user can be deleted");
    Require(users.Names() == before, "the other users stay");
}

void ReadUsers(const QByteArray &bytes)
{
    static const TestInstall install;
    install.Write(u"keep"_s, "keep");
    // The first line is a name that somebody types.
    install.Write(u"user.ini"_s, bytes);
    const QStringList lines = Public_Function::SplitLines(Public_Function::DecodeText(bytes));
    AddAndDelete(lines.isEmpty() ? QString() : lines.first());
    install.Write(u"user.ini"_s, QByteArray());
    AddAndDelete(lines.isEmpty() ? QString() : lines.last());

    install.Write(u"user.ini"_s, bytes);
    const UserList all;
    QStringList names = all.Names();
    Require(!names.contains(QString()), "a user has a name");
    for (int deletions = 0; deletions < 3 && !names.isEmpty(); ++deletions) {
        const QString name = names.first();
        Require(all.UserExists(name), "a user on the list exists");
        UserList().DeleteUser(name);
        names.removeIf([&](const QString &other) { return other.compare(name, Qt::CaseInsensitive) == 0; });
        Require(all.Names() == names, "only the deleted user goes");
    }
    Require(install.Read(u"keep"_s) == "keep", "nothing outside the user folders is deleted");
}

const FuzzTarget usersTarget("users", ReadUsers);

} // namespace
