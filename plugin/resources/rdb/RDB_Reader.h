// Bytes one after the other, from a file or from memory.
#pragma once

#include <cstddef>
#include <memory>

#include "RDB_File.h"

class RDB_Reader {
 public:
  static constexpr int kNone = -1;  // no byte: the end, or a read error

  // Neither `file` nor the bytes are owned. Throws std::bad_alloc.
  explicit RDB_Reader(RDB_File& file);
  RDB_Reader(const char* bytes, std::size_t size);
  RDB_Reader(const RDB_Reader&) = delete;
  RDB_Reader& operator=(const RDB_Reader&) = delete;

  int Get() { return next_ != end_ || Fill() ? static_cast<unsigned char>(*next_++) : kNone; }
  int Peek() { return next_ != end_ || Fill() ? static_cast<unsigned char>(*next_) : kNone; }
  // Takes back the last Get that gave a byte, also behind a Peek.
  void PutBack() { --next_; }
  // False if there are fewer; then they are used up.
  bool Get(char* bytes, std::size_t size);

  // What is at hand without reading: from Next() up to End(), both to be asked again after any Get.
  const char* Next() const { return next_; }
  const char* End() const { return end_; }
  void SkipTo(const char* place) { next_ = place; }

  // Of the byte read last, from 1. Looks at all bytes once more, and is the last thing to ask of a reader.
  unsigned long CountLines();
  // At most so many bytes are left, as far as is known: a file may have been cut meanwhile.
  std::size_t Remaining() const { return unread_ + static_cast<std::size_t>(end_ - next_); }
  // True once a byte was wanted and there was none.
  bool IsAtEnd() const { return isAtEnd_; }
  bool HasFailed() const { return hasFailed_; }

 private:
  bool Fill();

  RDB_File* file_ = nullptr;
  std::unique_ptr<char[]> buffer_;
  const char* begin_;  // of memory
  const char* next_;
  const char* end_;
  std::size_t filled_ = 0;  // bytes of the file that were read
  std::size_t unread_ = 0;  // and those that were not
  bool isAtEnd_ = false;
  bool hasFailed_ = false;
};
