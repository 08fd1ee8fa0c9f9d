#pragma once

#include "core/shell/Public_Define.h"
#include "platform/Paths.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

/// An install folder of its own for a test, on the disk as long as the object lives; the shared values point
/// to it and have their defaults besides.
class TestInstall
{
public:
    explicit TestInstall(const QString &user = QString())
    {
        Shared() = Public_Define();
        Shared().InstallDir = Public_Function::ProductPath(m_folder.path()) + u'\\';
        Shared().CurrentUserName = user;
        if (!user.isEmpty())
            MakeFolder(QStringLiteral("Users/") + user);
    }
    Q_DISABLE_COPY_MOVE(TestInstall)

    /// Native path of something in the install folder.
    QString Native(const QString &relative) const { return m_folder.filePath(relative); }

    void MakeFolder(const QString &relative) const { QDir(m_folder.path()).mkpath(relative); }

    /// Writes a file, and its folder where it is missing; its native path.
    QString Write(const QString &relative, const QByteArray &bytes) const
    {
        MakeFolder(QFileInfo(relative).path());
        QFile file(Native(relative));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }

    /// Makes a file that is there, but too large to be read.
    void WriteUnreadable(const QString &relative) const
    {
        QFile file(Native(relative));
        if (!file.open(QIODevice::WriteOnly) || !file.resize(qint64(5) << 30))
            qFatal("cannot write %s", qPrintable(file.fileName()));
    }

    /// The bytes of a file; a null array when there is none.
    QByteArray Read(const QString &relative) const
    {
        QFile file(Native(relative));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        const QByteArray bytes = file.readAll();
        return bytes.isNull() ? QByteArray("") : bytes;
    }

    /// Names of everything in a folder, sorted.
    QStringList Entries(const QString &relative) const
    {
        return QDir(Native(relative)).entryList(Everything, QDir::Name);
    }

    /// Paths of everything in the install folder at any depth, sorted.
    QStringList Tree() const
    {
        QStringList paths;
        QDirIterator entries(m_folder.path(), Everything, QDirIterator::Subdirectories);
        while (entries.hasNext())
            paths += QDir(m_folder.path()).relativeFilePath(entries.next());
        paths.sort();
        return paths;
    }

private:
    static constexpr QDir::Filters Everything =
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

    QTemporaryDir m_folder;
};
