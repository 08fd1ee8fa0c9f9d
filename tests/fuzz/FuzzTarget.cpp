#include "fuzz/FuzzTarget.h"

#include <QHash>
#include <cstdio>
#include <cstdlib>
#ifdef QUORVEX_FUZZ
#include <sanitizer/allocator_interface.h>
#endif

namespace {

QHash<QByteArray, const FuzzTarget *> &Targets()
{
    static QHash<QByteArray, const FuzzTarget *> targets;
    return targets;
}

/// The memory that this thread has taken and not given back while a reader reads, and the most of it.
thread_local std::ptrdiff_t memory = 0;
thread_local std::ptrdiff_t mostMemory = 0;

#ifdef QUORVEX_FUZZ
void Count(std::ptrdiff_t bytes)
{
    memory += bytes;
    mostMemory = std::max(mostMemory, memory);
}

const int counted = __sanitizer_install_malloc_and_free_hooks(
    [](const volatile void *, std::size_t size) { Count(static_cast<std::ptrdiff_t>(size)); },
    [](const volatile void *block) {
        if (block)
            Count(-static_cast<std::ptrdiff_t>(__sanitizer_get_allocated_size(block)));
    });
#else
constexpr int counted = 1;
#endif

} // namespace

FuzzTarget::FuzzTarget(const char *name, Reader read)
    : m_read(read)
{
    Targets()[name] = this;
}

const FuzzTarget *FuzzTarget::Find(const QByteArray &name)
{
    return Targets().value(name);
}

void FuzzTarget::Feed(const QByteArray &bytes) const
{
    // A line of one character costs a list entry and a block of its own, and lists grow by doubling. SQLite's
    // cache of pages has up to two megabytes.
    constexpr qsizetype perByte = 200;
    constexpr qsizetype atLeast = qsizetype(8) << 20;
    Require(counted > 0, "memory is counted");
    memory = mostMemory = 0;
    m_read(bytes);
    Require(mostMemory <= atLeast + perByte * bytes.size(), "memory stays within bounds");
}

void Require(bool kept, const char *promise)
{
    if (kept)
        return;
    std::fprintf(stderr, "Broken promise: %s\n", promise);
    std::abort();
}
