// A definition file of line types, or one of its elements.
#include <boost/property_tree/ptree.hpp>
#include <cstdint>
#include <string>
#include <vector>

#include "DefinitionFile.h"
#include "Expect.h"
#include "FuzzTarget.h"
#include "HMX_AISuiteManager.h"
#include "Host.h"
#include "JSONText.h"
#include "LineTypeToTree.h"
#include "ParseLineType.h"

namespace {

using namespace Vandrell::Corvane;

// Names are strings of the host.
void StartHost() {
  static host::Host host;
  static const bool started = [] {
    HMX_AISuiteManager& suites = HMX_AISuiteManager::Instance();
    suites.SetBasicSuite(host.basic());
    suites.Request("AI Unicode String Suite");
    return suites.Acquire() == kNoErr;
  }();
  Expect(started, "the host has strings");
}

std::string Written(const LineType& type) {
  LineTypeTree tree;
  LineTypeToTree(tree, type);
  return JSONFromTree(tree);
}

void CheckLineType(const LineType& type) {
  Expect(!type.name.empty(), "a line type has a name");
  const std::string text = Written(type);
  const auto again = ParseLineType(text);
  Expect(again.has_value(), "what was written can be read");
  Expect(Written(*again) == text, "and is the same");
}

void CheckFile(const std::string& text) {
  std::vector<LineType> types;
  try {
    const LineTypeTree file = TreeFromJSON(text);
    for (const auto& [name, group] : file.get_child("Groups")) ReadLineTypes(group, types);
  } catch (
      const boost::property_tree::ptree_error&) {  // no definition file; what stood before the fault counts
  }
  for (const LineType& type : types) CheckLineType(type);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  StartHost();
  const std::string text(reinterpret_cast<const char*>(data), size);
  CheckFile(text);
  if (const auto type = ParseLineType(text)) CheckLineType(*type);
  return 0;
}
