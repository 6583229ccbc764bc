#include "protocol/poor_file_system.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

// These stand before the functions of the C library with the same names.

using tonarix::PoorFileSystem;

namespace {

int refuse(int error) {
  errno = error;
  return -1;
}

int move(const char* from, const char* to, unsigned flags) {
  PoorFileSystem::asked += 'n';
  return static_cast<int>(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, flags));
}

}  // namespace

extern "C" {

int renameat2(int, const char* from, int, const char* to, unsigned flags) noexcept {
  return PoorFileSystem::moves ? move(from, to, flags) : refuse(EINVAL);
}

int rename(const char* from, const char* to) noexcept {
  return move(from, to, 0);
}

int link(const char* from, const char* to) noexcept {
  if (!PoorFileSystem::links) return refuse(EPERM);
  return static_cast<int>(::syscall(SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0));
}

int unlink(const char* name) noexcept {
  if (!PoorFileSystem::removes) return refuse(EACCES);
  return static_cast<int>(::syscall(SYS_unlinkat, AT_FDCWD, name, 0));
}

int fsync(int file) {
  PoorFileSystem::asked += 's';
  return static_cast<int>(::syscall(SYS_fsync, file));
}
}
