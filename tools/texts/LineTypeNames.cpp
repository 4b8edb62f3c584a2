#include "LineTypeNames.h"

#include <fstream>
#include <nlohmann/json.hpp>

namespace texts {

void AskForLineTypeNames(AskedKeys& keys, const std::filesystem::path& definitionFile) {
  std::ifstream stream(definitionFile);
  const nlohmann::json definitions = nlohmann::json::parse(stream);
  for (const nlohmann::json& type : definitions.at("Groups").at("Standard")) {
    AskFor(keys, {AskedKey::Kind::LineTypeName, type.at("name").get<std::string>(),
                  definitionFile.filename().string()});
  }
}

}  // namespace texts
