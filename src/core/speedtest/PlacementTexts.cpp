#include "core/speedtest/PlacementTexts.h"

#include "core/shell/Public_Define.h"
#include "platform/Files.h"
#include "platform/Services.h"

using namespace Qt::Literals::StringLiterals;

QStringList PlacementTexts::Candidates(TestMaterial::Language language)
{
    const bool english = language == TestMaterial::Language::English;
    const QString root = Shared().InstallDir + (english ? u"Data\\English\\"_s : u"Data\\Chinese\\"_s);
    QStringList files;
    for (const QString &kind : {u"Professional\\"_s, u"T_Article\\"_s}) {
        for (const QString &folder : Public_Function::ListFolders(root + kind))
            files += Public_Function::ListFiles(folder + u'\\', u"txt"_s);
    }
    return files;
}

qsizetype PlacementTexts::Choose(qsizetype count, TestMaterial::Language language)
{
    const bool leavesLast = language == TestMaterial::Language::English && count > 1;
    std::uniform_int_distribution<qsizetype> any(0, count - (leavesLast ? 2 : 1));
    return any(PlatformServices().random);
}
