#include "WriteCustomLineTypes.h"

#include <boost/property_tree/ptree.hpp>

#include "CustomFile.h"
#include "DefinitionFile.h"
#include "JSONText.h"
#include "LineTypeTexts.h"
#include "LineTypeToTree.h"
#include "PaintTree.h"
#include "PresetsFolder.h"
#include "ReplaceFile.h"
#include "ShowCriticalMessage.h"

namespace Vandrell::Corvane {
namespace {

constexpr std::int32_t kVersion = 1;

std::string FileText(const LineTypeGroup& group) {
  LineTypeTree root, groups, custom;
  PutInteger(root, "Version", kVersion);
  for (const LineType& type : group.types) {
    LineTypeTree element;
    LineTypeToTree(element, type);
    custom.push_back({"", element});
  }
  groups.add_child(kCustomGroup, custom);
  root.add_child("Groups", groups);
  return JSONFromTree(root);
}

// What is not among the line types that are written may be of use to someone.
bool KeepWhatWasNotRead(const std::string& path, bool wasRead) {
  std::vector<LineType> types;
  const CustomFileState state = ReadCustomFile(path, types);
  const bool nothingIsLost =
      state == CustomFileState::Missing || (state == CustomFileState::Whole && wasRead);
  return nothingIsLost || SetCustomFileAside(path);
}

bool Replace(const std::string& path, const LineTypeGroup& group, bool oldWasRead) {
  try {
    const std::string text = FileText(group);
    return KeepWhatWasNotRead(path, oldWasRead) && ReplaceFile(path, text);
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace

bool WriteCustomLineTypes(const LineTypeGroup& group, bool oldWasRead) {
  const std::string folder = PresetsFolder();
  if (folder.empty()) {
    qRVADM::ShowCriticalMessage(kPresetsFolderMissingText);
    return false;
  }
  const bool written = Replace(DefinitionFilePath(folder, kCustomFile), group, oldWasRead);
  if (!written) qRVADM::ShowCriticalMessage(kCustomFileNotWrittenText);
  return written;
}

}  // namespace Vandrell::Corvane
