#include "Workspace.h"

#include <algorithm>
#include <filesystem>
#include <limits>
#include <system_error>
#include <utility>

#include "DrawingFile.h"
#include "Host.h"
#include "Session.h"

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr auto kInNoFile = std::numeric_limits<std::uint64_t>::max();  // no state of a document

constexpr char kOpenElsewhere[] = "it is open in another tab";

std::string absoluteName(const std::string& file) {
  std::error_code error;
  const fs::path path = fs::absolute(file, error);
  return error ? file : path.lexically_normal().string();
}

std::string titleOf(const std::string& file) {
  return file == kStandardStream ? shownName(file) : fs::path(file).filename().string();
}

}  // namespace

Workspace::~Workspace() {
  while (!drawings_.empty()) close(*drawings_.back());
}

std::variant<OpenDrawing*, std::string> Workspace::open(const std::string& file) {
  if (OpenDrawing* already = drawingOf(file)) {
    makeCurrent(*already);
    return already;
  }
  auto read = openDrawing(file);
  if (std::string* reason = std::get_if<std::string>(&read)) return std::move(*reason);
  return &add(std::move(std::get<SvgDrawing>(read)), titleOf(file),
              file == kStandardStream ? std::string() : absoluteName(file));
}

std::variant<OpenDrawing*, std::string> Workspace::recover(const std::string& copy, const std::string& title,
                                                           const std::string& file) {
  auto read = readDrawing(copy);
  if (std::string* reason = std::get_if<std::string>(&read)) return std::move(*reason);
  OpenDrawing& recovered = add(std::move(std::get<SvgDrawing>(read)), title, file);
  recovered.savedState = kInNoFile;
  return &recovered;
}

OpenDrawing& Workspace::add(SvgDrawing drawing, const std::string& title, const std::string& file) {
  auto opened = std::make_unique<OpenDrawing>();
  opened->drawing = std::move(drawing);
  opened->shown = &session_.openDocument(opened->drawing.document, title, file);
  opened->savedState = opened->document().stateMark();
  drawings_.push_back(std::move(opened));
  return *drawings_.back();
}

std::string Workspace::save(OpenDrawing& drawing, const std::string& file) {
  const std::string target = absoluteName(file);
  const OpenDrawing* const other = drawingOf(target);
  if (other != nullptr && other != &drawing) return "cannot save " + target + ": " + kOpenElsewhere;
  if (std::string reason = saveBytes(target, writeSvg(drawing.drawing)); !reason.empty()) return reason;
  drawing.shown->file = target;
  drawing.shown->title = titleOf(target);
  drawing.savedState = drawing.document().stateMark();
  return {};
}

std::string Workspace::whyNotOver(const std::string& file) const {
  const OpenDrawing* const open = drawingOf(file);
  if (open == nullptr) return {};
  return open == current() ? "it is the drawing itself, which \"Save\" writes" : kOpenElsewhere;
}

void Workspace::close(const OpenDrawing& drawing) {
  const auto found = std::find_if(drawings_.begin(), drawings_.end(),
                                  [&](const auto& candidate) { return candidate.get() == &drawing; });
  if (found == drawings_.end()) return;
  session_.closeDocument(drawing.document());
  drawings_.erase(found);
}

void Workspace::makeCurrent(const OpenDrawing& drawing) {
  session_.makeCurrent(drawing.document());
}

OpenDrawing* Workspace::current() const {
  const Document* current = host_.currentDocument();
  for (const auto& drawing : drawings_) {
    if (drawing->drawing.document.get() == current) return drawing.get();
  }
  return nullptr;
}

OpenDrawing* Workspace::drawingOf(const std::string& file) const {
  for (const auto& drawing : drawings_) {
    std::error_code ignored;
    const std::string& own = drawing->shown->file;
    if (!own.empty() && file != kStandardStream && fs::equivalent(own, file, ignored)) return drawing.get();
  }
  return nullptr;
}

}  // namespace host
