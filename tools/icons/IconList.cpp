#include "IconList.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>

#include "Fault.h"
#include "IconVersion.h"

namespace icons {
namespace {

constexpr int kLargestId = 32767;
constexpr int kLargestSize = 256;          // pixels
constexpr std::size_t kLongestName = 100;  // bytes; with what is added it stays within a record of the table

std::vector<std::string_view> wordsOf(std::string_view line) {
  constexpr std::string_view kBlanks = " \t\r";
  std::vector<std::string_view> words;
  for (std::size_t begin = line.find_first_not_of(kBlanks); begin != std::string_view::npos;) {
    const std::size_t end = std::min(line.find_first_of(kBlanks, begin), line.size());
    words.push_back(line.substr(begin, end - begin));
    begin = line.find_first_not_of(kBlanks, end);
  }
  return words;
}

std::string quoted(std::string_view text) {
  return '"' + std::string(text) + '"';
}

int parseNumber(std::string_view word, const std::string& what, int largest) {
  int value = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
  if (error == std::errc() && end == word.data() + word.size() && value >= 1 && value <= largest)
    return value;
  throw Fault(what + " " + quoted(word) + " is not a number from 1 to " + std::to_string(largest));
}

std::string parseSource(std::string_view word) {
  constexpr std::string_view kExtension = ".svg";
  constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789-";
  const std::size_t length = word.size() - std::min(word.size(), kExtension.size());
  const std::string_view name = word.substr(0, length);
  if (!name.empty() && length <= kLongestName && word.substr(length) == kExtension &&
      name.find_first_not_of(kLetters) == std::string_view::npos) {
    return std::string(name);
  }
  throw Fault("the source " + quoted(word) +
              " is not a file name of lower-case letters, digits and hyphens with the extension .svg");
}

bool parseThemed(std::string_view word, int id) {
  if (word != "themed" && word != "plain") throw Fault(quoted(word) + " is neither themed nor plain");
  if (word == "themed" && !isThemedId(id)) {
    throw Fault("the icon " + std::to_string(id) +
                " cannot be themed: only ids from 16000 to 16999 and from 24000 to 24999 have versions");
  }
  return word == "themed";
}

Icon parseIcon(const std::vector<std::string_view>& words, int line) {
  if (words.size() != 4) {
    throw Fault("expected an id, a source, a size and \"themed\" or \"plain\", found " +
                std::to_string(words.size()) + (words.size() == 1 ? " word" : " words"));
  }
  const int id = parseNumber(words[0], "the id", kLargestId);
  return {id, parseSource(words[1]), parseNumber(words[2], "the size", kLargestSize),
          parseThemed(words[3], id), line};
}

// What the icons up to now lay claim to, and on which line of the list they stand.
class Claims {
 public:
  void add(const Icon& icon) {
    for (const IconVersion& version : versionsOf(icon)) {
      addId(version.id, icon.line);
      addId(version.id + kDoubleOffset, icon.line);
      const auto [at, isNew] = files_.emplace(version.fileName, icon.line);
      if (!isNew) refuse("the file " + version.fileName, at->second);
    }
  }

 private:
  void addId(int id, int line) {
    const auto [at, isNew] = ids_.emplace(id, line);
    if (!isNew) refuse("the resource id " + std::to_string(id), at->second);
  }

  [[noreturn]] static void refuse(const std::string& what, int line) {
    throw Fault(what + " is taken by the icon of line " + std::to_string(line));
  }

  std::map<int, int> ids_;
  std::map<std::string, int> files_;
};

std::optional<Icon> parseLine(std::string_view text, int line) {
  const std::vector<std::string_view> words = wordsOf(text);
  if (words.empty() || words.front().front() == '#') return std::nullopt;
  return parseIcon(words, line);
}

}  // namespace

std::vector<Icon> parseIconList(std::string_view text, const std::string& file) {
  std::vector<Icon> icons;
  Claims claims;
  for (int line = 1; !text.empty(); ++line) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    try {
      if (std::optional<Icon> icon = parseLine(text.substr(0, end), line)) {
        claims.add(*icon);
        icons.push_back(std::move(*icon));
      }
    } catch (const Fault& fault) {
      throw Fault(file + ":" + std::to_string(line) + ": " + fault.what());
    }
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return icons;
}

}  // namespace icons
