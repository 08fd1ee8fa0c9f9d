#pragma once

#include <QtGlobal>
#include <optional>

/// A disk that is full after so many bytes of a file, for tests.
struct WriteFault
{
    qint64 afterBytes = 0;
};

/// The full disk in force, nothing in normal life. It stays until it is taken away.
std::optional<WriteFault> &CurrentWriteFault();
