#include "platform/Prefault.h"

#include <QtGlobal>
#ifdef Q_OS_LINUX
#include <cstdint>
#include <sys/mman.h>
#include <unistd.h>
#endif

void Public_Function::Prefault(void *block, std::size_t bytes)
{
#ifdef Q_OS_LINUX
    constexpr int populateForWriting = 23; // MADV_POPULATE_WRITE of Linux 5.14, which an older header lacks
    const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const auto address = reinterpret_cast<std::uintptr_t>(block);
    const std::uintptr_t begin = address / page * page;
    madvise(reinterpret_cast<void *>(begin), address + bytes - begin, populateForWriting);
#else
    Q_UNUSED(block)
    Q_UNUSED(bytes)
#endif
}
