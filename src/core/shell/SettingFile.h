#pragma once

#include <QString>
#include <QStringList>

/// One user's settings: sections in square brackets, a line `key=value` for each key. Sections and keys are
/// found without regard to case; every line that is not changed stays as it is, whatever it holds.
class SettingFile
{
public:
    /// Reads the file (any encoding, see DecodeText); a missing or unreadable one is empty.
    explicit SettingFile(const QString &path);

    /// The value, at most 1023 characters of it and cut at a NUL, or `defaultValue` when the key is missing.
    QString Text(const QString &section, const QString &key, const QString &defaultValue) const;
    /// The leading decimal number of the value, 0 when it has none, or `defaultValue` when the key is
    /// missing.
    int Integer(const QString &section, const QString &key, int defaultValue) const;

    void Set(const QString &section, const QString &key, const QString &value);
    void Set(const QString &section, const QString &key, int value);

    /// Writes what was set, all at once, when anything changed. False when it could not be written (for one,
    /// because the user's folder is gone: it is never made anew here).
    bool Save();

private:
    int FindKey(const QString &section, const QString &key) const;

    QString m_path;
    QStringList m_lines;
    bool m_changed = false;
};
