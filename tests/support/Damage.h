#pragma once

#include "platform/WriteFault.h"

#include <QByteArray>
#include <random>

/// A copy with a few bytes overwritten, taken out and put in.
inline QByteArray Damaged(QByteArray bytes, std::mt19937 &random)
{
    for (auto hits = 1 + random() % 6; hits > 0 && !bytes.isEmpty(); --hits) {
        const auto at = static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()));
        const auto byte = static_cast<char>(random());
        if (random() % 3 == 0)
            bytes.remove(at, 1);
        else if (random() % 2 == 0)
            bytes.insert(at, byte);
        else
            bytes[at] = byte;
    }
    return bytes;
}

/// What `action` answers while the disk misbehaves.
template <typename Action>
auto WithFault(const WriteFault &fault, const Action &action)
{
    CurrentWriteFault() = fault;
    auto answer = action();
    CurrentWriteFault().reset();
    return answer;
}
