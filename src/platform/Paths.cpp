#include "platform/Paths.h"

#include <QFileInfo>
#include <filesystem>

using namespace Qt::Literals::StringLiterals;

namespace {

/// `path` with `/` only and every run of separators as one.
QString WithNativeSeparators(const QString &path)
{
    QString native;
    native.reserve(path.size());
    for (const QChar c : path) {
        const bool separator = c == u'\\' || c == u'/';
#ifdef Q_OS_WIN
        const bool repeated = native.endsWith(u'/') && native.size() > 1; // `//server` names a machine
#else
        const bool repeated = native.endsWith(u'/');
#endif
        if (!separator)
            native += c;
        else if (!repeated)
            native += u'/';
    }
    return native;
}

/// The entry of `folder` that is spelled like `name` but for letter case, or an empty text. The folder is
/// read each time: a kept listing could be out of date within the resolution of the folder's time stamp.
/// `certain` is cleared when there is a folder that could not be listed to its end.
QString FindEntry(const QString &folder, const QString &name, bool &certain)
{
    namespace fs = std::filesystem;
    QString found;
    std::error_code error;
    fs::directory_iterator entry(QFileInfo(folder.isEmpty() ? u"."_s : folder).filesystemFilePath(), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const QString spelled = QFileInfo(entry->path()).fileName();
        if (spelled == name)
            return spelled;
        if (spelled.compare(name, Qt::CaseInsensitive) == 0 && (found.isEmpty() || spelled < found))
            found = spelled;
    }
    const bool noFolder =
        error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
    certain = certain && (!error || noFolder);
    return found;
}

/// As NativePath; `certain` is cleared when what is on the disk could not be found out.
QString Resolve(const QString &path, bool &certain)
{
    // A name from a file chooser may hold a backslash where the system allows it.
    if (path.startsWith(u'/') && QFileInfo::exists(path))
        return path;
    const QString spelled = WithNativeSeparators(path);
    if (spelled.isEmpty() || QFileInfo::exists(spelled))
        return spelled;

    qsizetype start = 0;
    QString native;
    while (start < spelled.size()) {
        qsizetype end = spelled.indexOf(u'/', start);
        if (end < 0)
            end = spelled.size();
        QString part = spelled.mid(start, end - start);
        if (!part.isEmpty() && !QFileInfo::exists(native + part)) {
            part = FindEntry(native, part, certain);
            if (part.isEmpty())
                return native + spelled.mid(start);
        }
        native += part;
        if (end < spelled.size())
            native += u'/';
        start = end + 1;
    }
    return native;
}

} // namespace

namespace Public_Function {

QString NativePath(const QString &path)
{
    bool certain = true;
    return Resolve(path, certain);
}

std::optional<QString> CertainNativePath(const QString &path)
{
    bool certain = true;
    const QString native = Resolve(path, certain);
    return certain ? std::optional(native) : std::nullopt;
}

QString ProductPath(const QString &nativePath)
{
    QString path = nativePath;
    return path.replace(u'/', u'\\');
}

bool FileExists(const QString &path)
{
    return !path.isEmpty() && QFileInfo(NativePath(path)).isFile();
}

bool PathExists(const QString &path)
{
    return !path.isEmpty() && QFileInfo::exists(NativePath(path));
}

bool IsMissing(const QString &path)
{
    const std::optional<QString> native = CertainNativePath(path);
    std::error_code error;
    return native && std::filesystem::status(QFileInfo(*native).filesystemFilePath(), error).type() ==
                         std::filesystem::file_type::not_found;
}

} // namespace Public_Function
