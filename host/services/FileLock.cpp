#include "FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

namespace host {
namespace {

constexpr std::chrono::milliseconds kBetweenAttempts(10);

int openLock(const std::string& file) {
  return ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
}

// 0, or the error.
int lockIt(int descriptor, int operation) {
  while (::flock(descriptor, operation) != 0) {
    if (errno != EINTR) return errno;
  }
  return 0;
}

}  // namespace

std::optional<FileLock> FileLock::take(const std::string& file, int operation) {
  FileLock lock(openLock(file));
  if (lock.descriptor_ < 0 || lockIt(lock.descriptor_, operation) != 0) return std::nullopt;
  return lock;
}

std::optional<FileLock> FileLock::wait(const std::string& file) {
  return take(file, LOCK_EX);
}

std::optional<FileLock> FileLock::attempt(const std::string& file) {
  return take(file, LOCK_EX | LOCK_NB);
}

std::optional<FileLock> FileLock::waitAtMost(std::chrono::milliseconds most, const std::string& file,
                                             bool& isHeld) {
  isHeld = false;
  FileLock lock(openLock(file));
  if (lock.descriptor_ < 0) return std::nullopt;
  for (auto waited = std::chrono::milliseconds(0);; waited += kBetweenAttempts) {
    const int error = lockIt(lock.descriptor_, LOCK_EX | LOCK_NB);
    if (error == 0) return lock;
    isHeld = error == EWOULDBLOCK;
    if (!isHeld || waited >= most) return std::nullopt;
    std::this_thread::sleep_for(kBetweenAttempts);
  }
}

FileLock::~FileLock() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

}  // namespace host
