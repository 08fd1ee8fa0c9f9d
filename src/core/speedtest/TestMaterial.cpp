#include "core/speedtest/TestMaterial.h"

#include "core/shell/Public_Define.h"
#include "platform/Files.h"
#include "platform/Paths.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

QString LanguageFolder(TestMaterial::Language language)
{
    return language == TestMaterial::Language::Chinese ? u"Data\\Chinese\\"_s : u"Data\\English\\"_s;
}

QStringList NamesOf(QStringList paths)
{
    for (QString &path : paths)
        path = path.sliced(path.lastIndexOf(u'\\') + 1);
    return paths;
}

} // namespace

QString TestMaterial::DefaultFile()
{
    return Shared().InstallDir + u"Data\\English\\E_General\\lunch.txt"_s;
}

QString TestMaterial::SampleFile(int index)
{
    static const std::array<QString, SampleCount> names{u"Sweden.txt"_s, u"Science.txt"_s, u"Christmas.txt"_s,
                                                        u"Halvern.txt"_s};
    if (index < 0 || index >= SampleCount)
        return {};
    return Shared().InstallDir + u"data\\Appendix\\"_s + names[static_cast<std::size_t>(index)];
}

TestMaterial::Place TestMaterial::PlaceOf(const QString &path)
{
    Place place;
    QString product = u'\\' + Public_Function::ProductPath(path);
    // A folder above the program's own says nothing, whatever its name.
    if (product.startsWith(u'\\' + Shared().InstallDir, Qt::CaseInsensitive))
        product.remove(1, Shared().InstallDir.size());
    while (product.contains(u"\\\\"_s))
        product.replace(u"\\\\"_s, u"\\"_s);
    if (product.contains(LanguageFolder(Language::Chinese), Qt::CaseInsensitive))
        place.language = Language::Chinese;
    const QString professional = u'\\' + LanguageFolder(place.language) + u"Professional\\"_s;
    const qsizetype start = product.lastIndexOf(professional, -1, Qt::CaseInsensitive);
    if (start < 0)
        return place;
    place.materialClass = Class::Professional;
    const QString rest = product.sliced(start + professional.size());
    if (!rest.contains(u'\\'))
        return place; // a file beside the fields
    place.folder = rest.section(u'\\', 0, 0);
    const QStringList folders = Folders(place.language);
    const auto listed = std::find_if(folders.begin(), folders.end(), [&](const QString &folder) {
        return folder.compare(place.folder, Qt::CaseInsensitive) == 0;
    });
    if (listed != folders.end())
        place.folder = *listed;
    return place;
}

QStringList TestMaterial::Folders(Language language)
{
    return NamesOf(
        Public_Function::ListFolders(Shared().InstallDir + LanguageFolder(language) + u"Professional"_s));
}

QString TestMaterial::FolderPath(const Place &place)
{
    const QString root = Shared().InstallDir + LanguageFolder(place.language);
    if (place.materialClass == Class::General)
        return root + u"E_General\\"_s;
    return root + u"Professional\\"_s + (place.folder.isEmpty() ? QString() : place.folder + u'\\');
}

QStringList TestMaterial::Files(const Place &place)
{
    if (place.materialClass == Class::Professional && place.folder.isEmpty())
        return {};
    return NamesOf(Public_Function::ListFiles(FolderPath(place), u"txt"_s));
}
