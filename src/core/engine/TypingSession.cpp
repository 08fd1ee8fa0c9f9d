#include "core/engine/TypingSession.h"

#include "core/engine/TextUnits.h"
#include "core/records/IUserRecord.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/Services.h"

#include <QLocale>
#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

double Now()
{
    return PlatformServices().clock->Now();
}

int PerMinute(int units, double seconds)
{
    const qint64 whole = Public_Function::RoundHalfEven(seconds);
    const qint64 speed = qint64(units) * 60 / (whole == 0 ? 1 : whole);
    constexpr qint64 fastest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(speed, -fastest, fastest));
}

QString Decimal(double number)
{
    return QString::number(number, 'f', QLocale::FloatingPointShortest);
}

} // namespace

void TypingSession::Clear()
{
    m_aInputLine.assign(1, std::u32string());
    m_nCurLine = 1;
    m_nCurCol = 0;
    m_nTyped = 0;
    m_bPause = false;
}

int TypingSession::ResolveLine(int &nLine) const
{
    if (nLine == -1)
        nLine = m_nCurLine;
    return nLine;
}

std::u32string_view TypingSession::InputLine(int nLine) const
{
    if (nLine < 1 || static_cast<std::size_t>(nLine) > m_aInputLine.size())
        return {};
    return m_aInputLine[static_cast<std::size_t>(nLine - 1)];
}

QString TypingSession::GetInputLine(int &nLine) const
{
    const std::u32string_view line = InputLine(ResolveLine(nLine));
    return QString::fromUcs4(line.data(), static_cast<qsizetype>(line.size()));
}

std::u32string &TypingSession::CurrentInput()
{
    return m_aInputLine[static_cast<std::size_t>(m_nCurLine - 1)];
}

void TypingSession::AddUnit(const std::u32string &unit)
{
    ++m_nTyped;
    ++m_nCurCol;
    ++m_nSampleKeys;
    CurrentInput() += unit;
}

void TypingSession::TakeBackTo(int column)
{
    ++m_nBackSpace;
    --m_nTyped;
    m_nCurCol = column;
    std::u32string &line = CurrentInput();
    line.resize(std::min(line.size(), static_cast<std::size_t>(column)));
}

void TypingSession::StartType()
{
    m_fStartTime = Now();
    m_fStopTime.reset();
    m_fPauseTime = 0;
    m_fLastAveSpeed = 0;
    m_fLastRate = 0;
    m_nBackSpace = 0;
    m_aSpeed.clear();
    m_nSampleKeys = 0;
    m_bPause = false;
}

void TypingSession::PauseType()
{
    if (m_bPause)
        m_fStartTime += Now() - m_fPauseTime;
    else
        m_fPauseTime = Now();
    m_bPause = !m_bPause;
}

void TypingSession::StopType()
{
    if (!m_fStopTime)
        m_fStopTime = Now();
    m_fLastAveSpeed = static_cast<float>(PerMinute(FinalUnits(), *m_fStopTime - m_fStartTime));
    m_fLastRate = FinalRate();
}

double TypingSession::GetTime() const
{
    return Now() - m_fStartTime;
}

int TypingSession::GetAveSpeed() const
{
    return PerMinute(m_nTyped, GetTime());
}

void TypingSession::CalTypeSpeed()
{
    m_aSpeed.push_back(m_nSampleKeys * 2);
    m_nSampleKeys = 0;
}

SpeedCurve TypingSession::GetSpeed() const
{
    SpeedCurve curve;
    if (FinalUnits() == 0)
        return curve;
    const auto samples = static_cast<int>(m_aSpeed.size());
    if (samples == 0) {
        const double seconds = m_fStopTime.value_or(0) - m_fStartTime;
        curve.nSpeed[0] =
            static_cast<int>(Public_Function::RoundHalfEven(static_cast<double>(m_fLastAveSpeed)));
        curve.sSpeedTime[0] = Decimal(static_cast<double>(Public_Function::RoundHalfEven(seconds / 6)) / 10);
        return curve;
    }
    curve.nSpeed.clear();
    curve.sSpeedTime.clear();
    const int step = Public_Function::CeilDiv(static_cast<float>(samples), 10);
    for (int sample = step; sample <= samples; sample += step) {
        curve.nSpeed.push_back(m_aSpeed[static_cast<std::size_t>(sample - 1)]);
        curve.sSpeedTime += Decimal(sample * 0.5);
    }
    return curve;
}

void TypingSession::StoreRecord(IUserRecord &records, float rate, const QString &lesson) const
{
    constexpr int speedTests = 3;
    constexpr qint64 keysInWord = 5;
    float speed = m_fLastAveSpeed;
    if (m_bEnglish) {
        const qint64 words = Public_Function::RoundHalfEven(static_cast<double>(speed)) / keysInWord;
        speed = static_cast<float>(words);
    }
    if (speed == 0)
        return;
    records.OpenTrainingRecord(speedTests);
    records.AddTrainingRecord(speed, rate, lesson, speedTests);
    records.SaveTrainingRecordFile(speedTests);
}

bool TypingSession::SaveInput(const QString &sFile) const
{
    if (sFile.isEmpty())
        return false;
    QByteArray bytes;
    for (int line = 1; line <= m_nCurLine; ++line)
        bytes += GetInputLine(line).toUtf8() + "\r\n";
    return Public_Function::ReplaceFile(sFile, sFile + u".quorvex-new"_s, bytes);
}
