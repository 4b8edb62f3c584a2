#include "DefinitionFile.h"

#include <boost/property_tree/ptree.hpp>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "JSONText.h"
#include "ParseLineType.h"

namespace Vandrell::Corvane {
namespace {

namespace fs = std::filesystem;
using boost::property_tree::ptree_error;

constexpr std::size_t kMostBytes = 64 << 20;

std::string ReadBytes(const std::string& path) {
  std::error_code error;
  if (!fs::is_regular_file(path, error)) throw ptree_error("no file");  // a pipe might never end
  if (fs::file_size(path, error) > kMostBytes) throw ptree_error("too large");
  std::ifstream stream(path, std::ios::binary);
  if (!stream) throw ptree_error("cannot be opened");
  std::string bytes(std::istreambuf_iterator<char>(stream), {});
  if (stream.bad()) throw ptree_error("cannot be read");
  return bytes;
}

}  // namespace

std::string DefinitionFilePath(const std::string& folder, const char* name) {
  return folder + "/" + name + ".json";
}

bool FileExists(const std::string& path) {
  std::error_code ignored;
  return fs::exists(path, ignored);
}

LineTypeTree ReadDefinitionFile(const std::string& path) {
  return TreeFromJSON(ReadBytes(path));
}

bool ReadLineTypes(const LineTypeTree& group, std::vector<LineType>& types) {
  bool whole = true;
  for (const auto& [ignored, element] : group) {
    if (std::optional<LineType> type = ParseLineType(JSONFromTree(element))) {
      types.push_back(std::move(*type));
    } else {
      whole = false;
    }
  }
  return whole;
}

}  // namespace Vandrell::Corvane
