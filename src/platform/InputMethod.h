#pragma once

#include <QString>
#include <chrono>

namespace Public_Function {

/// The name of the input method that is active now, such as "Pinyin", "Intelligent Pinyin" or "Wubi 86";
/// empty for a plain keyboard layout and without an input method. "Pinyin" is in it for every method that is
/// typed by Pinyin syllables, whatever it calls itself. Asks the system and waits for its answer no longer
/// than `ImeAnswerLimit`, mostly some milliseconds; without an answer it is the name known last. Made for
/// moments such as the end of a test or a switch of the input method, not for every key.
QString GetImeName();

/// The same name as it was known last, without asking. Follows a change within some milliseconds.
QString KnownImeName();

} // namespace Public_Function

constexpr std::chrono::milliseconds ImeAnswerLimit{150};

/// Knows the name of the active input method. A test puts one of its own into
/// `PlatformServices().inputMethod`; until `main` or a test does, there is none and both names are empty.
class InputMethod
{
public:
    virtual ~InputMethod() = default;

    /// Never waits.
    virtual QString KnownName() const = 0;
    /// Asks anew. Waits for the answer no longer than `limit`, then returns the name known last.
    virtual QString AskName(std::chrono::milliseconds limit) = 0;
    /// Asks anew without waiting; the answer becomes the known name.
    virtual void Refresh() = 0;
};

/// There is no input method.
class NoInputMethod : public InputMethod
{
public:
    QString KnownName() const override { return {}; }
    QString AskName(std::chrono::milliseconds) override { return {}; }
    void Refresh() override {}
};

/// What people read as the name of an input method that the system calls `id` and shows as `name`, which may
/// be empty or in the system's language: says "Pinyin" for every method that is typed by Pinyin syllables,
/// double Pinyin included. Empty for plain keyboard layouts ("keyboard-us", "xkb:us::eng").
QString ImeDisplayName(const QString &id, const QString &name);
