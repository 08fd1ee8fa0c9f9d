#pragma once

#include <QColor>
#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>

/// The theme file: colours, sizes and labels under dotted keys ("panel.face"). A colour is "#rrggbb",
/// "#aarrggbb" or the key of another colour with "@" in front. A key that is missing or of the wrong kind is
/// written down in `Problems()` and answered with something drawable, so that one run names all of them.
class Theme
{
public:
    /// False when the file cannot be read or is no JSON object; `Problems()` then says why.
    bool Load(const QString &path);

    QColor Color(const QString &key) const;
    /// The colour with its opacity replaced, 0 to 1.
    QColor Color(const QString &key, qreal opacity) const;
    qreal Number(const QString &key) const;
    int Integer(const QString &key) const;
    QString Text(const QString &key) const;
    QJsonArray List(const QString &key) const;

    /// The colours that windows need while the program runs, by the names under which they ask for them.
    QMap<QString, QColor> RuntimeColors() const;

    const QStringList &Problems() const { return m_problems; }

private:
    QJsonValue Value(const QString &key) const;
    /// The colour that `text` stands for; `key` is named where it stands for none.
    QColor ColorOf(const QString &key, QString text) const;
    void Report(const QString &key, const QString &problem) const;

    QJsonObject m_root;
    mutable QStringList m_problems;
};
