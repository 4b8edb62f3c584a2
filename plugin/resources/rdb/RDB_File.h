// A file that is open for reading.
#pragma once

#include <cstddef>

class RDB_File {
 public:
  // Only regular files are opened.
  explicit RDB_File(const char* path);
  RDB_File(const RDB_File&) = delete;
  RDB_File& operator=(const RDB_File&) = delete;
  ~RDB_File();

  bool IsOpen() const { return descriptor_ >= 0; }
  // When it was opened, in bytes.
  std::size_t Size() const { return size_; }
  // Up to `size` bytes, and 0 of them at the end of the file. False on a read error.
  bool Read(char* bytes, std::size_t size, std::size_t& count);
  // The next Read starts at the front again.
  void Rewind();

 private:
  void Close();

  int descriptor_ = -1;
  std::size_t size_ = 0;
};
