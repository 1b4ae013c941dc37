// Preloaded into a program, its FAULT_AT-th call for a file fails: with FAULT_KIND "gone" as if the file had been
// deleted, with "denied" for want of a permission. With "full" every later one that wants room on the disk (an
// empty file wants none) fails too, with "kill" the process ends there. A write writes half of its bytes first.
// With "short" the call reads or writes half of its bytes, and with "interrupted" a signal interrupts it: neither is
// a failure. With "memory" the FAULT_AT-th allocation after the program's start fails instead. The file FAULT_TOLD
// is created when the fault happens.
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <stdarg.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#define REAL(name) ((__typeof__(&name))dlsym(RTLD_NEXT, #name))

static int has_begun;

static int is_kind(const char* kind) {
    return strcmp(getenv("FAULT_KIND"), kind) == 0;
}

static int happens(int* calls) {
    const char* at = getenv("FAULT_AT");
    return at != NULL && atoi(at) != 0 && ++*calls - atoi(at) == 0;
}

static void tell(void) {
    REAL(close)(creat(getenv("FAULT_TOLD"), 0600));
}

static int is_faulty(int wants_room) {
    static int calls;
    has_begun = 1;
    if (is_kind("memory"))
        return 0;
    const int now = happens(&calls);
    const int later = calls > atoi(getenv("FAULT_AT")) && wants_room && is_kind("full");
    if (atoi(getenv("FAULT_AT")) == 0 || (!now && !later))
        return 0;
    tell();
    errno = is_kind("gone") ? ENOENT : is_kind("denied") ? EACCES : is_kind("interrupted") ? EINTR
          : wants_room ? ENOSPC : EIO;
    return 1;
}

static int stop(void) {
    if (is_kind("kill"))
        raise(SIGKILL);
    return -1;
}

// Calls that are never interrupted go through then.
#define FAULTY(type, name, wants_room, interrupted, parameters, arguments)                       \
    type name parameters {                                                                       \
        const int faulty = is_faulty(wants_room) && !is_kind("short");                           \
        return faulty && (interrupted || !is_kind("interrupted")) ? stop() : REAL(name) arguments; \
    }
FAULTY(int, mkdir, 1, 0, (const char* path, mode_t mode), (path, mode))
FAULTY(int, fchmod, 0, 0, (int file, mode_t mode), (file, mode))
FAULTY(int, fchmodat, 0, 0, (int folder, const char* path, mode_t mode, int flags), (folder, path, mode, flags))
FAULTY(int, renameat2, 0, 0, (int a, const char* from, int b, const char* to, unsigned flags), (a, from, b, to, flags))
FAULTY(int, ftruncate, 0, 1, (int file, off_t size), (file, size))

// Whether what was written is on the disk. Without a fault no map file is deleted before.
static int is_flushed;

int fsync(int file) {
    is_flushed = 1;
    return is_faulty(1) && !is_kind("short") ? stop() : REAL(fsync)(file);
}

int unlinkat(int folder, const char* path, int flags) {
    if (!is_flushed && atoi(getenv("FAULT_AT")) == 0 && strstr(path, "-tokens"))
        abort();
    return is_faulty(0) && !is_kind("short") && !is_kind("interrupted") ? stop() : REAL(unlinkat)(folder, path, flags);
}

int openat(int folder, const char* path, int flags, ...) {
    va_list mode;
    va_start(mode, flags);
    return is_faulty(0) && !is_kind("short") ? stop() : REAL(openat)(folder, path, flags, va_arg(mode, mode_t));
}

ssize_t read(int file, void* to, size_t size) {
    const int faulty = is_faulty(0);
    return faulty && !is_kind("short") ? stop() : REAL(read)(file, to, faulty && size > 1 ? size / 2 : size);
}

ssize_t write(int file, const void* from, size_t size) {
    is_flushed = 0;
    const int faulty = is_faulty(1);
    const int reason = errno;
    if (faulty && is_kind("interrupted"))
        return stop();
    const ssize_t written = REAL(write)(file, from, faulty && (size > 1 || !is_kind("short")) ? size / 2 : size);
    if (!faulty || is_kind("short"))
        return written;
    errno = reason;
    return stop();
}

int close(int file) {
    const int faulty = is_faulty(0) && !is_kind("short");
    const int reason = errno;
    const int closed = REAL(close)(file);
    errno = faulty ? reason : errno;
    return faulty ? stop() : closed;
}

// What the program calls first of all.
void (*signal(int number, void (*handler)(int)))(int) {
    has_begun = 1;
    return REAL(signal)(number, handler);
}

// Under AddressSanitizer the allocations are those of its own library, and none of them fails.
void* __libc_malloc(size_t size);

void* malloc(size_t size) {
    static int calls;
    if (has_begun && is_kind("memory") && happens(&calls)) {
        tell();
        errno = ENOMEM;
        return NULL;
    }
    return __libc_malloc(size);
}
