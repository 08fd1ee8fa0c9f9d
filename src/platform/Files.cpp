#include "platform/Files.h"

#include "platform/Paths.h"
#include "platform/SharedFolder.h"
#include "platform/WriteFault.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>
#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#endif

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 largestFile = qint64(1) << 30;

bool FlushToDisk(const QFile &file)
{
#ifdef Q_OS_WIN
    return _commit(file.handle()) == 0;
#else
    int result = fsync(file.handle());
    while (result != 0 && errno == EINTR)
        result = fsync(file.handle());
    return result == 0;
#endif
}

/// Brings a rename in the folder to the disk; where a system has no such thing, it has done so already.
void FlushFolder(const QString &nativeFolder)
{
#ifndef Q_OS_WIN
    const int handle = open(QFile::encodeName(nativeFolder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle >= 0) {
        fsync(handle);
        close(handle);
    }
#else
    Q_UNUSED(nativeFolder)
#endif
}

bool WriteAndFlush(QFile &file, const QByteArray &bytes)
{
    // NewOnly: a link that somebody put in the scratch file's place is not followed.
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return false;
    if (const std::optional<WriteFault> &full = CurrentWriteFault()) {
        file.write(bytes.constData(), std::min<qint64>(bytes.size(), full->afterBytes));
        return false;
    }
    return file.write(bytes) == bytes.size() && FlushToDisk(file);
}

bool WriteAndRename(const QString &target, const QString &scratch, const QByteArray &bytes)
{
    QFile file(scratch);
    if (!WriteAndFlush(file, bytes))
        return false;
    if (const QFileInfo old(target); old.exists())
        file.setPermissions(old.permissions());
    file.close();
    Public_Function::ShareWithGroup(scratch);
    std::error_code error; // unlike QFile::rename, this one replaces, and in one step
    std::filesystem::rename(QFileInfo(scratch).filesystemFilePath(), QFileInfo(target).filesystemFilePath(),
                            error);
    return !error;
}

/// Whether a name comes first when runs of digits compare by their value: "2.txt" before "10.txt".
bool NaturallyLess(const QString &left, const QString &right)
{
    const QString a = left.toCaseFolded();
    const QString b = right.toCaseFolded();
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    const auto digitsFrom = [&](const QString &text, qsizetype &at) {
        while (at < text.size() - 1 && text[at] == u'0' && isDigit(text[at + 1]))
            ++at;
        const qsizetype start = at;
        while (at < text.size() && isDigit(text[at]))
            ++at;
        return QStringView(text).mid(start, at - start);
    };
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < a.size() && j < b.size()) {
        if (isDigit(a[i]) && isDigit(b[j])) {
            const QStringView x = digitsFrom(a, i);
            const QStringView y = digitsFrom(b, j);
            if (x.size() != y.size())
                return x.size() < y.size();
            if (const int order = x.compare(y); order != 0)
                return order < 0;
        } else if (a[i] != b[j]) {
            return a[i] < b[j];
        } else {
            ++i;
            ++j;
        }
    }
    if (i < a.size() || j < b.size())
        return i == a.size();
    return left < right;
}

QStringList ListEntries(const QString &folder, const QString &suffix, QDir::Filters filters)
{
    QStringList names = QDir(Public_Function::NativePath(folder)).entryList(filters, QDir::Unsorted);
    names.removeIf([&](const QString &name) {
        return name.contains(u'\\') || !name.endsWith(suffix, Qt::CaseInsensitive);
    });
    std::sort(names.begin(), names.end(), NaturallyLess);
    QString start = Public_Function::ProductPath(folder);
    if (!start.endsWith(u'\\'))
        start += u'\\';
    for (QString &name : names)
        name.prepend(start);
    return names;
}

} // namespace

namespace Public_Function {

std::optional<QByteArray> ReadFile(const QString &path)
{
    const QString native = NativePath(path);
    if (!QFileInfo(native).isFile())
        return std::nullopt;
    QFile file(native);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestFile)
        return std::nullopt;
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return bytes;
}

QString DecodeGb18030(const QByteArray &bytes)
{
    QStringDecoder decoder("GB18030");
    if (!decoder.isValid())
        return QString::fromUtf8(bytes);
    QString text = decoder.decode(bytes);
    // A character that is cut off at the end comes out only when something follows.
    text += QString(decoder.decode(QByteArrayView("\n")));
    text.chop(1);
    return text;
}

