#include "LoadStandardLineTypes.h"

#include <boost/property_tree/ptree.hpp>
#include <cstdlib>

#include "DefinitionFile.h"
#include "LineTypeTexts.h"

namespace Vandrell::Corvane {
namespace {

std::string ResourceFolder() {
  const char* const folder = std::getenv("LOCALE_PATH");
  return folder == nullptr ? "" : folder;
}

void ReadGroups(const LineTypeTree& file, std::vector<LineTypeGroup>& groups) {
  for (const auto& [name, children] : file.get_child("Groups")) {
    LineTypeGroup group;
    group.name = name;
    ReadLineTypes(children, group.types);
    groups.push_back(std::move(group));
  }
}

}  // namespace

bool LoadStandardLineTypes(std::vector<LineTypeGroup>& groups, std::string& defaultGroup,
                           std::string& errorText) {
  const std::string path = DefinitionFilePath(ResourceFolder(), kStandardFile);
  if (!FileExists(path)) {
    errorText = kDefinitionFileMissingText;
    return false;
  }
  try {
    const LineTypeTree file = ReadDefinitionFile(path);
    ReadGroups(file, groups);
    defaultGroup = file.get<std::string>("Default");
    return true;
  } catch (const std::exception&) {
    errorText = kDefinitionFileCorruptText;
    return false;
  }
}

}  // namespace Vandrell::Corvane
