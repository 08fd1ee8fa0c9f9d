#include "core/drills/DictionaryCatalogue.h"

#include "core/shell/Public_Define.h"

using namespace Qt::Literals::StringLiterals;

namespace DictionaryCatalogue {

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
        {u"Professional"_s,
         u"Data\\English\\T_Word\\Professional\\"_s,
         {{u"Computer"_s, u"ComputerEN"_s},
          {u"Electron"_s, u"ElectronEN"_s},
          {u"Physics"_s, u"PhysicsEN"_s},
          {u"Chemistry"_s, u"ChemistryEN"_s},
          {u"Construction"_s, u"ConstructionEN"_s},
          {u"Agriculture"_s, u"AgricultureEN"_s},
          {u"Iatrology"_s, u"IatrologyEN"_s},
          {u"Mathematics"_s, u"MathematicsEN"_s},
          {u"Geography"_s, u"GeographyEN"_s},
          {u"Petrochemistry"_s, u"PetrochemistryEN"_s},
          {u"Psychics"_s, u"PsychicsEN"_s}}},
        {u"Familiar"_s, u"Data\\English\\T_Word\\General\\"_s, {{u"Familiar word"_s, u"1000"_s}}}};
    return classes;
}

QString ExplainedPath()
{
    return Classes().front().Path();
}

} // namespace DictionaryCatalogue
