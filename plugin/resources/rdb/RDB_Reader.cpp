#include "RDB_Reader.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t kBufferSize = 65536;

unsigned long CountLineFeeds(const char* bytes, std::size_t size) {
  return static_cast<unsigned long>(std::count(bytes, bytes + size, '\n'));
}

}  // namespace

// The buffer is preceded by room for one byte, the one that may be put back.
RDB_Reader::RDB_Reader(RDB_File& file)
    : file_(&file),
      buffer_(new char[1 + kBufferSize]),
      begin_(nullptr),
      next_(buffer_.get() + 1),
      end_(next_),
      unread_(file.Size()) {}

RDB_Reader::RDB_Reader(const char* bytes, std::size_t size)
    : begin_(bytes), next_(bytes), end_(bytes + size) {}

bool RDB_Reader::Fill() {
  std::size_t count = 0;
  if (file_ != nullptr && !hasFailed_) {
    char* const begin = buffer_.get() + 1;
    if (end_ != begin) buffer_[0] = end_[-1];
    hasFailed_ = !file_->Read(begin, kBufferSize, count);
    next_ = begin;
    end_ = begin + count;
    filled_ += count;
    unread_ -= std::min(unread_, count);
  }
  if (count == 0 && !hasFailed_) isAtEnd_ = true;
  return count > 0;
}

unsigned long RDB_Reader::CountLines() {
  if (file_ == nullptr) return 1 + CountLineFeeds(begin_, static_cast<std::size_t>(next_ - begin_));
  std::size_t left = filled_ - static_cast<std::size_t>(end_ - next_);
  unsigned long lines = 1;
  file_->Rewind();
  std::size_t count = 0;
  while (left > 0 && file_->Read(buffer_.get(), std::min(left, kBufferSize), count) && count > 0) {
    lines += CountLineFeeds(buffer_.get(), count);
    left -= count;
  }
  return lines;
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
