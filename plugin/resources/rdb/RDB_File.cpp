#include "RDB_File.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

RDB_File::RDB_File(const char* path) {
  if (path == nullptr) return;
  // Opening must not wait for the writer of a pipe, which is refused below.
  descriptor_ = ::open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor_ < 0) return;
  struct stat status {};
  if (::fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode)) {
    size_ = static_cast<std::size_t>(status.st_size);
  } else {
    Close();
  }
}

RDB_File::~RDB_File() {
  if (IsOpen()) Close();
}

void RDB_File::Close() {
  ::close(descriptor_);
  descriptor_ = -1;
}

void RDB_File::Rewind() {
  ::lseek(descriptor_, 0, SEEK_SET);
}

bool RDB_File::Read(char* bytes, std::size_t size, std::size_t& count) {
  ssize_t got = 0;
  do {
    got = ::read(descriptor_, bytes, size);
  } while (got < 0 && errno == EINTR);
  count = got > 0 ? static_cast<std::size_t>(got) : 0;
  return got >= 0;
}
