#pragma once

#include "core/engine/TestLines.h"
#include "core/engine/TypingSession.h"

class IUserRecord;

/// The mark of a position of the test text.
enum class KeyMark : quint8 { KeyUntyped = 0, KeyRight = 1, KeyWrong = 2 };

/// The engine of a speed test: a text to be copied line by line, each typed unit judged against the character
/// at its position. See TypingSession for the order of calls.
///
/// A word wider than a line has a line of its own; where it begins a paragraph, the line before it is empty.
/// Nothing can be typed on an empty line: go on with SetNextLine until IsLineDone() is false.
class KTest final : public TypingSession
{
public:
    KTest() = default;
    /// Stores the speed test settings, all at once; `OutComp` is not among them.
    ~KTest() override;
    Q_DISABLE_COPY_MOVE(KTest)

    QString m_sTip; ///< caption of the loaded text, "<folder>: <file>"

    void Clear() override;
    /// Loads the shared `TestFile` of `TestSource`, in any encoding and of any length, in place of what was
    /// loaded. False, and nothing changed, when there is no path, no such file or it cannot be read. A text
    /// without a character loads too and has no line.
    bool LoadLesson();
    void SaveData(const QString &strLesson) override;

    /// A test line; -1 means the current one, whose number is then written back. An empty text past the last.
    QString LoadTestLine(int &nLine) const;
    /// The mark of a position (line as above); `strInput` receives the typed character there, or an empty
    /// text.
    KeyMark IsRightKey(QString &strInput, int nPos, int &nLine) const;

    void CheckString(const QString &strInput) override;
    bool SetNextLine() override;
    /// At the start of a line it takes back the last character of the line before it, past empty ones: the
    /// current line may change by more than one.
    void BackSpace() override;

    int GetRightRate() const; ///< percent of the judged units, 0 before the first
    int GetProgress() const;  ///< percent of the text's characters, 0 for an empty text
    WrongCharacters GetWrong() const override;

    int LineCount() const { return m_lines.Count(); }
    /// As LoadTestLine for a line from 1 on, without a copy; valid until the next load.
    std::u32string_view TestLine(int nLine) const { return m_lines.Line(nLine); }
    /// Whether the current line has no further position.
    bool IsLineDone() const;

protected:
    int FinalUnits() const override;
    float FinalRate() const override;

private:
    /// How often one character of the text was mistyped.
    struct WrongCount
    {
        char32_t character;
        int count;
    };
    enum class Gap { EndsLine, IsSkipped }; ///< an untyped position before typed ones

    bool LoadFile(const QString &path);
    static QString GetLessonTip(const QString &path);
    void SetMark(int column, KeyMark mark);
    /// In order of the first place at which each was mistyped.
    std::vector<WrongCount> CountWrong(Gap gap) const;
    static void SortWrong(std::vector<WrongCount> &counts);
    void SaveMistakes(IUserRecord &records) const;

    TestLines m_lines;
    std::vector<std::vector<KeyMark>> m_aKeyState{1}; ///< of the lines and positions that were reached
    int m_nRight = 0;
    int m_nWrong = 0;
};
