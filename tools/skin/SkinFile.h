#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QMap>
#include <QString>

struct SkinPicture
{
    QString name;
    int scale;
    QByteArray png;
};

/// Writes the skin library anew, with the same bytes for the same content. Gives what went wrong, or an empty
/// text.
QString WriteSkinFile(const QString &path, const QList<SkinPicture> &pictures,
                      const QMap<QString, QColor> &theme);
