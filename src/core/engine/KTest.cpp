#include "core/engine/KTest.h"

#include "core/engine/TextUnits.h"
#include "core/records/ExchangeOrder.h"
#include "core/records/IUserRecord.h"
#include "core/shell/Public_Define.h"
#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"
#include "platform/Files.h"
#include "platform/Paths.h"

#include <algorithm>
#include <limits>
#include <unordered_map>

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsPunctuation(char32_t character)
{
    static constexpr std::u32string_view ascii = U" ,.!(){}[]<>:;\"'?-+=\\/|*&^%$#@~`_";
    static constexpr std::u32string_view others = U" ，。！·、×…（）｛｝〔〕：；“”‘’？";
    return (character < 0x80 ? ascii : others).find(character) != std::u32string_view::npos;
}

QString TextOf(char32_t character)
{
    return QString::fromUcs4(&character, 1);
}

qint16 AsMistakeCount(int count)
{
    return static_cast<qint16>(std::min<int>(count, std::numeric_limits<qint16>::max()));
}

} // namespace

KTest::~KTest()
{
    const Public_Define &values = Shared();
    if (values.CurrentUserName.isEmpty())
        return;
    SettingFile settings(Public_Function::SettingFilePath());
    settings.Set(u"Exam"_s, u"InComp"_s, values.TestDisplayMode[0]);
    settings.Set(u"Exam"_s, u"AuditionComp"_s, values.TestDisplayMode[2]);
    settings.Set(u"Exam"_s, u"ShowOrg"_s, values.ShowOrg ? 1 : 0);
    settings.Set(u"Exam"_s, u"Frequency"_s, values.Frequency);
    settings.Set(u"Exam"_s, u"OverType"_s, values.OverType);
    settings.Set(u"Exam"_s, u"LimitTime"_s, int(values.LimitTime));
    settings.Set(u"Main"_s, u"NewLine"_s, values.NewLine);
    settings.Save(); // leaving goes on whether or not the disk takes it
}

void KTest::Clear()
{
    TypingSession::Clear();
    m_lines = TestLines();
    m_aKeyState.assign(1, {});
    m_nRight = 0;
    m_nWrong = 0;
}

bool KTest::LoadLesson()
{
    const auto source = static_cast<std::size_t>(Shared().TestSource);
    return source < Shared().TestFile.size() && LoadFile(Shared().TestFile[source]);
}

bool KTest::LoadFile(const QString &path)
{
    if (path.isEmpty())
        return false;
    const std::optional<QString> text = Public_Function::ReadTextFile(path);
    if (!text)
        return false;
    Clear();
    m_nMaxCols = std::min(m_nMaxCols, MostCols);
    m_lines = TestLines(*text, m_nMaxCols);
    m_sTip = GetLessonTip(path);
    return true;
}

QString KTest::GetLessonTip(const QString &path)
{
    const QStringList pieces = Public_Function::ProductPath(path).split(u'\\', Qt::SkipEmptyParts);
    return (pieces.size() > 1 ? pieces[pieces.size() - 2] : QString()) + u": "_s + pieces.last();
}

QString KTest::LoadTestLine(int &nLine) const
{
    const std::u32string_view line = m_lines.Line(ResolveLine(nLine));
    return QString::fromUcs4(line.data(), static_cast<qsizetype>(line.size()));
}

KeyMark KTest::IsRightKey(QString &strInput, int nPos, int &nLine) const
{
    const std::u32string_view typed = InputLine(ResolveLine(nLine));
    const auto position = static_cast<std::size_t>(nPos);
    strInput = nPos >= 0 && position < typed.size() ? TextOf(typed[position]) : QString();
    if (nPos < 0 || nLine < 1 || static_cast<std::size_t>(nLine) > m_aKeyState.size())
        return KeyMark::KeyUntyped;
    const std::vector<KeyMark> &marks = m_aKeyState[static_cast<std::size_t>(nLine - 1)];
    return position < marks.size() ? marks[position] : KeyMark::KeyUntyped;
}

void KTest::SetMark(int column, KeyMark mark)
{
    std::vector<KeyMark> &marks = m_aKeyState[static_cast<std::size_t>(m_nCurLine - 1)];
    const auto position = static_cast<std::size_t>(column);
    if (mark == KeyMark::KeyUntyped && position >= marks.size())
        return;
    if (position >= marks.size())
        marks.resize(position + 1, KeyMark::KeyUntyped);
    marks[position] = mark;
}

