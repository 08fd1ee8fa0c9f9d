#pragma once

#include <QString>
#include <QStringList>

/// The program's own test material: for each language general texts in one folder, and professional texts in
/// a folder for each field. All paths are in the product's form; lists are read from the disk at each call
/// and are in natural order.
class TestMaterial
{
public:
    enum class Language { English, Chinese };
    enum class Class { General, Professional };

    /// Where a text belongs. `folder` is the name of a professional field; empty for general material.
    struct Place
    {
        Language language = Language::English;
        Class materialClass = Class::General;
        QString folder;

        bool operator==(const Place &) const = default;
    };

    static constexpr int SampleCount = 4;

    /// The text of the first speed test.
    static QString DefaultFile();
    /// The printable sample texts, 0 to 3: Sweden, Science, Christmas, Halvern.
    static QString SampleFile(int index);

    /// Where a path belongs; the folder is spelled as on the disk. A path from elsewhere belongs to the
    /// general English texts.
    static Place PlaceOf(const QString &path);
    /// Names of the professional fields of a language.
    static QStringList Folders(Language language);
    /// The folder that the place's texts lie in, with a separator at its end.
    static QString FolderPath(const Place &place);
    /// Names of the texts of a place; none for professional material without a folder.
    static QStringList Files(const Place &place);
    /// The path of one of these texts.
    static QString FilePath(const Place &place, const QString &file) { return FolderPath(place) + file; }
};
