#include "platform/ProgramFolder.h"

#include <QFileInfo>

QString Public_Function::ProgramFolder()
{
#ifdef Q_OS_LINUX
    const QFileInfo program(QFile::symLinkTarget(QStringLiteral("/proc/self/exe")));
    return program.exists() ? program.path() : QString();
#else
    return {};
#endif
}
