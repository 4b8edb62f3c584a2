#include "FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace host {

std::optional<FileLock> FileLock::take(const std::string& file, int operation) {
  FileLock lock(::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
  if (lock.descriptor_ < 0) return std::nullopt;
  int result = -1;
  do {
    result = ::flock(lock.descriptor_, operation);
  } while (result != 0 && errno == EINTR);
  if (result != 0) return std::nullopt;
  return lock;
}

std::optional<FileLock> FileLock::wait(const std::string& file) {
  return take(file, LOCK_EX);
}

std::optional<FileLock> FileLock::attempt(const std::string& file) {
  return take(file, LOCK_EX | LOCK_NB);
}

FileLock::~FileLock() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

}  // namespace host