QString DecodeUnmarked(const QByteArray &bytes)
{
    if (bytes.isValidUtf8())
        return QString::fromUtf8(bytes);
    const QString gb18030 = DecodeGb18030(bytes);
    const qsizetype lost = gb18030.count(QChar::ReplacementCharacter);
    if (lost == 0)
        return gb18030;
    const QString utf8 = QString::fromUtf8(bytes);
    return utf8.count(QChar::ReplacementCharacter) < lost ? utf8 : gb18030;
}

QString DecodeText(const QByteArray &bytes)
{
    QString text;
    if (const auto encoding = QStringConverter::encodingForData(bytes)) {
        QStringDecoder decoder(*encoding, QStringConverter::Flag::Stateless);
        text = decoder.decode(bytes);
    } else {
        text = DecodeUnmarked(bytes);
    }
    qsizetype marks = 0; // several, where files were joined
    while (marks < text.size() && text[marks] == QChar::ByteOrderMark)
        ++marks;
    text.remove(0, marks);
    if (text.isValidUtf16())
        return text;
    const QList<uint> characters = text.toUcs4(); // half a surrogate pair becomes U+FFFD here
    return QString::fromUcs4(reinterpret_cast<const char32_t *>(characters.constData()), characters.size());
}

std::optional<QString> ReadTextFile(const QString &path)
{
    const std::optional<QByteArray> bytes = ReadFile(path);
    if (!bytes)
        return std::nullopt;
    return DecodeText(*bytes);
}

QStringList SplitLines(const QString &text)
{
    QStringList lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\r' && text[i] != u'\n')
            continue;
        lines += text.mid(start, i - start);
        if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
            ++i;
        start = i + 1;
    }
    if (start < text.size())
        lines += text.mid(start);
    return lines;
}

bool ReplaceFile(const QString &path, const QString &scratchPath, const QByteArray &bytes)
{
    std::optional<QString> target = CertainNativePath(path);
    if (!target)
        return false;
    QString scratch = NativePath(scratchPath);
    FollowTrustedLink(*target, scratch);
    QFile::remove(scratch); // what a killed program left behind
    if (!WriteAndRename(*target, scratch, bytes)) {
        QFile::remove(scratch);
        return false;
    }
    FlushFolder(QFileInfo(*target).absolutePath());
    return true;
}

bool CanWriteIn(const QString &folder)
{
    constexpr qsizetype ordinarySize = 4096;
    QFile file(NativePath(folder + u"\\writable.tmp"_s));
    file.remove(); // what a killed program left behind
    const bool written = WriteAndFlush(file, QByteArray(ordinarySize, '\0'));
    return file.remove() && written;
}

QStringList ListFiles(const QString &folder, const QString &suffix)
{
    return ListEntries(folder, u'.' + suffix, QDir::Files);
}

QStringList ListFolders(const QString &folder)
{
    return ListEntries(folder, QString(), QDir::Dirs | QDir::NoDotAndDotDot);
}

QString RemoveFolder(const QString &folder)
{
    namespace fs = std::filesystem;
    const std::optional<QString> found = CertainNativePath(folder);
    if (!found)
        return QString::fromLocal8Bit(std::make_error_code(std::errc::io_error).message());
    QString native = *found;
    while (native.size() > 1 && native.endsWith(u'/'))
        native.chop(1); // with it, a link would mean its target
    const fs::path top = QFileInfo(native).filesystemFilePath();
    std::error_code firstError;
    const auto note = [&](const std::error_code &error) {
        if (error && !firstError)
            firstError = error;
    };
    const auto remove = [&](const fs::path &path) {
        std::error_code error;
        fs::remove(path, error);
        note(error);
        return !error;
    };

    std::error_code error;
    if (fs::symlink_status(top, error).type() == fs::file_type::directory) {
        fs::directory_iterator entry(top, error);
        std::vector<fs::path> files; // deleting while listing could skip some
        for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
            std::error_code ignored;
            if (entry->symlink_status(ignored).type() != fs::file_type::directory)
                files.push_back(entry->path());
        }
        note(error);
        for (const fs::path &file : files)
            remove(file);
    }
    if (remove(top)) // and with it all that seemed to have failed before
        return {};
    return QString::fromLocal8Bit(firstError.message());
}

} // namespace Public_Function
