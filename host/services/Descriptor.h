// An open file of the operating system.
#pragma once

#include <unistd.h>

#include <utility>

namespace host {

// Owns a file descriptor; a negative one is none.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() { close(); }

  int number() const { return number_; }
  bool good() const { return number_ >= 0; }
  // False, with errno, if what was written did not get through.
  bool close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

}  // namespace host
