#pragma once

#include <QtGlobal>
#include <optional>

/// A disk that misbehaves while ReplaceFile works, for tests.
struct WriteFault
{
    enum class Step { Open, Write, Flush, Rename };
    enum class Kind {
        Fail, ///< the step reports an error, as a full disk does
        Stop  ///< nothing happens from there on, not even tidying up, as when the program is killed
    };

    Step step = Step::Write;
    Kind kind = Kind::Fail;
    qint64 afterBytes = 0; ///< how many bytes `Step::Write` still brings to the disk
};

/// The misbehaviour in force, nothing in normal life. It stays until it is taken away.
std::optional<WriteFault> &CurrentWriteFault();
