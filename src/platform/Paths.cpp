#include "platform/Paths.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

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
QString FindEntry(const QString &folder, const QString &name)
{
    QString found;
    QDirIterator entries(folder.isEmpty() ? u"."_s : folder,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        const QString entry = entries.fileName();
        if (entry == name)
            return entry;
        if (entry.compare(name, Qt::CaseInsensitive) == 0 && (found.isEmpty() || entry < found))
            found = entry;
    }
    return found;
}

} // namespace

namespace Public_Function {

QString NativePath(const QString &path)
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
            part = FindEntry(native, part);
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

} // namespace Public_Function
