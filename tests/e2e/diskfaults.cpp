// Loaded before the C library, this makes one folder's disk full, read-only or slow: the folder is
// TARN_FAULTS_FOLDER, what is wrong with it the text of the file TARN_FAULTS_FILE, "full",
// "read-only" or the milliseconds that each write takes; the disk is well while that is empty.

#ifndef _GNU_SOURCE
#define _GNU_SOURCE
#endif

#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

// The next function of this name and type.
template<typename Function>
Function *next(Function * /*type*/, const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

enum Fault { None, Full, ReadOnly, Slow };

struct State
{
    Fault fault = None;
    long delayMs = 0;
};

// By system calls alone, which nothing here intercepts.
State state()
{
    const char *path = getenv("TARN_FAULTS_FILE");
    const long file = path ? syscall(SYS_openat, AT_FDCWD, path, O_RDONLY) : -1;
    if (file < 0)
        return {};
    char text[32] = {};
    syscall(SYS_read, file, text, sizeof text - 1);
    syscall(SYS_close, file);
    if (strcmp(text, "full") == 0)
        return {Full, 0};
    if (strcmp(text, "read-only") == 0)
        return {ReadOnly, 0};
    return {text[0] ? Slow : None, atol(text)};
}

bool isIn(const char *path)
{
    const char *folder = getenv("TARN_FAULTS_FOLDER");
    return folder && path && strncmp(path, folder, strlen(folder)) == 0;
}

bool isIn(int file)
{
    char link[64];
    char path[PATH_MAX] = {};
    snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    return readlink(link, path, sizeof path - 1) > 0 && isIn(path);
}

int failed(int error)
{
    errno = error;
    return -1;
}

void wait(const State &now)
{
    const timespec time = {now.delayMs / 1000, now.delayMs % 1000 * 1000000};
    if (now.fault == Slow)
        nanosleep(&time, nullptr);
}

// What is opened to be written or made; a full disk still makes empty files.
bool isRefused(const char *path, int flags)
{
    const bool isWriting = (flags & (O_WRONLY | O_RDWR | O_CREAT)) != 0;
    return isWriting && isIn(path) && state().fault == ReadOnly;
}

// Changes of the folder itself.
bool isRefused(const char *path)
{
    return isIn(path) && state().fault == ReadOnly;
}

// A full disk takes half of what is left, and nothing of the last byte.
template<typename Write>
ssize_t writeTo(int file, size_t size, const Write &write)
{
    const State now = isIn(file) ? state() : State();
    wait(now);
    if (now.fault == ReadOnly)
        return failed(EROFS);
    if (now.fault == Full && size < 2)
        return failed(ENOSPC);
    return write(now.fault == Full ? size / 2 : size);
}

template<typename Sync>
int sync(int file, const Sync &sync)
{
    const State now = isIn(file) ? state() : State();
    wait(now);
    return now.fault == ReadOnly ? failed(EROFS) : sync();
}

mode_t modeOf(int flags, va_list arguments)
{
    const bool isNew = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    return isNew ? va_arg(arguments, mode_t) : 0;
}

} // namespace

#define OPEN(name)                                                                                 \
    extern "C" int name(const char *path, int flags, ...)                                          \
    {                                                                                              \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        const mode_t mode = modeOf(flags, arguments);                                              \
        va_end(arguments);                                                                         \
        static auto *const real = next(name, #name);                                               \
        return isRefused(path, flags) ? failed(EROFS) : real(path, flags, mode);                   \
    }
OPEN(open)
OPEN(open64)
#undef OPEN

#define OPENAT(name)                                                                               \
    extern "C" int name(int folder, const char *path, int flags, ...)                              \
    {                                                                                              \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        const mode_t mode = modeOf(flags, arguments);                                              \
        va_end(arguments);                                                                         \
        static auto *const real = next(name, #name);                                               \
        return isRefused(path, flags) ? failed(EROFS) : real(folder, path, flags, mode);           \
    }
OPENAT(openat)
OPENAT(openat64)
#undef OPENAT

extern "C" ssize_t write(int file, const void *bytes, size_t size)
{
    static auto *const real = next(write, "write");
    return writeTo(file, size, [&](size_t part) { return real(file, bytes, part); });
}

extern "C" int fsync(int file)
{
    static auto *const real = next(fsync, "fsync");
    return sync(file, [&] { return real(file); });
}

extern "C" int fdatasync(int file)
{
    static auto *const real = next(fdatasync, "fdatasync");
    return sync(file, [&] { return real(file); });
}

extern "C" int rename(const char *from, const char *to) noexcept
{
    static auto *const real = next(rename, "rename");
    return isRefused(to) ? failed(EROFS) : real(from, to);
}

extern "C" int linkat(int fromFolder, const char *from, int toFolder, const char *to,
                      int flags) noexcept
{
    static auto *const real = next(linkat, "linkat");
    return isRefused(to) ? failed(EROFS) : real(fromFolder, from, toFolder, to, flags);
}

extern "C" int unlink(const char *path) noexcept
{
    static auto *const real = next(unlink, "unlink");
    return isRefused(path) ? failed(EROFS) : real(path);
}

extern "C" int mkdir(const char *path, mode_t mode) noexcept
{
    static auto *const real = next(mkdir, "mkdir");
    return isRefused(path) ? failed(EROFS) : real(path, mode);
}
