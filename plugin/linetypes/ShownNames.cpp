#include "ShownNames.h"

#include <boost/algorithm/string/join.hpp>
#include <boost/algorithm/string/split.hpp>

#include "AIPreference.h"
#include "CopyUTF8.h"

namespace Vandrell::Corvane {
namespace {

constexpr char kPrefix[] = "Corvane/Line Types";
constexpr char kSeparator[] = "|";
constexpr std::size_t kBufferSize = 4096;  // bytes, with the closing NUL

std::vector<std::string> DefaultNames(const LineTypeGroup& group) {
  std::vector<std::string> names;
  if (group.name != kStandardGroup) return names;
  for (const LineType& type : group.types) names.push_back(type.name.as_UTF8());
  return names;
}

}  // namespace

void ReadShownNames(const LineTypeGroup& group, std::vector<std::string>& names) {
  char buffer[kBufferSize] = "";
  const std::string joined = boost::join(DefaultNames(group), kSeparator);
  if (joined.size() <= kBufferSize - 2) joined.copy(buffer, joined.size());
  sAIPreference->GetStringPreference(kPrefix, group.name.c_str(), buffer, kBufferSize);
  names.clear();
  const std::string stored(buffer);
  if (!stored.empty()) boost::split(names, stored, [](char c) { return c == kSeparator[0]; });
}

bool WriteShownNames(const std::string& groupName, const std::vector<std::string>& names) {
  const std::string joined = boost::join(names, kSeparator);
  return sAIPreference->PutStringPreference(kPrefix, groupName.c_str(), joined.c_str()) == kNoErr;
}

}  // namespace Vandrell::Corvane
