#include "fuzz/FuzzTarget.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QStringList>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

const FuzzTarget *chosen = nullptr;

QStringList FilesIn(const QString &path)
{
    QStringList files;
    for (QDirIterator entries(path, QDir::Files, QDirIterator::Subdirectories); entries.hasNext();)
        files += entries.next();
    files.sort();
    return files;
}

QByteArray BytesOf(const QString &path)
{
    std::fprintf(stderr, "%s\n", qPrintable(path));
    QFile file(path);
    Require(file.open(QIODevice::ReadOnly), "the file can be opened");
    return file.readAll();
}

/// Milliseconds for a file of that size that repeats these bytes.
qint64 TimeFor(const QByteArray &bytes, qsizetype size)
{
    QElapsedTimer timer;
    timer.start();
    chosen->Feed(bytes.repeated(size / bytes.size() + 1));
    return timer.elapsed();
}

/// Whether any takes far more than four times as long for a file four times as large.
bool AreSlow(const QStringList &files)
{
    constexpr qsizetype most = 20; // of many, as it takes seconds for each
    constexpr qsizetype size = 64 * 1024;
    bool slow = false;
    for (qsizetype i = 0; i < files.size(); i += files.size() / most + 1) {
        const QByteArray bytes = BytesOf(files[i]);
        if (bytes.isEmpty())
            continue;
        const qint64 once = TimeFor(bytes, size);
        const qint64 enlarged = TimeFor(bytes, 4 * size);
        if (enlarged > 500 && enlarged > 10 * once) {
            qWarning("Slow: %lld ms, then %lld ms", once, enlarged);
            slow = true;
        }
    }
    return slow;
}

/// Takes what is meant for this program: --target=NAME, and --enlarged with folders of files to enlarge.
void ReadArguments(int count, char **arguments, bool replay)
{
    bool enlarged = false;
    QStringList files;
    for (int i = 1; i < count; ++i) {
        const QByteArray argument(arguments[i]);
        if (argument.startsWith("--target="))
            chosen = FuzzTarget::Find(argument.mid(9));
        else if (argument == "--enlarged")
            enlarged = true;
        else if (!argument.startsWith('-'))
            files += FilesIn(QString::fromLocal8Bit(argument));
    }
    if (!chosen) {
        std::fprintf(stderr, "usage: quorvex-fuzz --target=NAME [--enlarged] FOLDER...\n");
        std::exit(2);
    }
    if (enlarged)
        std::exit(AreSlow(files) ? 1 : 0);
    for (const QString &path : replay ? files : QStringList())
        chosen->Feed(BytesOf(path));
    if (replay)
        std::exit(files.isEmpty() ? 1 : 0);
}

} // namespace

#ifdef QUORVEX_FUZZ

extern "C" int LLVMFuzzerInitialize(int *count, char ***arguments)
{
    ReadArguments(*count, *arguments, false);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    chosen->Feed(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    return 0;
}

#else

int main(int count, char **arguments)
{
    ReadArguments(count, arguments, true);
}

#endif
