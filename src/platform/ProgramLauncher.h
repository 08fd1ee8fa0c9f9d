#pragma once

#include <QString>

/// Starts separate programs and does not wait for them.
class ProgramLauncher
{
public:
    virtual ~ProgramLauncher() = default;
    /// False when there is no such file or the system refuses to start it.
    virtual bool Start(const QString &nativePath) = 0;
};

class SystemProgramLauncher final : public ProgramLauncher
{
public:
    bool Start(const QString &nativePath) override;
};
