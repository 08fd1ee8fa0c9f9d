#include "Theme.h"

#include <QFile>
#include <QJsonDocument>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int longestAliasChain = 8;
}

bool Theme::Load(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_problems.append(u"%1: %2"_s.arg(path, file.errorString()));
        return false;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (!document.isObject()) {
        m_problems.append(u"%1: %2 at byte %3"_s.arg(path, error.errorString()).arg(error.offset));
        return false;
    }
    m_root = document.object();
    return true;
}

QColor Theme::Color(const QString &key) const
{
    return ColorOf(key, Value(key).toString());
}

QColor Theme::Color(const QString &key, qreal opacity) const
{
    QColor color = Color(key);
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

qreal Theme::Number(const QString &key) const
{
    const QJsonValue value = Value(key);
    if (!value.isDouble())
        Report(key, u"no number"_s);
    return value.toDouble(1);
}

int Theme::Integer(const QString &key) const
{
    return qRound(Number(key));
}

QString Theme::Text(const QString &key) const
{
    const QJsonValue value = Value(key);
    if (!value.isString())
        Report(key, u"no text"_s);
    return value.toString();
}

QJsonArray Theme::List(const QString &key) const
{
    const QJsonValue value = Value(key);
    if (!value.isArray())
        Report(key, u"no list"_s);
    return value.toArray();
}

QMap<QString, QColor> Theme::RuntimeColors() const
{
    QMap<QString, QColor> colors;
    const QJsonObject entries = m_root.value(u"runtime").toObject();
    for (auto entry = entries.constBegin(); entry != entries.constEnd(); ++entry)
        colors.insert(entry.key(), ColorOf(u"runtime."_s + entry.key(), entry.value().toString()));
    return colors;
}

QJsonValue Theme::Value(const QString &key) const
{
    QJsonValue value = m_root;
    const QStringList names = key.split(u'.');
    for (const QString &name : names)
        value = value.toObject().value(name);
    return value;
}

QColor Theme::ColorOf(const QString &key, QString text) const
{
    for (int step = 0; step < longestAliasChain && text.startsWith(u'@'); ++step)
        text = Value(text.mid(1)).toString();
    const QColor color(text);
    if (color.isValid())
        return color;
    Report(key, u"no colour"_s);
    return Qt::magenta;
}

void Theme::Report(const QString &key, const QString &problem) const
{
    const QString line = u"%1: %2"_s.arg(key, problem);
    if (!m_problems.contains(line))
        m_problems.append(line);
}
