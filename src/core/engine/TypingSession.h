#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class IUserRecord;

/// The points of the speed curve. Both lists are equally long and have at least one entry, of the first point
/// at index 0; where nothing was typed, that is speed 0 with an empty label.
struct SpeedCurve
{
    std::vector<int> nSpeed{0};        ///< units a minute
    QStringList sSpeedTime{QString()}; ///< minutes since the start, "0.5", "1", "1.5"
};

/// The mistyped characters, most frequent first, from index 0. Where there are none, both lists hold one
/// entry, count 0 and an empty text.
struct WrongCharacters
{
    bool any = false;
    std::vector<int> nWrong{0};
    QStringList sWrong{QString()};
};

/// What both typing engines have in common: the typed lines, the clock with its pauses, the speed samples and
/// the figures made of them.
///
/// Lines are numbered from 1. A position is one character of a line, from 0; a character outside the basic
/// plane is one position like any other. Order of calls: set m_nMaxCols, load, StartType at the first typed
/// unit, CheckString / BackSpace / SetNextLine as the user types, PauseType twice a pause, CalTypeSpeed every
/// 30 seconds of running time, StopType, SaveData, then the results; Clear before the next session.
///
/// CheckString, BackSpace, SetNextLine and all figures take constant time, however long text and lines are.
class TypingSession
{
public:
    static constexpr int MostCols = 101;

    TypingSession() = default;
    /// Releasing an engine stores the test settings of the user who is logged in.
    virtual ~TypingSession() = default;
    Q_DISABLE_COPY_MOVE(TypingSession)

    int m_nCurCol = 0;         ///< position of the next unit in the current line; read only from outside
    int m_nMaxCols = 0;        ///< line width (GetTextWidth); a line stays narrower; at most MostCols counts
    float m_fLastAveSpeed = 0; ///< units a minute, whole, set by StopType
    float m_fLastRate = 0;     ///< percent, whole, set by StopType
    int m_nBackSpace = 0;      ///< backspaces that removed a position
    bool m_bEnglish = false;   ///< units are keys (stored speed divided by 5) rather than words

    /// An empty session at line 1. The results of the last one (m_nBackSpace, m_fLastAveSpeed, m_fLastRate,
    /// the times and samples) stay until StartType.
    virtual void Clear();
    /// Stores the session's record under this name for the user who is logged in. What cannot be stored is
    /// left out without a word.
    virtual void SaveData(const QString &strLesson) = 0;

    /// What was typed on a line; -1 means the current one, whose number is then written back. An empty text
    /// for a line that there is not (yet).
    QString GetInputLine(int &nLine) const;
    /// One typed unit, a character as a rule. An empty text is none.
    virtual void CheckString(const QString &strInput) = 0;
    /// Goes to the first position of the next line; false, and nothing changed, at the last one.
    virtual bool SetNextLine() = 0;
    /// Takes the last position back, over the line's start if need be.
    virtual void BackSpace() = 0;

    void StartType();
    void PauseType();            ///< pauses, or goes on; a pause does not count as time once it is over
    void StopType();             ///< a second call keeps the first stop time
    double GetTime() const;      ///< seconds since the start, running on in a pause
    int GetAveSpeed() const;     ///< units a minute up to now, without those taken back
    void CalTypeSpeed();         ///< takes the speed sample of the last 30 seconds
    SpeedCurve GetSpeed() const; ///< at most 10 points; after StopType
    virtual WrongCharacters GetWrong() const = 0;

    /// Writes the typed lines up to the current one into a text file (UTF-8, CR LF), which is replaced whole
    /// or left as it was. False when that is impossible.
    bool SaveInput(const QString &sFile) const;

    int CurrentLine() const { return m_nCurLine; }
    /// As GetInputLine for a line from 1 on, without a copy; valid until the next change.
    std::u32string_view InputLine(int nLine) const;

protected:
    /// The units that the final speed is made of.
    virtual int FinalUnits() const = 0;
    virtual float FinalRate() const { return m_fLastRate; }

    int ResolveLine(int &nLine) const;
    std::u32string &CurrentInput();
    /// Counts a typed unit and appends it to the current line.
    void AddUnit(const std::u32string &unit);
    /// Counts a backspace to position `column` of the current line, and cuts the line there.
    void TakeBackTo(int column);
    /// Adds the final speed, in words a minute, to the speed test records and saves them. A speed of 0 is no
    /// result.
    void StoreRecord(IUserRecord &records, float rate, const QString &lesson) const;

    std::vector<std::u32string> m_aInputLine{1}; ///< the lines that were reached so far, line 1 first
    int m_nCurLine = 1;
    int m_nTyped = 0; ///< positions typed and not taken back

private:
    double m_fStartTime = 0; ///< moved forward by every pause
    double m_fPauseTime = 0;
    std::optional<double> m_fStopTime;
    std::vector<int> m_aSpeed; ///< samples, units a minute
    int m_nSampleKeys = 0;
    bool m_bPause = false;
};
