#include "IDToFile.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <memory>

#include "ResourceID.h"
#include "ResourceLine.h"

namespace qRVADM {
namespace {

constexpr std::string_view kLineEnds = "\r\n";

std::string RelativePath(std::string_view name) {
  const std::size_t stop = name.rfind('.');
  if (stop == std::string_view::npos) return std::string(name);
  return std::string(name.substr(stop + 1)).append("/").append(name);
}

std::string DoubleResolutionPath(std::string path) {
  return path.insert(std::min(path.rfind('.'), path.size()), "@2x");
}

// Absolute, or above its starting point at any moment.
bool LeadsOut(std::string_view name, std::string_view path) {
  int depth = name.front() == '/' ? -1 : 0;
  while (depth >= 0 && !path.empty()) {
    const std::size_t end = std::min(path.find('/'), path.size());
    const std::string_view step = path.substr(0, end);
    if (step == "..") {
      --depth;
    } else if (!step.empty() && step != ".") {
      ++depth;
    }
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return depth < 0;
}

std::string ReadWhole(const std::string& path) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "r"), &std::fclose);
  if (file == nullptr) return {};
  std::string text;
  char chunk[16384];
  while (const std::size_t got = std::fread(chunk, 1, sizeof chunk, file.get())) text.append(chunk, got);
  return text;
}

}  // namespace

// A line ends at the next CR, and only where no CR is left at the next LF.
IDToFile::IDToFile(std::string_view text) {
  const std::size_t lastCR = text.rfind('\r');
  std::size_t start = 0;
  while (start < text.size()) {
    const bool untilCR = lastCR != std::string_view::npos && start <= lastCR;
    const std::size_t end = std::min(text.find(untilCR ? '\r' : '\n', start), text.size());
    Add(text.substr(start, end - start));
    start = std::min(text.find_first_not_of(kLineEnds, end), text.size());
  }
}

void IDToFile::Add(std::string_view text) {
  const auto line = ParseResourceLine(text);
  if (!line || line->type == "xml") return;
  const std::string path = RelativePath(line->name);
  if (LeadsOut(line->name, path)) return;
  files[line->id] = path;
  if (line->id <= std::numeric_limits<int>::max() - kDoubleResolution) {
    files[line->id + kDoubleResolution] = DoubleResolutionPath(path);
  }
}

const std::string* IDToFile::Find(int id) const {
  const auto found = files.find(id);
  return found == files.end() ? nullptr : &found->second;
}

const IDToFile& TheIDToFile(const std::string& bundle) {
  static const IDToFile table(ReadWhole(bundle + "/Contents/Resources/txt/IDToFile.txt"));
  return table;
}

}  // namespace qRVADM
