/* Makes the nth system call that writes a file fail, or ends the process there: loaded before the
   program by LD_PRELOAD, with "CALL N ERRNO" in the variable FAULT. CALL "any" counts all of them;
   ERRNO 0 kills before the call, -1 lets a write take half. "[fault]" on standard error says that
   it happened. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#define REAL(name) ((__typeof__(&name))dlsym(RTLD_NEXT, #name))

/* 1 when this call is the one; errno is set. */
static int due(const char* call) {
  static char wanted[16];
  static int left, cause;
  if (!wanted[0]) {
    const char* fault = getenv("FAULT");
    if (!fault || sscanf(fault, "%15s %d %d", wanted, &left, &cause) != 3) strcpy(wanted, "none");
  }
  if ((strcmp(wanted, call) && strcmp(wanted, "any")) || --left != 0) return 0;
  if (cause == 0) kill(getpid(), SIGKILL);
  syscall(SYS_write, 2, "[fault]\n", 8);
  errno = cause;
  return 1;
}

/* Only descriptors that a file is written by count. */
static int written(int fd) {
  const int before = errno;
  struct stat status;
  const int flags = fcntl(fd, F_GETFL);
  const int yes = flags >= 0 && (flags & O_ACCMODE) != O_RDONLY && fstat(fd, &status) == 0 &&
                  S_ISREG(status.st_mode);
  errno = before;
  return yes;
}

int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = va_arg(rest, mode_t);
  va_end(rest);
  if ((flags & O_ACCMODE) == O_WRONLY && due("open")) return -1;
  return REAL(open)(path, flags, mode);
}

ssize_t write(int fd, const void* bytes, size_t count) {
  if (written(fd) && due("write")) {
    if (errno != -1) return -1;
    count = (count + 1) / 2;
  }
  return REAL(write)(fd, bytes, count);
}

int fsync(int fd) { return written(fd) && due("fsync") ? -1 : REAL(fsync)(fd); }

int fchmod(int fd, mode_t mode) { return written(fd) && due("fchmod") ? -1 : REAL(fchmod)(fd, mode); }

int close(int fd) {
  if (!written(fd) || !due("close")) return REAL(close)(fd);
  const int cause = errno;
  REAL(close)(fd);
  errno = cause;
  return -1;
}

int linkat(int a, const char* from, int b, const char* to, int flags) {
  return due("linkat") ? -1 : REAL(linkat)(a, from, b, to, flags);
}

int rename(const char* from, const char* to) { return due("rename") ? -1 : REAL(rename)(from, to); }

int unlink(const char* path) { return due("unlink") ? -1 : REAL(unlink)(path); }
