#undef _FORTIFY_SOURCE // it makes some of the names below macros
#include "support/SystemCalls.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <type_traits>
#include <unistd.h>

namespace {

using namespace SystemCalls;

const Fault *inForce = nullptr;
int calls = 0;
qint64 written = 0;
bool met = false;

/// What was there before this file.
template <typename Function>
Function Real(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

/// Does a call, or what the fault makes of it.
template <typename Call>
auto Do(unsigned deed, const Call &call)
{
    using Result = decltype(call());
    const Fault *const fault = inForce;
    if (!fault || !(deed & fault->calls))
        return call();
    const int number = calls++;
    if (number < fault->first || number - fault->first >= fault->count)
        return call();
    met = true;
    switch (fault->effect) {
    case Fault::Effect::Error:
        if (deed & Closes) // that much happens even then
            call();
        errno = fault->error;
        if constexpr (std::is_pointer_v<Result>)
            return Result(nullptr);
        else
            return Result(-1);
    case Fault::Effect::KillAfter:
        call();
        [[fallthrough]];
    case Fault::Effect::KillBefore:
        kill(getpid(), SIGKILL);
        break;
    case Fault::Effect::Meanwhile:
        inForce = nullptr;
        fault->meanwhile();
        inForce = fault;
        break;
    }
    return call();
}

unsigned DeedOfOpen(int flags)
{
    const unsigned kind = (flags & O_ACCMODE) == O_RDONLY ? Asks : Changes;
    return kind | Interruptible | (flags & O_CREAT ? TakesRoom : 0U);
}

/// As many of these bytes as the disk and one call take.
ssize_t WriteWhatFits(int file, const void *bytes, std::size_t size)
{
    auto fits = static_cast<qint64>(size);
    if (inForce) {
        fits = std::min({fits, inForce->room - written, inForce->longestWrite});
        met = met || fits < static_cast<qint64>(size);
        if (fits == 0 && size > 0) {
            errno = ENOSPC;
            return -1;
        }
        written += fits;
    }
    static const auto real = Real<ssize_t (*)(int, const void *, std::size_t)>("write");
    return real(file, bytes, static_cast<std::size_t>(fits));
}

} // namespace

// In C's name space they come before the system's, for every library of the process.
extern "C" {

#define OPEN(name)                                                                                           \
    int name(const char *path, int flags, ...)                                                               \
    {                                                                                                        \
        va_list rest;                                                                                        \
        va_start(rest, flags);                                                                               \
        const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;                               \
        va_end(rest);                                                                                        \
        static const auto real = Real<int (*)(const char *, int, ...)>(#name);                               \
        return Do(DeedOfOpen(flags), [&] { return real(path, flags, mode); });                               \
    }
OPEN(open)
OPEN(open64)

#define PASS_ON(name, deed, exception, result, parameters, arguments)                                        \
    result name parameters exception                                                                         \
    {                                                                                                        \
        static const auto real = Real<result(*) parameters>(#name);                                          \
        return Do(deed, [&] { return real arguments; });                                                     \
    }
#define ASK(name, parameters, arguments) PASS_ON(name, Asks, noexcept, int, parameters, arguments)
#define CHANGE(name, parameters, arguments) PASS_ON(name, Changes, noexcept, int, parameters, arguments)
#define GROW(name, parameters, arguments)                                                                    \
    PASS_ON(name, Changes | TakesRoom, noexcept, int, parameters, arguments)

ASK(access, (const char *path, int mode), (path, mode))
ASK(stat, (const char *path, struct stat *to), (path, to))
ASK(lstat, (const char *path, struct stat *to), (path, to))
ASK(stat64, (const char *path, struct stat64 *to), (path, to))
ASK(lstat64, (const char *path, struct stat64 *to), (path, to))
ASK(fstat64, (int file, struct stat64 *to), (file, to))
ASK(statx, (int folder, const char *path, int flags, unsigned mask, struct statx *to),
    (folder, path, flags, mask, to))
PASS_ON(opendir, Asks, , DIR *, (const char *path), (path))
PASS_ON(readdir, Asks, , dirent *, (DIR * folder), (folder))
PASS_ON(readdir64, Asks, , dirent64 *, (DIR * folder), (folder))
PASS_ON(read, Asks | Interruptible, , ssize_t, (int file, void *to, std::size_t size), (file, to, size))
CHANGE(chmod, (const char *path, mode_t mode), (path, mode))
CHANGE(fchmod, (int file, mode_t mode), (file, mode))
CHANGE(unlink, (const char *path), (path))
CHANGE(rmdir, (const char *path), (path))
CHANGE(remove, (const char *path), (path))
GROW(mkdir, (const char *path, mode_t mode), (path, mode))
GROW(rename, (const char *from, const char *to), (from, to))
PASS_ON(close, Closes, , int, (int file), (file))

ssize_t write(int file, const void *bytes, std::size_t size)
{
    return Do(Changes | TakesRoom | Interruptible, [&] { return WriteWhatFits(file, bytes, size); });
}

int fsync(int file)
{
    Q_UNUSED(file)
    return Do(Changes | TakesRoom | Interruptible, [] { return 0; });
}

} // extern "C"

bool SystemCalls::Run(const Fault &fault, const std::function<void()> &action)
{
    calls = 0;
    written = 0;
    met = false;
    inForce = &fault;
    action();
    inForce = nullptr;
    return met;
}

bool SystemCalls::RunApart(const Fault &fault, const std::function<void()> &action)
{
    const pid_t child = fork();
    if (child == 0) {
        Run(fault, action);
        _exit(met ? 1 : 0);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child)
        qFatal("no process for a fault");
    return !WIFEXITED(status) || WEXITSTATUS(status) != 0;
}
