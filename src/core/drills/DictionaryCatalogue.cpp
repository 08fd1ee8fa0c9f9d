#include "core/drills/DictionaryCatalogue.h"

#include "core/shell/Public_Define.h"

using namespace Qt::Literals::StringLiterals;

namespace DictionaryCatalogue {

static QList<Dictionary> ProfessionalDictionaries()
{
    const QString fields =
        u"Computer Electron Physics Chemistry Construction Agriculture Iatrology Mathematics "
        "Geography Petrochemistry Psychics"_s;
    QList<Dictionary> dictionaries;
    for (const QString &field : fields.split(u' '))
        dictionaries += {field, field + u"EN"_s};
    return dictionaries;
}

QString Class::Path() const
{
    return Shared().InstallDir + folder;
}

const QList<Class> &Classes()
{
    static const QList<Class> classes{
        {u"Normal"_s,
         u"Data\\English\\T_Word\\Dictionary\\"_s,
         {{u"Toefl"_s, u"TOEFL"_s}, {u"GRE"_s, u"GRE"_s}, {u"GMAT"_s, u"GMAT"_s}}},
        {u"Professional"_s, u"Data\\English\\T_Word\\Professional\\"_s, ProfessionalDictionaries()},
        {u"Familiar"_s, u"Data\\English\\T_Word\\General\\"_s, {{u"Familiar word"_s, u"1000"_s}}}};
    return classes;
}

QString ExplainedPath()
{
    return Classes().front().Path();
}

} // namespace DictionaryCatalogue
