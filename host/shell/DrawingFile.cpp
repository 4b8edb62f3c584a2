#include "DrawingFile.h"

#include <iostream>
#include <iterator>
#include <optional>
#include <utility>

#include "AtomicFile.h"
#include "QtTextOutliner.h"

namespace host {
namespace {

std::optional<std::string> readInput(const std::string& file, std::string& reason) {
  if (file != kStandardStream) return readFile(file, &reason);
  std::string bytes{std::istreambuf_iterator<char>(std::cin), {}};
  if (!std::cin.bad()) return bytes;
  reason = "it cannot be read";
  return std::nullopt;
}

std::string placeOf(const SvgError& error) {
  if (!error.position) return {};
  return "line " + std::to_string(error.position->line) + ", column " +
         std::to_string(error.position->column) + ": ";
}

}  // namespace

std::string shownName(const std::string& file) {
  return file == kStandardStream ? "standard input" : file;
}

std::variant<SvgDrawing, std::string> readDrawing(const std::string& file) {
  std::string reason;
  std::optional<std::string> bytes = readInput(file, reason);
  if (!bytes) return reason;
  const QtTextOutliner outliner;
  auto read = readSvg(std::move(*bytes), &outliner);
  if (const SvgError* error = std::get_if<SvgError>(&read)) return placeOf(*error) + error->reason;
  return std::move(std::get<SvgDrawing>(read));
}

std::variant<SvgDrawing, std::string> openDrawing(const std::string& file) {
  auto read = readDrawing(file);
  if (std::string* reason = std::get_if<std::string>(&read)) {
    reason->insert(0, "cannot open " + shownName(file) + ": ");
  }
  return read;
}

std::string saveBytes(const std::string& file, std::string_view bytes) {
  if (file == kStandardStream) {
    std::cout.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush();
    return std::cout ? std::string() : "cannot write to standard output";
  }
  const std::string reason = replaceFile(file, bytes);
  return reason.empty() ? std::string() : "cannot save " + file + ": " + reason;
}

}  // namespace host
