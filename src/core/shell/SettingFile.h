#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// One user's settings: sections in square brackets, a line `key=value` for each key. Sections and keys are
/// found without regard to case; every line that is not changed stays as it is, whatever it holds.
///
/// A value's leading and trailing spaces and tabs do not belong to it, unless it stands in double or single
/// quotation marks, which then do not belong to it either. What Set writes, Text reads back unchanged.
class SettingFile
{
public:
    /// Reads the file (any encoding, see DecodeText); a missing or unreadable one is empty.
    explicit SettingFile(const QString &path);

    /// The value, at most 1023 characters of it and cut at a NUL, or `defaultValue` when the key is missing.
    QString Text(const QString &section, const QString &key, const QString &defaultValue) const;
    /// The number that the leading decimal digits of the value make, the largest int when it is larger; 0
    /// when the value starts with anything else (a minus sign too); `defaultValue` when the key is missing.
    int Integer(const QString &section, const QString &key, int defaultValue) const;

    /// Sets a value in memory. A value ends before its first line end or NUL: the file could not hold them.
    void Set(const QString &section, const QString &key, const QString &value);
    void Set(const QString &section, const QString &key, int value);

    /// Writes what was set since the last success, all at once, into the file as it is now, so that what
    /// others wrote meanwhile stays. False when it could not be written (for one, because the user's folder
    /// is gone: it is never made anew here) or when the file is there but cannot be read.
    bool Save();

private:
    struct Change
    {
        QString section;
        QString key;
        QString value;
    };

    bool Read();
    int FindKey(const QString &section, const QString &key) const;
    void Apply(const Change &change);

    QString m_path;
    QStringList m_lines;
    std::vector<Change> m_unsaved;
};
