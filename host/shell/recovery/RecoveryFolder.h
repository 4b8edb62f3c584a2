// The copies of the unsaved drawings of one run.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "FileLock.h"
#include "RecoveryNote.h"

namespace host {

// They lie in a folder of their own, which is made for the first of them and goes with the object. What is
// left behind belongs to a process that did not come to its end: see DeadSessions.
class RecoveryFolder {
 public:
  // `root` is where all runs have their folders. It need not exist.
  explicit RecoveryFolder(std::filesystem::path root) : root_(std::move(root)) {}
  RecoveryFolder(const RecoveryFolder&) = delete;
  RecoveryFolder& operator=(const RecoveryFolder&) = delete;
  ~RecoveryFolder();

  // The copy of this number, whether there was one or not. Empty, or a sentence on why not.
  std::string write(std::uint32_t number, const RecoveryNote& note, std::string_view svg);
  void remove(std::uint32_t number);

 private:
  std::string make();
  std::string fileOf(std::uint32_t number, const char* end) const;

  std::filesystem::path root_;
  std::filesystem::path folder_;  // empty: not made yet
  std::optional<FileLock> lock_;
};

}  // namespace host
