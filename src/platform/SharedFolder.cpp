#include "platform/SharedFolder.h"

#include "platform/Paths.h"

#include <QDir>
#include <QFileInfo>
#include <filesystem>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

bool IsGroupFolder(const std::filesystem::path &folder)
{
    using std::filesystem::perms;
    std::error_code error;
    const perms granted = std::filesystem::status(folder, error).permissions();
    const perms wanted = perms::group_write | perms::set_gid;
    return !error && (granted & wanted) == wanted;
}

bool IsOwnFolder(const QFileInfo &folder)
{
#ifdef Q_OS_UNIX
    const QFile::Permissions others = QFile::WriteGroup | QFile::WriteOther;
    return (folder.ownerId() == geteuid() || folder.ownerId() == 0) && !(folder.permissions() & others);
#else
    Q_UNUSED(folder)
    return false;
#endif
}

} // namespace

namespace Public_Function {

void ShareWithGroup(const QString &nativePath)
{
    using std::filesystem::perms;
    const std::filesystem::path path = QFileInfo(nativePath).filesystemFilePath();
    if (!IsGroupFolder(path.parent_path()))
        return;
    std::error_code error; // its maker can use it in any case
    const bool folder = std::filesystem::is_directory(path, error);
    const perms enter = folder ? perms::group_exec : perms::none;
    std::filesystem::permissions(path, perms::group_read | perms::group_write | enter,
                                 std::filesystem::perm_options::add, error);
}

bool MakeFolder(const QString &path)
{
    const QString native = QDir::cleanPath(NativePath(path));
    if (QFileInfo(native).isDir())
        return true;
    const QString parent = QFileInfo(native).path();
    if (parent == native || !MakeFolder(parent))
        return false;
    if (!QDir().mkdir(native))
        return QFileInfo(native).isDir(); // somebody else was faster
    ShareWithGroup(native);
    return true;
}

void FollowTrustedLink(QString &target, QString &scratch)
{
    constexpr int longestChain = 8;
    for (int links = 0; links < longestChain; ++links) {
        const QFileInfo link(target);
        if (!link.isSymLink() || !IsOwnFolder(QFileInfo(link.path())))
            break;
        target = link.symLinkTarget();
        scratch = QFileInfo(target).dir().filePath(QFileInfo(scratch).fileName());
    }
}

} // namespace Public_Function
