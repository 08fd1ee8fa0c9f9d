// Turns word lists into the dictionaries of the word drill; docs/dictionaries.md describes both.

#include "DictionaryFiles.h"
#include "WordList.h"
#include "WordNet.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString usage =
    u"usage: quorvex-make-dictionaries [--wordnet FOLDER] SOURCE TARGET\n"
    "makes NAME.ID and NAME.Dat below TARGET from every NAME.tsv below SOURCE; FOLDER holds WordNet's "
    "data.noun"_s;

void Say(const QString &message)
{
    QTextStream(stderr) << message << '\n';
}

int Fail(const QString &message)
{
    Say(u"quorvex-make-dictionaries: "_s + message);
    return 1;
}

bool Write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

/// The word lists below a folder, in an order that does not depend on the file system.
QStringList WordLists(const QDir &source)
{
    QStringList names;
    QDirIterator files(source.path(), {u"*.tsv"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        names += source.relativeFilePath(files.fileInfo().absoluteFilePath());
    }
    names.sort();
    return names;
}

/// Makes one dictionary; false when its list has faults, which are said, or when it cannot be written.
bool MakeDictionary(const QString &list, const QString &base, const std::optional<WordNet> &wordNet)
{
    QFile file(list);
    if (!file.open(QIODevice::ReadOnly)) {
        Say(list + u": cannot be read"_s);
        return false;
    }
    // Only these are shown with phonetics.
    const bool needsPhonetic = QFileInfo(list).dir().dirName() == u"Dictionary"_s;
    const WordListResult result = ReadWordList(file.readAll(), wordNet, needsPhonetic);
    for (const QString &fault : result.faults)
        Say(list + u':' + fault);
    if (result.faults.isEmpty() && result.words.empty())
        Say(list + u": has no words"_s);
    if (!result.faults.isEmpty() || result.words.empty())
        return false;
    if (!WriteDictionary(base, result.words)) {
        Say(base + u": cannot be written"_s);
        return false;
    }
    return true;
}

/// What WordNet's licence asks for: where the explanations come from, and that they were changed.
bool WriteReadme(const QDir &folder)
{
    return Write(
        folder.filePath(u"README.txt"_s),
        "Explanations in the .Dat files of this folder come from WordNet 3.0, Princeton University,\r\n"
        "modified: shortened glosses; some are our own. WordNet's notice is in WordNet-notice.txt.\r\n");
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    std::optional<WordNet> wordNet;
    if (arguments.size() == 4 && arguments.front() == u"--wordnet"_s) {
        wordNet = WordNet::Read(arguments[1]);
        if (!wordNet)
            return Fail(arguments[1] + u" does not hold the files of WordNet 3.0"_s);
        arguments.remove(0, 2);
    }
    if (arguments.size() != 2)
        return Fail(usage);

    const QDir source(arguments[0]);
    const QDir target(arguments[1]);
    const QStringList lists = WordLists(source);
    bool good = true;
    for (const QString &list : lists) {
        const QDir folder(target.filePath(QFileInfo(list).path()));
        const QString base = folder.filePath(QFileInfo(list).completeBaseName());
        if (!folder.mkpath(u"."_s))
            return Fail(u"cannot make the folder "_s + folder.path());
        good = MakeDictionary(source.filePath(list), base, wordNet) && good;
        if (wordNet && !WriteReadme(folder))
            return Fail(u"cannot write into "_s + folder.path());
    }
    if (lists.isEmpty())
        return Fail(u"there is no word list below "_s + source.path());
    if (wordNet && !Write(target.filePath(u"WordNet-notice.txt"_s), wordNet->Notice()))
        return Fail(u"cannot write into "_s + target.path());
    return good ? 0 : 1;
}
