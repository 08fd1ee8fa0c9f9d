#pragma once

#include "platform/WriteFault.h"

/// What `action` answers while the disk misbehaves.
template <typename Action>
auto WithFault(const WriteFault &fault, const Action &action)
{
    CurrentWriteFault() = fault;
    auto answer = action();
    CurrentWriteFault().reset();
    return answer;
}
