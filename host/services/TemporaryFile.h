// What a file is to become, until it can take the file's place.
#pragma once

#include <filesystem>
#include <string>

#include "Descriptor.h"

namespace host {

// A new file in the folder of `target`, for its owner alone to read, which goes with the object.
class TemporaryFile {
 public:
  enum class Kind {
    Nameless,  // nothing of it outlives a crash; not every file system has such files or can name them later
    Named      // lies beside the target from the start
  };

  TemporaryFile(const std::filesystem::path& target, Kind kind);
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile();

  bool good() const { return descriptor_.good(); }  // false: errno tells why
  int number() const { return descriptor_.number(); }
  // Closes the file and makes it the target, whether that was there or not. False, with errno, if it could
  // not be; the target is as it was then.
  bool putInPlace();

 private:
  bool giveName();

  std::filesystem::path target_;
  std::string name_;  // empty: none
  Descriptor descriptor_;
};

}  // namespace host
