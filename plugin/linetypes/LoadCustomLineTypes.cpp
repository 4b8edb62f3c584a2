#include "LoadCustomLineTypes.h"

#include "CustomFile.h"
#include "DefinitionFile.h"
#include "LineTypeName.h"
#include "LineTypeTexts.h"
#include "PresetsFolder.h"
#include "ShowCriticalMessage.h"

namespace Vandrell::Corvane {
namespace {

void AppendFitting(LineType type, bool silent, std::vector<LineType>& types) {
  if (IsLineTypeNameTooLong(type.name)) {
    if (silent) return;
    qRVADM::ShowCriticalMessage(kLineTypeNameTooLongText);
    type.name = CutLineTypeName(type.name);
  }
  types.push_back(std::move(type));
}

}  // namespace

bool LoadCustomLineTypes(LineTypeGroup& group, bool silent) {
  const std::string folder = PresetsFolder();
  if (folder.empty()) return false;
  group.name = kCustomGroup;
  group.types.clear();
  std::vector<LineType> types;
  const CustomFileState state = ReadCustomFile(DefinitionFilePath(folder, kCustomFile), types);
  for (LineType& type : types) AppendFitting(std::move(type), silent, group.types);
  return state == CustomFileState::Whole || state == CustomFileState::Incomplete;
}

}  // namespace Vandrell::Corvane
