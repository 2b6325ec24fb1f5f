// A library to be preloaded: counts the calls that a program makes of the system, and lets those
// fail that a plan names. It stands before the system's own library, so that what the program and
// the libraries that it uses call comes by here; it may itself use nothing that calls back.

#include "faults/call_counts.h"

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <type_traits>
#include <unistd.h>

namespace {

struct Plan {
    int kind = -1;
    unsigned long long first = 0;
    unsigned long long last = 0;
    char action = 0; ///< the first letter of its name
    int number = 0;
};

CallCounts* counts = nullptr;
Plan plan;

__attribute__((constructor)) void begin()
{
    const char* const file = std::getenv(countsVariable);
    if (file == nullptr) return;
    if (const char* const seconds = std::getenv(patienceVariable))
        ::alarm(static_cast<unsigned>(std::atoi(seconds)));
    if (const char* const text = std::getenv(planVariable)) {
        char kind[16];
        char action[16];
        if (std::sscanf(text, "%15s %llu %llu %15s %d", kind, &plan.first, &plan.last, action,
                        &plan.number) != 5)
            std::abort();
        for (int i = 0; i < callKinds; ++i)
            if (std::strcmp(kind, callKindNames[i]) == 0) plan.kind = i;
        if (plan.kind < 0) std::abort();
        plan.action = action[0];
    }
    const auto opened = static_cast<int>(::syscall(SYS_openat, AT_FDCWD, file, O_RDWR | O_CLOEXEC));
    void* const page =
        ::mmap(nullptr, sizeof(CallCounts), PROT_READ | PROT_WRITE, MAP_SHARED, opened, 0);
    if (page == MAP_FAILED) std::abort();
    ::syscall(SYS_close, opened);
    counts = static_cast<CallCounts*>(page);
}

enum class Fate { goesOn, fails, isHalved, isTorn };

/// Counts a call under a kind, and says what becomes of it; `errno` is set for one that fails.
Fate fateUnder(int kind)
{
    const auto number = ++counts->calls[kind];
    if (plan.kind != kind || number < plan.first || number > plan.last) return Fate::goesOn;
    ++counts->struck;
    switch (plan.action) {
    case 's':
        ::kill(::getpid(), plan.number);
        return Fate::goesOn;
    case 'h':
        return Fate::isHalved;
    case 't':
        return Fate::isTorn;
    default:
        errno = plan.number;
        return Fate::fails;
    }
}

Fate fateOf(CallKind kind)
{
    if (counts == nullptr) return Fate::goesOn;
    const Fate together = kind == CallKind::memory ? Fate::goesOn : fateUnder(0);
    const Fate own = fateUnder(static_cast<int>(kind));
    const Fate fate = own == Fate::goesOn ? together : own;
    // Only what is written can be torn; any other call is not made any more.
    if (fate == Fate::isTorn && kind != CallKind::write) ::kill(::getpid(), plan.number);
    return fate;
}

bool fails(CallKind kind)
{
    return fateOf(kind) == Fate::fails;
}

/// The system's own function of a name.
template <typename Function>
Function* own(const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

/// How much of `size` bytes a call is let have: at least 1, so that none looks like the end.
std::size_t share(Fate fate, std::size_t size)
{
    return fate == Fate::goesOn || size < 2 ? size : size / 2;
}

/// Ends a program that has written its half.
ssize_t afterTear(Fate fate, ssize_t written)
{
    if (fate == Fate::isTorn) ::kill(::getpid(), plan.number);
    return written;
}

mode_t modeOf(int flags, va_list rest)
{
    const bool makes = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    return makes ? va_arg(rest, mode_t) : 0;
}

bool isLock(int command)
{
    return command == F_SETLK || command == F_SETLKW || command == F_OFD_SETLK ||
           command == F_OFD_SETLKW;
}

} // namespace

// A function that fails with -1 under a kind: its name, parameters and arguments.
#define FAILING(kind, type, name, parameters, arguments)                                           \
    extern "C" type name parameters                                                                \
    {                                                                                              \
        static auto* const real = own<type parameters>(#name);                                     \
        return fails(CallKind::kind) ? type(-1) : real arguments;                                  \
    }

// One that fails with a null pointer.
#define FAILING_TO_NULL(kind, type, name, parameters, arguments)                                   \
    extern "C" type name parameters                                                                \
    {                                                                                              \
        static auto* const real = own<std::remove_pointer_t<type> * parameters>(#name);            \
        return fails(CallKind::kind) ? nullptr : real arguments;                                   \
    }

#define OPENING(name)                                                                              \
    extern "C" int name(const char* path, int flags, ...)                                          \
    {                                                                                              \
        static auto* const real = own<int(const char*, int, ...)>(#name);                          \
        va_list rest;                                                                              \
        va_start(rest, flags);                                                                     \
        const mode_t mode = modeOf(flags, rest);                                                   \
        va_end(rest);                                                                              \
        return fails(CallKind::open) ? -1 : real(path, flags, mode);                               \
    }

#define OPENING_AT(name)                                                                           \
    extern "C" int name(int folder, const char* path, int flags, ...)                              \
    {                                                                                              \
        static auto* const real = own<int(int, const char*, int, ...)>(#name);                     \
        va_list rest;                                                                              \
        va_start(rest, flags);                                                                     \
        const mode_t mode = modeOf(flags, rest);                                                   \
        va_end(rest);                                                                              \
        return fails(CallKind::open) ? -1 : real(folder, path, flags, mode);                       \
    }

#define CONTROL(name)                                                                              \
    extern "C" int name(int file, int command, ...)                                                \
    {                                                                                              \
        static auto* const real = own<int(int, int, ...)>(#name);                                  \
        va_list rest;                                                                              \
        va_start(rest, command);                                                                   \
        void* const argument = va_arg(rest, void*);                                                \
        va_end(rest);                                                                              \
        return isLock(command) && fails(CallKind::lock) ? -1 : real(file, command, argument);      \
    }

#define READING(name, parameters, arguments)                                                       \
    extern "C" ssize_t name parameters                                                             \
    {                                                                                              \
        static auto* const real = own<ssize_t parameters>(#name);                                  \
        const Fate fate = fateOf(CallKind::read);                                                  \
        if (fate == Fate::fails) return -1;                                                        \
        size = share(fate, size);                                                                  \
        return real arguments;                                                                     \
    }

#define WRITING(name, parameters, arguments)                                                       \
    extern "C" ssize_t name parameters                                                             \
    {                                                                                              \
        static auto* const real = own<ssize_t parameters>(#name);                                  \
        const Fate fate = fateOf(CallKind::write);                                                 \
        if (fate == Fate::fails) return -1;                                                        \
        size = share(fate, size);                                                                  \
        return afterTear(fate, real arguments);                                                    \
    }

OPENING(open)
OPENING(open64)
OPENING_AT(openat)
OPENING_AT(openat64)
FAILING_TO_NULL(open, FILE*, fopen, (const char* path, const char* mode), (path, mode))
FAILING_TO_NULL(open, FILE*, fopen64, (const char* path, const char* mode), (path, mode))
FAILING_TO_NULL(open, DIR*, opendir, (const char* path), (path))
FAILING_TO_NULL(open, DIR*, fdopendir, (int folder), (folder))

READING(read, (int file, void* bytes, std::size_t size), (file, bytes, size))
READING(pread, (int file, void* bytes, std::size_t size, off_t at), (file, bytes, size, at))
READING(pread64, (int file, void* bytes, std::size_t size, off64_t at), (file, bytes, size, at))
WRITING(write, (int file, const void* bytes, std::size_t size), (file, bytes, size))
WRITING(pwrite, (int file, const void* bytes, std::size_t size, off_t at), (file, bytes, size, at))
WRITING(pwrite64, (int file, const void* bytes, std::size_t size, off64_t at),
        (file, bytes, size, at))
FAILING(write, ssize_t, writev, (int file, const iovec* parts, int size), (file, parts, size))
FAILING(copy, ssize_t, copy_file_range,
        (int from, off64_t* at, int to, off64_t* there, std::size_t size, unsigned flags),
        (from, at, to, there, size, flags))
FAILING(copy, ssize_t, sendfile, (int to, int from, off_t* at, std::size_t size),
        (to, from, at, size))

FAILING(sync, int, fsync, (int file), (file))
FAILING(sync, int, fdatasync, (int file), (file))
FAILING(rename, int, rename, (const char* from, const char* to), (from, to))
FAILING(rename, int, renameat, (int from, const char* name, int to, const char* other),
        (from, name, to, other))
FAILING(rename, int, link, (const char* from, const char* to), (from, to))
FAILING(folder, int, mkdir, (const char* path, mode_t mode), (path, mode))
FAILING(folder, int, mkdirat, (int folder, const char* path, mode_t mode), (folder, path, mode))
FAILING(remove, int, unlink, (const char* path), (path))
FAILING(remove, int, unlinkat, (int folder, const char* path, int flags), (folder, path, flags))
FAILING(remove, int, rmdir, (const char* path), (path))
FAILING(remove, int, remove, (const char* path), (path))
FAILING(resize, int, ftruncate, (int file, off_t size), (file, size))
FAILING(resize, int, ftruncate64, (int file, off64_t size), (file, size))
FAILING(resize, int, fallocate, (int file, int mode, off_t at, off_t size), (file, mode, at, size))

extern "C" int posix_fallocate(int file, off_t at, off_t size)
{
    static auto* const real = own<int(int, off_t, off_t)>("posix_fallocate");
    return fails(CallKind::resize) ? errno : real(file, at, size);
}

FAILING(ask, int, stat, (const char* path, struct stat* facts), (path, facts))
FAILING(ask, int, stat64, (const char* path, struct stat64* facts), (path, facts))
FAILING(ask, int, lstat, (const char* path, struct stat* facts), (path, facts))
FAILING(ask, int, lstat64, (const char* path, struct stat64* facts), (path, facts))
FAILING(ask, int, fstat, (int file, struct stat* facts), (file, facts))
FAILING(ask, int, fstat64, (int file, struct stat64* facts), (file, facts))
FAILING(ask, int, fstatat, (int folder, const char* path, struct stat* facts, int flags),
        (folder, path, facts, flags))
FAILING(ask, int, statx,
        (int folder, const char* path, int flags, unsigned mask, struct statx* facts),
        (folder, path, flags, mask, facts))
FAILING(ask, int, access, (const char* path, int mode), (path, mode))
FAILING(ask, ssize_t, readlink, (const char* path, char* text, std::size_t size),
        (path, text, size))
FAILING_TO_NULL(list, dirent*, readdir, (DIR * folder), (folder))
FAILING_TO_NULL(list, dirent64*, readdir64, (DIR * folder), (folder))

FAILING(lock, int, flock, (int file, int operation), (file, operation))
CONTROL(fcntl)
CONTROL(fcntl64)

// A file whose closing fails is closed all the same.
extern "C" int close(int file)
{
    static auto* const real = own<int(int)>("close");
    const bool failing = fails(CallKind::close);
    const int error = errno;
    const int result = real(file);
    if (!failing) return result;
    errno = error;
    return -1;
}

extern "C" void* mmap(void* address, std::size_t size, int protection, int flags, int file,
                      off_t at)
{
    static auto* const real = own<void*(void*, std::size_t, int, int, int, off_t)>("mmap");
    return fails(CallKind::map) ? MAP_FAILED : real(address, size, protection, flags, file, at);
}

extern "C" void* mmap64(void* address, std::size_t size, int protection, int flags, int file,
                        off64_t at)
{
    static auto* const real = own<void*(void*, std::size_t, int, int, int, off64_t)>("mmap64");
    return fails(CallKind::map) ? MAP_FAILED : real(address, size, protection, flags, file, at);
}

extern "C" void* mremap(void* address, std::size_t size, std::size_t wanted, int flags, ...)
{
    static auto* const real = own<void*(void*, std::size_t, std::size_t, int, ...)>("mremap");
    va_list rest;
    va_start(rest, flags);
    void* const place = (flags & MREMAP_FIXED) != 0 ? va_arg(rest, void*) : nullptr;
    va_end(rest);
    return fails(CallKind::map) ? MAP_FAILED : real(address, size, wanted, flags, place);
}

// What has no function of its own yet goes through here: openat2.
extern "C" long syscall(long number, ...)
{
    static auto* const real = own<long(long, ...)>("syscall");
    va_list rest;
    va_start(rest, number);
    long words[6];
    for (long& word : words) word = va_arg(rest, long);
    va_end(rest);
    if (number == SYS_openat2 && fails(CallKind::open)) return -1;
    return real(number, words[0], words[1], words[2], words[3], words[4], words[5]);
}

extern "C" int posix_spawn(pid_t* process, const char* path,
                           const posix_spawn_file_actions_t* actions,
                           const posix_spawnattr_t* attributes, char* const* words,
                           char* const* environment)
{
    static auto* const real =
        own<int(pid_t*, const char*, const posix_spawn_file_actions_t*, const posix_spawnattr_t*,
                char* const*, char* const*)>("posix_spawn");
    if (fails(CallKind::start)) return errno;
    return real(process, path, actions, attributes, words, environment);
}

// The C library's own names of these need no look-up, which would ask for memory itself.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* __libc_calloc(std::size_t count, std::size_t size);
extern "C" void* __libc_realloc(void* place, std::size_t size);

extern "C" void* malloc(std::size_t size)
{
    return fails(CallKind::memory) ? nullptr : __libc_malloc(size);
}

extern "C" void* calloc(std::size_t count, std::size_t size)
{
    return fails(CallKind::memory) ? nullptr : __libc_calloc(count, size);
}

extern "C" void* realloc(void* place, std::size_t size)
{
    return fails(CallKind::memory) ? nullptr : __libc_realloc(place, size);
}
