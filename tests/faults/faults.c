// Preloaded into a program, its FAULT_AT-th call for a file fails: with FAULT_KIND "gone" as if the file had been
// deleted, with "denied" for want of a permission. With "full" every later one that wants room on the disk (an
// empty file wants none) fails too, with "kill" the process ends there. A write takes half of its bytes first.
// The file FAULT_TOLD says that it came to this.
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

static int is_kind(const char* kind) {
    return strcmp(getenv("FAULT_KIND"), kind) == 0;
}

static int is_faulty(int wants_room) {
    static int calls;
    const int first = atoi(getenv("FAULT_AT"));
    const int later = first != 0 && ++calls > first && wants_room && is_kind("full");
    if (first == 0 || (calls != first && !later))
        return 0;
    REAL(close)(creat(getenv("FAULT_TOLD"), 0600));
    errno = is_kind("gone") ? ENOENT : is_kind("denied") ? EACCES : wants_room ? ENOSPC : EIO;
    return 1;
}

static int stop(void) {
    if (is_kind("kill"))
        raise(SIGKILL);
    return -1;
}

#define FAULTY(type, name, wants_room, parameters, arguments) \
    type name parameters { return is_faulty(wants_room) ? stop() : REAL(name) arguments; }
FAULTY(ssize_t, read, 0, (int file, void* to, size_t size), (file, to, size))
FAULTY(int, mkdir, 1, (const char* path, mode_t mode), (path, mode))
FAULTY(int, unlinkat, 0, (int folder, const char* path, int flags), (folder, path, flags))
FAULTY(int, renameat2, 0, (int a, const char* from, int b, const char* to, unsigned flags), (a, from, b, to, flags))
FAULTY(int, ftruncate, 0, (int file, off_t size), (file, size))

int openat(int folder, const char* path, int flags, ...) {
    va_list mode;
    va_start(mode, flags);
    return is_faulty(0) ? stop() : REAL(openat)(folder, path, flags, va_arg(mode, mode_t));
}

ssize_t write(int file, const void* from, size_t size) {
    const int faulty = is_faulty(1);
    const int reason = errno;
    const ssize_t written = REAL(write)(file, from, faulty ? size / 2 : size);
    errno = faulty ? reason : errno;
    return faulty ? stop() : written;
}

int close(int file) {
    const int faulty = is_faulty(0);
    const int closed = REAL(close)(file);
    return faulty ? stop() : closed;
}
