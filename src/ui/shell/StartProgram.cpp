#include "ui/shell/StartProgram.h"

#include "core/shell/Public_Define.h"
#include "platform/Paths.h"
#include "platform/ProgramLauncher.h"
#include "platform/Services.h"
#include "ui/shell/ShowMessage.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

void Public_Function::StartShippedProgram(const QString &relativePath)
{
    const QString path = NativePath(Shared().InstallDir + relativePath);
    if (PlatformServices().launcher->Start(path))
        return;
    ShowMessage(QCoreApplication::translate("Frm_Main", "This program could not be started:\n%1").arg(path),
                u"Quorvex"_s, MessageIcon::Error, MessageButtons::Ok);
}
