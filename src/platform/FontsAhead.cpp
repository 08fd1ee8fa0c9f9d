#include "platform/FontsAhead.h"

#include <QFile>
#ifdef Q_OS_LINUX
#include <dlfcn.h>
#endif

std::future<bool> Public_Function::ReadFontsAhead(const QString &folder)
{
#ifdef Q_OS_LINUX
    return std::async(std::launch::async, [path = QFile::encodeName(folder)] {
        // It is loaded already, as a part of Qt, and its calls may come from any thread.
        void *library = dlopen("libfontconfig.so.1", RTLD_LAZY | RTLD_NOLOAD);
        if (!library)
            return false;
        using Initialise = int (*)();
        using AddFolder = int (*)(void *settings, const unsigned char *path);
        const auto initialise = reinterpret_cast<Initialise>(dlsym(library, "FcInit"));
        const auto addFolder = reinterpret_cast<AddFolder>(dlsym(library, "FcConfigAppFontAddDir"));
        const bool isAdded =
            initialise && addFolder && initialise() != 0 &&
            addFolder(nullptr, reinterpret_cast<const unsigned char *>(path.constData())) != 0;
        dlclose(library);
        return isAdded;
    });
#else
    Q_UNUSED(folder)
    return {};
#endif
}
