#pragma once

#include "platform/SqliteFile.h"

#include <QColor>
#include <QPixmap>
#include <QStringList>

class ReadyPictures;

/// The pictures that every window is painted from, found by their exact names in `Bitmap\1024_CH.DLL` below
/// `InstallDir`. Make one where you paint, take what you need, let it go: the file is opened only when a
/// picture is not in the pixmap cache, whose keys hold the file's time stamp and size, so that a replaced
/// skin shows at once. The pictures of the menu may lie ready to be painted beside it.
class SkinLibrary
{
public:
    SkinLibrary();

    /// The picture for a window of that device pixel ratio (its own ratio is set, so its logical size does
    /// not depend on it). Null when the library or the picture is missing or damaged: paint plain colours
    /// then.
    QPixmap Bitmap(const QString &name, qreal devicePixelRatio) const;

    /// One of the `frames` pictures of equal width that stand side by side in a strip.
    QPixmap Frame(const QString &strip, int frame, int frames, qreal devicePixelRatio) const;

    /// The picture's size in logical pixels, empty when there is none.
    QSize BitmapSize(const QString &name) const;

    /// A colour of the theme, or `fallback`.
    QColor Color(const QString &key, const QColor &fallback) const;

    /// Begins to decode pictures beside the program's own work, unless they lie ready, for a window that will
    /// soon be painted on a screen of that ratio. Who asks for one of them before it is decoded waits for it.
    static void DecodeAhead(const QStringList &names, qreal devicePixelRatio);

    /// Takes pictures out of the pixmap cache. They are decoded again when they are asked for.
    void LetGo(const QStringList &names, qreal devicePixelRatio) const;

    /// False when the library is missing or cannot be read.
    bool IsUsable() const;

private:
    /// The picture as it was drawn for the ratio, not yet fitted to it.
    QPixmap Drawn(const QString &name, qreal devicePixelRatio) const;
    /// The open files, kept for those who also paint in this turn of the event loop.
    const SqliteFile &File() const;
    const ReadyPictures &Ready() const;
    QSize SizeInLibrary(const QString &name) const;
    QString PictureKey(const QString &name, int scale) const;
    QString FrameKey(const QString &strip, int frame, int frames, qreal devicePixelRatio) const;

    QString m_path;
    QString m_keyPrefix;
};
