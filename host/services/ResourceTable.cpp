#include "ResourceTable.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <system_error>

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kBlanks = " \t\v\f";
constexpr std::string_view kLineEnds = "\r\n";
constexpr std::size_t kLongestType = 9;
constexpr std::size_t kLongestName = 127;
constexpr int kLight = 1000;
constexpr int kDark = 2000;

bool hasVersions(int id) {
  return (id >= 16000 && id <= 16999) || (id >= 24000 && id <= 24999);
}

std::string readWhole(const fs::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(stream), {});
}

void skipBlanks(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
}

// Takes an id with the full stop behind it.
std::optional<int> takeId(std::string_view& text) {
  skipBlanks(text);
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  int id = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  if (error != std::errc() || text.empty() || text.front() != '.') return std::nullopt;
  text.remove_prefix(1);
  return id;
}

std::string_view takeWord(std::string_view& text, std::size_t longest) {
  skipBlanks(text);
  const std::string_view word = text.substr(0, std::min(text.find_first_of(kBlanks), longest));
  text.remove_prefix(word.size());
  return word;
}

fs::path inItsFolder(std::string_view name) {
  const std::size_t stop = name.rfind('.');
  return stop == std::string_view::npos ? fs::path(name) : fs::path(name.substr(stop + 1)) / name;
}

// Absolute names replace a folder put before them, so they are out as well.
bool leadsOut(const fs::path& path) {
  return path.is_absolute() || std::find(path.begin(), path.end(), "..") != path.end();
}

std::string doubledName(std::string path) {
  return path.insert(std::min(path.rfind('.'), path.size()), "@2x");
}

// Through links too.
bool liesIn(const fs::path& folder, const fs::path& file) {
  std::error_code error;
  const fs::path outer = fs::canonical(folder, error);
  if (error) return false;
  const fs::path inner = fs::canonical(file, error);
  if (error) return false;
  return std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first == outer.end();
}

}  // namespace

ResourceTable::ResourceTable(const fs::path& bundle) : folder_(bundle / "Contents" / "Resources") {
  const std::string text = readWhole(folder_ / "txt" / "IDToFile.txt");
  for (std::string_view rest = text; !rest.empty();) {
    const std::string_view line = rest.substr(0, rest.find_first_of(kLineEnds));
    add(line.substr(0, line.find('\0')));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
  }
}

void ResourceTable::add(std::string_view line) {
  const std::optional<int> id = takeId(line);
  if (!id) return;
  const std::string_view type = takeWord(line, kLongestType);
  const std::string_view name = takeWord(line, kLongestName);
  if (name.empty() || type == "xml") return;
  const fs::path path = inItsFolder(name);
  if (!leadsOut(path)) files_[*id] = path.string();
}

std::optional<std::string> ResourceTable::picture(int id, Version version) const {
  if (hasVersions(id)) {
    if (auto found = file(id + (version.dark ? kDark : kLight), version.doubled)) return found;
  }
  return file(id, version.doubled);
}

std::optional<std::string> ResourceTable::file(int id, bool doubled) const {
  const auto entry = files_.find(id);
  if (entry == files_.end()) return std::nullopt;
  if (doubled) {
    if (auto found = existing(doubledName(entry->second))) return found;
  }
  return existing(entry->second);
}

std::optional<std::string> ResourceTable::existing(const std::string& relative) const {
  const fs::path path = folder_ / relative;
  std::error_code error;
  if (!fs::is_regular_file(path, error) || !liesIn(folder_, path)) return std::nullopt;
  return fs::absolute(path, error).string();
}

}  // namespace host
