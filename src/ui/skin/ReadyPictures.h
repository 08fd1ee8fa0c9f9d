#pragma once

#include <QColor>
#include <QImage>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>
#include <memory>
#include <utility>

class QFile;

/// Pictures of a skin library as they are painted, in a file beside it: those of the menu, whose decoding
/// would take longer than anything else at the start. The file notes which library it was made from, and is
/// as good as missing when the library is another one now. It is made with the library and never by the
/// program.
class ReadyPictures
{
public:
    explicit ReadyPictures(const QString &library);
    ReadyPictures(ReadyPictures &&) noexcept;
    ReadyPictures &operator=(ReadyPictures &&) noexcept;
    ~ReadyPictures();

    /// The picture at that scale, premultiplied; null when it is not here.
    QImage Picture(const QString &name, int scale) const;
    /// In logical pixels; empty when the picture is not here.
    QSize Size(const QString &name) const;
    /// A colour of the theme; an invalid one when it is not here.
    QColor Color(const QString &key) const;

    /// Writes the file for a library that is complete: its pictures of scale 1 and the colours of its theme.
    /// Gives what went wrong, or an empty text.
    static QString Write(const QString &library, const QList<std::pair<QString, QImage>> &pictures,
                         const QMap<QString, QColor> &theme);

private:
    std::unique_ptr<QFile> m_file;
    QJsonObject m_index;
};
