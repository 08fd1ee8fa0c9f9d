#include "platform/ProgramLauncher.h"

#include <QFileInfo>
#include <QProcess>

bool SystemProgramLauncher::Start(const QString &nativePath)
{
    const QFileInfo program(nativePath);
    return program.isFile() && program.isExecutable() &&
           QProcess::startDetached(program.absoluteFilePath(), {}, program.absolutePath());
}
