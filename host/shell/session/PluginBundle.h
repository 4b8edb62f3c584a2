// The library of a plug-in's bundle, loaded.
#pragma once

#include <filesystem>
#include <string>
#include <variant>

#include "SPTypes.h"

namespace host {

// A bundle is a folder NAME.bundle with its code in Contents/Linux/NAME.so. A library that was loaded
// stays mapped to the end of the process, since what a plug-in hung into the host must not dangle.
class PluginBundle {
 public:
  // The error is a sentence that names the file and the reason.
  static std::variant<PluginBundle, std::string> load(const std::filesystem::path& folder);

  SPPluginMain entry() const { return entry_; }
  const std::filesystem::path& folder() const { return folder_; }  // absolute
  std::string name() const;                                        // the folder's name without ".bundle"

 private:
  PluginBundle(std::filesystem::path place, SPPluginMain function);

  std::filesystem::path folder_;
  SPPluginMain entry_;
};

}  // namespace host
