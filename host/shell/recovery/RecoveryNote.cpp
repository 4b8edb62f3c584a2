#include "RecoveryNote.h"

#include <nlohmann/json.hpp>

namespace host {
namespace {

using Json = nlohmann::json;

constexpr char kTitle[] = "title";
constexpr char kFile[] = "file";
constexpr char kTime[] = "time";

std::string textIn(const Json& json, const char* key) {
  const auto found = json.find(key);
  return found != json.end() && found->is_string() ? found->get<std::string>() : std::string();
}

}  // namespace

std::string noteAsJson(const RecoveryNote& note) {
  const Json json{{kTitle, note.title}, {kFile, note.file}, {kTime, note.time}};
  return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

RecoveryNote noteFromJson(const std::string& json) {
  const Json read = Json::parse(json, nullptr, false);
  RecoveryNote note;
  if (!read.is_object()) return note;
  note.title = textIn(read, kTitle);
  note.file = textIn(read, kFile);
  if (const auto time = read.find(kTime); time != read.end() && time->is_number_integer()) {
    note.time = time->get<std::int64_t>();
  }
  return note;
}

}  // namespace host
