#pragma once

#include <QByteArray>

/// A reader of the program that is fed with files of any kind. Each is made once, at the start of the
/// program, and found by its name.
class FuzzTarget
{
public:
    using Reader = void (*)(const QByteArray &bytes);

    FuzzTarget(const char *name, Reader read);

    /// Null when there is none of that name.
    static const FuzzTarget *Find(const QByteArray &name);

    /// Lets the reader read. Under libFuzzer it also ends the program when a reader took far more memory
    /// than the file is large.
    void Feed(const QByteArray &bytes) const;

private:
    Reader m_read;
};

/// Ends the program, as a crash does, when a promise of the reader is broken.
void Require(bool kept, const char *promise);
