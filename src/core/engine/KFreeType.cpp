#include "core/engine/KFreeType.h"

#include "core/engine/TextUnits.h"
#include "core/records/IUserRecord.h"
#include "core/shell/Public_Define.h"
#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"

using namespace Qt::Literals::StringLiterals;

KFreeType::~KFreeType()
{
    if (Shared().CurrentUserName.isEmpty())
        return;
    SettingFile settings(Public_Function::SettingFilePath());
    settings.Set(u"Main"_s, u"NewLine"_s, Shared().NewLine);
    settings.Save(); // leaving goes on whether or not the disk takes it
}

void KFreeType::CheckString(const QString &strInput)
{
    std::u32string unit = strInput.toStdU32String();
    if (unit.empty())
        return;
    Public_Function::ConvertFullSpace(unit);
    AddUnit(unit);
}

bool KFreeType::SetNextLine()
{
    m_aInputLine.emplace_back();
    ++m_nCurLine;
    m_nCurCol = 0;
    return true;
}

void KFreeType::BackSpace()
{
    if (m_nCurCol == 0 && m_nCurLine > 1) {
        m_aInputLine.pop_back();
        --m_nCurLine;
        m_nCurCol = static_cast<int>(CurrentInput().size());
        if (m_nCurCol == 0) {
            ++m_nBackSpace;
            return;
        }
    }
    if (m_nCurCol > 0)
        TakeBackTo(m_nCurCol - 1);
}

void KFreeType::SaveData(const QString &strLesson)
{
    if (m_nTyped == 0)
        return;
    IUserRecord records;
    records.SetCurrentUser(Shared().CurrentUserName);
    StoreRecord(records, 100, strLesson);
}
