#include "Preferences.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <limits>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <utility>

#include "AtomicFile.h"
#include "FileLock.h"
#include "Utf8.h"

namespace host {
namespace {

using Json = nlohmann::json;
using Key = std::pair<std::string, std::string>;

// Values have two; what another program has put there is kept, but storing it takes stack for each level.
constexpr int kMostLevels = 100;

// Others hold the lock while they read and write one small file.
constexpr std::chrono::seconds kLongestWait(1);
constexpr char kHeldByOthers[] = "another program keeps them locked";

// An overlay that takes the kind it is asked for.
struct UntypedText {
  std::string text;
};
using Overlay = std::variant<PreferenceValue, UntypedText>;

Key keyOf(std::string_view prefix, std::string_view suffix) {
  return {validUtf8(prefix), validUtf8(suffix)};
}

template <typename Number>
std::optional<Number> numberIn(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

void readText(const std::string& text, std::optional<bool>& value) {
  if (text == "true" || text == "1") value = true;
  if (text == "false" || text == "0") value = false;
}
void readText(const std::string& text, std::optional<std::int32_t>& value) {
  value = numberIn<std::int32_t>(text);
}
void readText(const std::string& text, std::optional<double>& value) {
  value = numberIn<double>(text);
  if (value && !std::isfinite(*value)) value.reset();
}
void readText(const std::string& text, std::optional<std::string>& value) {
  value = text;
}

void readJson(const Json& json, std::optional<bool>& value) {
  if (json.is_boolean()) value = json.get<bool>();
}
void readJson(const Json& json, std::optional<std::int32_t>& value) {
  using Limits = std::numeric_limits<std::int32_t>;
  if (json.is_number_unsigned() && json.get<std::uint64_t>() > std::uint64_t{Limits::max()}) return;
  if (!json.is_number_integer()) return;
  const auto number = json.get<std::int64_t>();
  if (number >= Limits::min() && number <= Limits::max()) value = static_cast<std::int32_t>(number);
}
void readJson(const Json& json, std::optional<double>& value) {
  if (json.is_number_float()) value = json.get<double>();
}
void readJson(const Json& json, std::optional<std::string>& value) {
  if (json.is_string()) value = json.get<std::string>();
}

template <typename Value>
void readOverlay(const Overlay& overlay, std::optional<Value>& value) {
  if (const auto* untyped = std::get_if<UntypedText>(&overlay)) {
    readText(untyped->text, value);
  } else if (const auto* typed = std::get_if<Value>(&std::get<PreferenceValue>(overlay))) {
    value = *typed;
  }
}

bool isFinite(const PreferenceValue& value) {
  const double* real = std::get_if<double>(&value);
  return real == nullptr || std::isfinite(*real);
}

PreferenceValue withValidText(PreferenceValue value) {
  if (auto* text = std::get_if<std::string>(&value)) *text = validUtf8(*text);
  return value;
}

bool isObjectOfObjects(const Json& json) {
  return json.is_object() &&
         std::all_of(json.begin(), json.end(), [](const Json& member) { return member.is_object(); });
}

// Nullopt if the bytes are no preferences; `reason` then says why, with the place.
std::optional<Json> parsed(const std::string& bytes, std::string& reason) {
  try {
    bool isTooDeep = false;
    Json json = Json::parse(bytes, [&isTooDeep](int depth, Json::parse_event_t, const Json&) {
      isTooDeep = isTooDeep || depth > kMostLevels;
      return !isTooDeep;
    });
    if (!isTooDeep && isObjectOfObjects(json)) return std::make_optional(std::move(json));
    reason = isTooDeep ? "nested too deeply" : "not an object of objects";
  } catch (const Json::out_of_range&) {
    reason = "a number is out of range";
  } catch (const Json::parse_error& error) {
    const auto end = bytes.begin() + static_cast<std::ptrdiff_t>(std::min(error.byte, bytes.size()));
    reason = "not valid JSON in line " + std::to_string(std::count(bytes.begin(), end, '\n') + 1);
  }
  return std::nullopt;
}

// What the file says now; no preferences if there is no file.
std::optional<Json> stored(const std::string& file, std::string& reason) {
  std::error_code ignored;
  const auto status = std::filesystem::symlink_status(file, ignored);
  if (status.type() == std::filesystem::file_type::not_found) return std::make_optional(Json::object());
  const auto bytes = readFile(file, &reason);
  return bytes ? parsed(*bytes, reason) : std::nullopt;
}

std::string inQuotes(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

std::string complaintAbout(const std::string& file, const std::string& reason) {
  return "The preferences in " + inQuotes(file) + " could not be read (" + reason +
         "), so the defaults are used; the file is set aside before preferences are stored again.";
}

// A name beside `file` that nothing has yet.
std::string nameForBroken(const std::string& file) {
  std::string name = file + ".broken";
  for (int n = 2; std::filesystem::exists(std::filesystem::symlink_status(name)); ++n) {
    name = file + ".broken-" + std::to_string(n);
  }
  return name;
}

// The folder is made for its user alone, as the XDG base directory standard asks.
void makeFolderOf(const std::string& file) {
  const std::filesystem::path folder = std::filesystem::path(file).parent_path();
  if (folder.empty() || !std::filesystem::create_directories(folder)) return;
  std::filesystem::permissions(folder, std::filesystem::perms::owner_all);
}

}  // namespace

// Values lie in an object of objects: prefix, suffix, value. What others wrote into it and no kind of
// ours covers stays as it is.
struct Preferences::Store {
  Json values = Json::object();
  std::map<Key, Overlay> overlays;
  std::set<Key> changed;  // since the last save
  std::string file;

  const Json* find(const Key& key) const {
    const auto group = values.find(key.first);
    if (group == values.end()) return nullptr;
    const auto value = group->find(key.second);
    return value == group->end() ? nullptr : &*value;
  }

  template <typename Value>
  std::optional<Value> get(std::string_view prefix, std::string_view suffix) const {
    std::optional<Value> value;
    const Key key = keyOf(prefix, suffix);
    if (const auto overlay = overlays.find(key); overlay != overlays.end()) {
      readOverlay(overlay->second, value);
    } else if (const Json* json = find(key)) {
      readJson(*json, value);
    }
    return value;
  }

  // Lays what was put since the last save over what others have stored meanwhile.
  void layOver(Json& others) const {
    for (const Key& key : changed) others[key.first][key.second] = *find(key);
  }

  // Writes what was put since the last save into what lies in the file, whoever wrote it; throws
  // std::filesystem::filesystem_error. Empty, or a clause on why not.
  std::string merge() const {
    std::string ignored;
    std::optional<Json> merged = stored(file, ignored);
    if (merged) {
      layOver(*merged);
    } else {
      if (std::filesystem::exists(file)) std::filesystem::rename(file, nameForBroken(file));
      merged.emplace(values);
    }
    return replaceFile(file, merged->dump(2) + "\n");
  }
};

Preferences::Preferences() : store_(std::make_unique<Store>()) {}
Preferences::Preferences(Preferences&&) noexcept = default;
Preferences& Preferences::operator=(Preferences&&) noexcept = default;
Preferences::~Preferences() = default;

Preferences Preferences::load(std::string file, std::string& complaint) {
  Preferences preferences;
  Store& store = *preferences.store_;
  store.file = std::move(file);
  complaint.clear();
  std::string reason;
  if (auto values = stored(store.file, reason)) {
    store.values = std::move(*values);
  } else {
    complaint = complaintAbout(store.file, reason);
  }
  return preferences;
}

std::string Preferences::save() {
  if (store_->changed.empty() || store_->file.empty()) return {};
  std::string reason;
  try {
    makeFolderOf(store_->file);
    bool isHeld = false;
    // Where there can be no lock it goes without: nobody else has one there either.
    const auto lock = FileLock::waitAtMost(kLongestWait, store_->file + ".lock", isHeld);
    reason = isHeld ? kHeldByOthers : store_->merge();
  } catch (const std::filesystem::filesystem_error& error) {
    reason = error.code().message();
  }
  if (!reason.empty())
    return "The preferences could not be stored in " + inQuotes(store_->file) + ": " + reason + ".";
  store_->changed.clear();
  return {};
}

void Preferences::catchUp(std::string_view prefix) {
  if (store_->file.empty()) return;
  std::string ignored;
  std::optional<Json> others = stored(store_->file, ignored);
  if (!others) return;
  store_->layOver(*others);
  const std::string group = validUtf8(prefix);
  store_->values.erase(group);
  if (const auto found = others->find(group); found != others->end()) {
    store_->values[group] = std::move(*found);
  }
}

bool Preferences::exists(std::string_view prefix, std::string_view suffix) const {
  const Key key = keyOf(prefix, suffix);
  return store_->overlays.count(key) > 0 || store_->find(key) != nullptr;
}

std::optional<bool> Preferences::boolean(std::string_view prefix, std::string_view suffix) const {
  return store_->get<bool>(prefix, suffix);
}

std::optional<std::int32_t> Preferences::integer(std::string_view prefix, std::string_view suffix) const {
  return store_->get<std::int32_t>(prefix, suffix);
}

std::optional<double> Preferences::real(std::string_view prefix, std::string_view suffix) const {
  return store_->get<double>(prefix, suffix);
}

std::optional<std::string> Preferences::string(std::string_view prefix, std::string_view suffix) const {
  return store_->get<std::string>(prefix, suffix);
}

bool Preferences::put(std::string_view prefix, std::string_view suffix, PreferenceValue value) {
  if (!isFinite(value)) return false;
  const Key key = keyOf(prefix, suffix);
  store_->overlays.erase(key);
  Json json = std::visit([](const auto& content) { return Json(content); }, withValidText(std::move(value)));
  Json& place = store_->values[key.first][key.second];
  // Json compares 1 and 1.0 as equal, but they are of different kinds here.
  if (place.type() == json.type() && place == json) return true;
  place = std::move(json);
  store_->changed.insert(key);
  return true;
}

void Preferences::overlay(std::string_view prefix, std::string_view suffix, PreferenceValue value) {
  store_->overlays[keyOf(prefix, suffix)] = withValidText(std::move(value));
}

std::string Preferences::overlayText(std::string_view assignment) {
  const std::size_t equals = assignment.find('=');
  const std::string_view key = assignment.substr(0, equals);
  const std::size_t slash = key.rfind('/');
  const bool hasPrefix = slash != std::string_view::npos;
  const std::string_view suffix = hasPrefix ? key.substr(slash + 1) : key;
  if (equals == std::string_view::npos || suffix.empty()) {
    return inQuotes(assignment) + " is not of the form PREFIX/SUFFIX=VALUE.";
  }
  store_->overlays[keyOf(hasPrefix ? key.substr(0, slash) : "", suffix)] =
      UntypedText{validUtf8(assignment.substr(equals + 1))};
  return {};
}

}  // namespace host
