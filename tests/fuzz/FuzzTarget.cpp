#include "fuzz/FuzzTarget.h"

#include <cstdio>
#include <cstdlib>
#include <vector>
#ifdef QUORVEX_FUZZ
#include <sanitizer/allocator_interface.h>
#endif

namespace {

std::vector<const FuzzTarget *> &Targets()
{
    static std::vector<const FuzzTarget *> targets;
    return targets;
}

/// The memory that this thread has taken and not given back since the last call of Begin, and the most of it.
class Memory
{
public:
    static void Begin()
    {
#ifdef QUORVEX_FUZZ
        static const int installed = __sanitizer_install_malloc_and_free_hooks(
            [](const volatile void *, std::size_t size) { Count(static_cast<std::ptrdiff_t>(size)); },
            [](const volatile void *block) {
                if (block)
                    Count(-static_cast<std::ptrdiff_t>(__sanitizer_get_allocated_size(block)));
            });
        Require(installed > 0, "memory is counted");
#endif
        now = 0;
        most = 0;
    }

    static std::ptrdiff_t Most()
    {
        return most;
    }

private:
    [[maybe_unused]] static void Count(std::ptrdiff_t bytes)
    {
        now += bytes;
        most = std::max(most, now);
    }

    static thread_local std::ptrdiff_t now;
    static thread_local std::ptrdiff_t most;
};

thread_local std::ptrdiff_t Memory::now = 0;
thread_local std::ptrdiff_t Memory::most = 0;

} // namespace

FuzzTarget::FuzzTarget(const char *name, Reader read)
    : m_name(name)
    , m_read(read)
{
    Targets().push_back(this);
}

const FuzzTarget *FuzzTarget::Find(const QByteArray &name)
{
    for (const FuzzTarget *target : Targets()) {
        if (target->m_name == name)
            return target;
    }
    return nullptr;
}

void FuzzTarget::Feed(const QByteArray &bytes) const
{
    // A line of one character costs a list entry and a block of its own, and lists grow by doubling. SQLite's
    // cache of pages has up to two megabytes.
    constexpr qsizetype perByte = 200;
    constexpr qsizetype atLeast = qsizetype(8) << 20;
    Memory::Begin();
    m_read(bytes);
    Require(Memory::Most() <= atLeast + perByte * bytes.size(), "memory stays within bounds");
}

void Require(bool kept, const char *promise)
{
    if (kept)
        return;
    std::fprintf(stderr, "Broken promise: %s\n", promise);
    std::abort();
}
