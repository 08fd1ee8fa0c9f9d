#pragma once

#include <QtGlobal>
#include <functional>
#include <limits>

/// Stands between the program, with its libraries, and the system's file calls, and lets them go wrong. A
/// test that links SystemCalls.cpp has it (Linux). Nothing is ever flushed to the disk there, which takes
/// time.
namespace SystemCalls {

/// What a call does; a fault names the ones that it may hit.
enum Deed : unsigned {
    Asks = 1,          ///< reads, lists, looks whether something is there
    Changes = 2,       ///< makes, renames, removes, writes
    TakesRoom = 4,     ///< fails on a full disk
    Interruptible = 8, ///< may say that a signal came between
    Closes = 16,
    Any = ~0U
};

struct Fault
{
    enum class Effect {
        Error,      ///< it reports `error` and has done nothing
        KillBefore, ///< the process is killed instead of it
        KillAfter,  ///< the process is killed when it is done
        Meanwhile   ///< `meanwhile` happens before it
    };

    unsigned calls = Any;
    Effect effect = Effect::Error;
    int first = 0; ///< number of the first such call that is hit, from 0
    int count = std::numeric_limits<int>::max();
    int error = 0;
    qint64 room = std::numeric_limits<qint64>::max(); ///< bytes that the disk still takes; then ENOSPC
    qint64 longestWrite = std::numeric_limits<qint64>::max(); ///< bytes that one call takes
    std::function<void()> meanwhile = {};
};

/// Runs `action` under the fault. Returns whether it met the fault.
bool Run(const Fault &fault, const std::function<void()> &action);
/// The same in a process of its own, which ends with the action.
bool RunApart(const Fault &fault, const std::function<void()> &action);

} // namespace SystemCalls
