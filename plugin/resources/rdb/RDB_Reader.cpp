#include "RDB_Reader.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t kBufferSize = 64 * 1024;

}  // namespace

// The buffer is preceded by room for one byte, the one that may be put back.
RDB_Reader::RDB_Reader(RDB_File& file)
    : file_(&file),
      buffer_(new char[1 + kBufferSize]),
      next_(buffer_.get() + 1),
      end_(next_),
      unread_(file.Size()) {}

RDB_Reader::RDB_Reader(const char* bytes, std::size_t size) : next_(bytes), end_(bytes + size) {}

bool RDB_Reader::Fill() {
  std::size_t count = 0;
  if (file_ != nullptr && !hasFailed_) {
    char* const begin = buffer_.get() + 1;
    if (end_ != begin) buffer_[0] = end_[-1];
    hasFailed_ = !file_->Read(begin, kBufferSize, count);
    next_ = begin;
    end_ = begin + count;
    unread_ -= std::min(unread_, count);
  }
  if (count == 0 && !hasFailed_) isAtEnd_ = true;
  return count > 0;
}

bool RDB_Reader::Get(char* bytes, std::size_t size) {
  while (size > 0) {
    if (next_ == end_ && !Fill()) return false;
    const std::size_t count = std::min(size, static_cast<std::size_t>(end_ - next_));
    std::memcpy(bytes, next_, count);
    next_ += count;
    bytes += count;
    size -= count;
  }
  return true;
}
