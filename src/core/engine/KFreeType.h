#pragma once

#include "core/engine/TypingSession.h"

/// The engine of free typing: no text, so nothing is judged; it collects the typed lines and measures time
/// and speed. The last line is always the current one. See TypingSession for the order of calls.
class KFreeType final : public TypingSession
{
public:
    /// Stores the line-break setting.
    ~KFreeType() override;

    KFreeType() = default;
    Q_DISABLE_COPY_MOVE(KFreeType)

    /// One record with rate 100, unless nothing was typed.
    void SaveData(const QString &strLesson) override;
    void CheckString(const QString &strInput) override;
    bool SetNextLine() override; ///< always true
    void BackSpace() override;
    WrongCharacters GetWrong() const override { return {}; }

protected:
    int FinalUnits() const override { return m_nTyped; }
};
