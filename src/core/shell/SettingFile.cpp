#include "core/shell/SettingFile.h"

#include "platform/Files.h"
#include "platform/Paths.h"

#include <algorithm>
#include <limits>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestValue = 1023;

bool IsBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

/// Without leading and trailing spaces and tabs; other white space may belong to a value.
QStringView Trimmed(QStringView text)
{
    while (!text.isEmpty() && IsBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && IsBlank(text.back()))
        text.chop(1);
    return text;
}

bool IsQuoted(QStringView text)
{
    return text.size() >= 2 && (text.front() == u'"' || text.front() == u'\'') && text.front() == text.back();
}

/// The name in a line `[name]`, or nothing when the line is another one.
std::optional<QStringView> SectionName(QStringView line)
{
    line = Trimmed(line);
    const qsizetype end = line.indexOf(u']');
    if (!line.startsWith(u'[') || end < 0)
        return std::nullopt;
    return Trimmed(line.sliced(1, end - 1));
}

bool IsSection(QStringView line, QStringView section)
{
    const std::optional<QStringView> name = SectionName(line);
    return name && name->compare(section, Qt::CaseInsensitive) == 0;
}

bool IsKey(QStringView line, QStringView key)
{
    const qsizetype equals = line.indexOf(u'=');
    return equals > 0 && Trimmed(line.first(equals)).compare(key, Qt::CaseInsensitive) == 0;
}

QStringView CutAtLineEnd(QStringView value)
{
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] == u'\0' || value[i] == u'\r' || value[i] == u'\n')
            return value.first(i);
    }
    return value;
}

/// At most 1023 characters, where a surrogate pair is one.
QStringView CutToLength(QStringView value)
{
    qsizetype units = 0;
    for (qsizetype characters = 0; characters < longestValue && units < value.size(); ++characters) {
        const bool pair =
            value[units].isHighSurrogate() && units + 1 < value.size() && value[units + 1].isLowSurrogate();
        units += pair ? 2 : 1;
    }
    return value.first(units);
}

QString AsWritten(QStringView value)
{
    if (Trimmed(value) != value || IsQuoted(value))
        return u'"' + value.toString() + u'"';
    return value.toString();
}

} // namespace

SettingFile::SettingFile(const QString &path)
    : m_path(path)
{
    Read();
}

bool SettingFile::Read()
{
    const std::optional<QString> text = Public_Function::ReadTextFile(m_path);
    m_lines = text ? Public_Function::SplitLines(*text) : QStringList();
    return text || Public_Function::IsMissing(m_path);
}

int SettingFile::FindKey(const QString &section, const QString &key) const
{
    bool inside = false;
    for (int i = 0; i < m_lines.size(); ++i) {
        const QString &line = m_lines[i];
        if (SectionName(line))
            inside = IsSection(line, section);
        else if (inside && IsKey(line, key))
            return i;
    }
    return -1;
}

QString SettingFile::Text(const QString &section, const QString &key, const QString &defaultValue) const
{
    const int line = FindKey(section, key);
    if (line < 0)
        return defaultValue;
    const QStringView text(m_lines[line]);
    QStringView value = Trimmed(CutAtLineEnd(text.sliced(text.indexOf(u'=') + 1)));
    if (IsQuoted(value))
        value = value.sliced(1, value.size() - 2);
    return CutToLength(value).toString();
}

int SettingFile::Integer(const QString &section, const QString &key, int defaultValue) const
{
    if (FindKey(section, key) < 0)
        return defaultValue;
    qint64 number = 0;
    const QString value = Text(section, key, QString());
    for (const QChar c : value) {
        if (c < u'0' || c > u'9')
            break;
        number = std::min<qint64>(number * 10 + (c.unicode() - u'0'), std::numeric_limits<int>::max());
    }
    return static_cast<int>(number);
}

void SettingFile::Set(const QString &section, const QString &key, const QString &value)
{
    m_unsaved.push_back({section, key, CutAtLineEnd(value).toString()});
    Apply(m_unsaved.back());
}

void SettingFile::Set(const QString &section, const QString &key, int value)
{
    Set(section, key, QString::number(value));
}

void SettingFile::Apply(const Change &change)
{
    const QString value = AsWritten(change.value);
    if (const int line = FindKey(change.section, change.key); line >= 0) {
        if (Text(change.section, change.key, QString()) != change.value)
            m_lines[line] = m_lines[line].first(m_lines[line].indexOf(u'=') + 1) + value;
        return;
    }
    const QString newLine = change.key + u'=' + value;
    for (int i = 0; i < m_lines.size(); ++i) {
        if (!IsSection(m_lines[i], change.section))
            continue;
        int end = i + 1; // behind the last line of the section that says something
        for (int next = end; next < m_lines.size() && !SectionName(m_lines[next]); ++next) {
            if (!Trimmed(m_lines[next]).isEmpty())
                end = next + 1;
        }
        m_lines.insert(end, newLine);
        return;
    }
    m_lines << u'[' + change.section + u']' << newLine;
}

bool SettingFile::Save()
{
    if (m_unsaved.empty())
        return true;
    if (!Read())
        return false;
    const QStringList stored = m_lines;
    for (const Change &change : m_unsaved)
        Apply(change);
    if (m_lines == stored) {
        m_unsaved.clear();
        return true;
    }
    const QString folder = m_path.first(Public_Function::ProductPath(m_path).lastIndexOf(u'\\') + 1);
    const QByteArray bytes = (m_lines.join(u"\r\n"_s) + u"\r\n"_s).toUtf8();
    if (!Public_Function::ReplaceFile(m_path, folder + u"Setting.tmp"_s, bytes))
        return false;
    m_unsaved.clear();
    return true;
}
