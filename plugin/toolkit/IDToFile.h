// The plug-in's table of resources: which file of the bundle lies behind a resource id.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

namespace qRVADM {

class IDToFile {
 public:
  IDToFile() = default;
  // `text` has one record a line, as ParseResourceLine reads it. Records of the type "xml", and names that
  // lead out of the resource folder, make no entry. A record stands for two files, the second one in double
  // resolution; a later record replaces an earlier one of the same id.
  explicit IDToFile(std::string_view text);

  // The path below the resource folder; null if the table does not have the id.
  const std::string* Find(int id) const;

 private:
  void Add(std::string_view line);

  std::unordered_map<int, std::string> files;
};

// The table in the bundle at the absolute path. It is read at the first call and then stays for the life of
// the process, whatever bundle is named later; without a file it is empty.
const IDToFile& TheIDToFile(const std::string& bundle);

}  // namespace qRVADM