void KTest::CheckString(const QString &strInput)
{
    std::u32string unit = strInput.toStdU32String();
    if (unit.empty())
        return;
    Public_Function::ConvertFullSpace(unit);
    const std::u32string_view line = m_lines.Line(m_nCurLine);
    const auto column = static_cast<std::size_t>(m_nCurCol);
    const bool right = unit.size() == 1 && column < line.size() && unit[0] == line[column];
    SetMark(m_nCurCol, right ? KeyMark::KeyRight : KeyMark::KeyWrong);
    AddUnit(unit);
    ++(right ? m_nRight : m_nWrong);
}

bool KTest::IsLineDone() const
{
    return static_cast<std::size_t>(m_nCurCol) >= m_lines.Line(m_nCurLine).size();
}

bool KTest::SetNextLine()
{
    if (m_nCurLine >= m_lines.Count())
        return false;
    ++m_nCurLine;
    m_nCurCol = 0;
    if (const auto reached = static_cast<std::size_t>(m_nCurLine); reached > m_aInputLine.size()) {
        m_aInputLine.resize(reached);
        m_aKeyState.resize(reached);
    }
    return true;
}

void KTest::BackSpace()
{
    int column = m_nCurCol - 1;
    if (column < 0) {
        int line = m_nCurLine - 1;
        while (line > 0 && m_lines.Line(line).empty())
            --line;
        if (line < 1)
            return;
        m_nCurLine = line;
        column = static_cast<int>(m_lines.Line(line).size()) - 1;
    }
    TakeBackTo(column);
    SetMark(column, KeyMark::KeyUntyped);
}

int KTest::FinalUnits() const
{
    return m_nRight + m_nWrong;
}

float KTest::FinalRate() const
{
    return static_cast<float>(GetRightRate());
}

int KTest::GetRightRate() const
{
    const int judged = m_nRight + m_nWrong;
    return judged == 0 ? 0 : static_cast<int>(qint64(m_nRight) * 100 / judged);
}

int KTest::GetProgress() const
{
    const int total = m_lines.CharacterCount();
    return total == 0 ? 0 : static_cast<int>(qint64(m_nTyped) * 100 / total);
}

std::vector<KTest::WrongCount> KTest::CountWrong(Gap gap) const
{
    std::vector<WrongCount> counts;
    std::unordered_map<char32_t, std::size_t> places;
    for (std::size_t i = 0; i < m_aKeyState.size(); ++i) {
        const std::u32string_view line = m_lines.Line(static_cast<int>(i + 1));
        const std::vector<KeyMark> &marks = m_aKeyState[i];
        for (std::size_t column = 0; column < std::min(marks.size(), line.size()); ++column) {
            if (marks[column] == KeyMark::KeyUntyped && gap == Gap::EndsLine)
                break;
            if (marks[column] != KeyMark::KeyWrong)
                continue;
            const auto [place, isNew] = places.try_emplace(line[column], counts.size());
            if (isNew)
                counts.push_back({line[column], 0});
            ++counts[place->second].count;
        }
    }
    return counts;
}

WrongCharacters KTest::GetWrong() const
{
    std::vector<WrongCount> counts = CountWrong(Gap::EndsLine);
    std::erase_if(counts, [](const WrongCount &entry) { return IsPunctuation(entry.character); });
    WrongCharacters wrong;
    if (counts.empty())
        return wrong;
    SortWrong(counts);
    wrong = {true, {}, {}};
    for (const WrongCount &entry : counts) {
        wrong.nWrong.push_back(entry.count);
        wrong.sWrong += TextOf(entry.character);
    }
    return wrong;
}

void KTest::SortWrong(std::vector<WrongCount> &counts)
{
    ExchangeSort(counts, [](const WrongCount &entry) { return -entry.count; });
}

void KTest::SaveData(const QString &strLesson)
{
    if (m_nCurLine == 1 && m_nCurCol == 0 && m_lines.CharacterCount() == 0)
        return;
    IUserRecord records;
    records.SetCurrentUser(Shared().CurrentUserName);
    StoreRecord(records, m_fLastRate, strLesson);
    if (!m_bEnglish)
        SaveMistakes(records);
}

void KTest::SaveMistakes(IUserRecord &records) const
{
    // A Chinese text holds characters of ASCII as well, which the store keeps in the English list: both lists
    // are opened, so that what is in them stays.
    const std::vector<WrongCount> counts = CountWrong(Gap::IsSkipped);
    for (const int language : {1, 0}) {
        const auto belongs = [&](const WrongCount &entry) {
            return (entry.character < 0x80) == (language == 0);
        };
        if (std::none_of(counts.begin(), counts.end(), belongs))
            continue;
        records.OpenMistakeRecord(language);
        for (const WrongCount &entry : counts) {
            bool chinese = true;
            if (belongs(entry))
                records.AddMistakeRecord(TextOf(entry.character), AsMistakeCount(entry.count), chinese);
        }
        records.SaveMistakeRecordFile(language);
    }
}
