#include "core/shell/UserSettings.h"
#include "core/speedtest/TestMaterial.h"
#include "fuzz/FuzzTarget.h"
#include "platform/Paths.h"
#include "support/TestInstall.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A path that is kept in the settings, which people may change.
void ReadPath(const QByteArray &bytes)
{
    static const TestInstall install;
    static const QString lesson = install.Write(u"Data/English/Professional/Law/1.txt"_s, "law");
    const QString path = QString::fromUtf8(bytes.left(2000));
    const QString moved = Public_Function::FindMovedPath(path);
    Require(moved == path || Public_Function::PathExists(moved), "a path is changed to one that exists");
    const TestMaterial::Place place = TestMaterial::PlaceOf(path);
    Require(!place.folder.contains(u'\\') && !place.folder.contains(u'/'), "a field is one folder");
    TestMaterial::Files(place);
}

const FuzzTarget pathsTarget("paths", ReadPath);

} // namespace
