// A lock that ends with the process that holds it, however that ends.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <utility>

namespace host {

// Held from construction to destruction, against all other holders, in this process too.
class FileLock {
 public:
  // Makes the file if need be. Nullopt if it can't be opened.
  static std::optional<FileLock> wait(const std::string& file);
  // Nullopt also if somebody else holds the lock.
  static std::optional<FileLock> attempt(const std::string& file);
  // Nullopt also if somebody else holds the lock for as long as that; `isHeld` then becomes true, else false.
  static std::optional<FileLock> waitAtMost(std::chrono::milliseconds most, const std::string& file,
                                            bool& isHeld);

  FileLock(FileLock&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  FileLock& operator=(FileLock&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }
  ~FileLock();

 private:
  explicit FileLock(int descriptor) : descriptor_(descriptor) {}
  static std::optional<FileLock> take(const std::string& file, int operation);

  int descriptor_;
};

}  // namespace host
