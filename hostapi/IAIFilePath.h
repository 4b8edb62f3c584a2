// A file path of the host as a value.
#pragma once

#include "AIFilePath.h"
#include "IAIUnicodeString.h"

namespace ai {

// Owns one host path. Everything but destruction throws ai::Error when the suite refuses.
class FilePath {
 public:
  FilePath();
  explicit FilePath(SPFileRef file);
  FilePath(const FilePath&) = delete;
  FilePath& operator=(const FilePath&) = delete;
  ~FilePath();

  UnicodeString GetFullPath() const;  // absolute
  AIFilePathHandle handle() const { return path_; }

 private:
  AIFilePathHandle path_ = nullptr;
};

}  // namespace ai
