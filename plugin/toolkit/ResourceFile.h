// A file of the bundle, read through the host.
#pragma once

#include <cstddef>
#include <string>

#include "AIDataFilter.h"

namespace qRVADM {

// Open from construction to destruction.
class ResourceFile {
 public:
  explicit ResourceFile(const std::string& path);  // absolute, UTF-8
  ResourceFile(const ResourceFile&) = delete;
  ResourceFile& operator=(const ResourceFile&) = delete;
  ~ResourceFile();

  bool IsOpen() const { return error == kNoErr; }
  // Reads up to `size` bytes and gives their number: less at the end of the file, 0 if reading failed.
  std::size_t Read(char* buffer, std::size_t size);

 private:
  AIDataFilterHandle filter = nullptr;
  AIErr error;
};

}  // namespace qRVADM
