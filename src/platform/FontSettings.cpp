#include "platform/FontSettings.h"

#include <QLibrary>

std::future<void> Public_Function::ReadFontSettingsAhead()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    return std::async(std::launch::async, [] {
        // Loaded already, as a part of Qt. It may be initialised by several threads at once.
        using Initialise = int (*)();
        if (const auto initialise =
                reinterpret_cast<Initialise>(QLibrary::resolve(QStringLiteral("fontconfig"), 1, "FcInit")))
            initialise();
    });
#else
    return {};
#endif
}
