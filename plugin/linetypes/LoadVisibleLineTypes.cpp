#include "LoadVisibleLineTypes.h"

#include <set>
#include <string>
#include <utility>

#include "LineTypeGroup.h"
#include "LineTypeName.h"
#include "LoadCustomLineTypes.h"
#include "LoadStandardLineTypes.h"
#include "Localize.h"
#include "ShownNames.h"

namespace Vandrell::Corvane {
namespace {

using Names = std::set<std::string>;

// `taken`: names of the line types that are listed already.
void AppendShown(const LineTypeGroup& group, Names& taken, std::vector<LineType>& types) {
  std::vector<std::string> shown;
  ReadShownNames(group, shown);
  const Names isShown(shown.begin(), shown.end());
  for (LineType type : group.types) {
    const std::string name = type.name.as_UTF8();
    if (isShown.count(name) == 0) continue;
    if (group.name == kStandardGroup) type.name = ai::UnicodeString(Localize(name.c_str()));
    if (IsLineTypeNameTooLong(type.name) || !taken.insert(type.name.as_UTF8()).second) continue;
    types.push_back(std::move(type));
  }
}

}  // namespace

bool LoadVisibleLineTypes(std::vector<LineType>& types) {
  std::vector<LineTypeGroup> groups;
  std::string defaultGroup, errorText;
  if (!LoadStandardLineTypes(groups, defaultGroup, errorText)) return false;
  LineTypeGroup custom;
  if (LoadCustomLineTypes(custom, true)) groups.push_back(std::move(custom));
  Names taken;
  for (const LineTypeGroup& group : groups) AppendShown(group, taken, types);
  return true;
}

}  // namespace Vandrell::Corvane
