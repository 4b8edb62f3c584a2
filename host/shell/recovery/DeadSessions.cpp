#include "DeadSessions.h"

#include <algorithm>
#include <optional>
#include <system_error>
#include <utility>

#include "AtomicFile.h"
#include "RecoveryNames.h"

namespace host {
namespace {

namespace fs = std::filesystem;

bool beginsWith(const std::string& text, const std::string& beginning) {
  return text.compare(0, beginning.size(), beginning) == 0;
}

std::vector<fs::path> sessionFolders(const fs::path& root) {
  std::vector<fs::path> folders;
  std::error_code error;
  for (fs::directory_iterator entry(root, error), end; !error && entry != end; entry.increment(error)) {
    if (beginsWith(entry->path().filename().string(), kSessionPrefix)) folders.push_back(entry->path());
  }
  return folders;
}

std::vector<LostDrawing> drawingsIn(const fs::path& folder) {
  std::vector<LostDrawing> drawings;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    fs::path file = entry->path();
    if (file.extension() != kDrawingEnd) continue;
    const std::string copy = file.string();
    const auto note = readFile(file.replace_extension(kNoteEnd).string());
    drawings.push_back({noteFromJson(note.value_or(std::string())), copy});
    if (drawings.back().note.title.empty()) drawings.back().note.title = "drawing" + std::string(kDrawingEnd);
  }
  return drawings;
}

void moveInto(const fs::path& folder, std::string& file) {
  std::error_code error;
  fs::create_directories(folder, error);
  const fs::path target = folder / fs::path(file).filename();
  fs::rename(file, target, error);
  if (!error) file = target.string();
}

}  // namespace

DeadSessions::DeadSessions(const fs::path& root) {
  std::error_code ignored;
  if (!fs::is_directory(root, ignored)) return;
  const auto looking = FileLock::wait((root / kLockName).string());
  if (!looking) return;
  for (const fs::path& folder : sessionFolders(root)) {
    auto lock = FileLock::attempt((folder / kLockName).string());
    if (!lock) continue;
    const std::vector<LostDrawing> found = drawingsIn(folder);
    if (found.empty()) {
      fs::remove_all(folder, ignored);
      continue;
    }
    drawings_.insert(drawings_.end(), found.begin(), found.end());
    sessions_.push_back({folder, *std::move(lock)});
  }
  std::stable_sort(drawings_.begin(), drawings_.end(),
                   [](const LostDrawing& a, const LostDrawing& b) { return a.note.time < b.note.time; });
}

std::vector<std::string> DeadSessions::clear(const std::vector<std::string>& damaged) {
  std::vector<std::string> kept = damaged;
  for (std::string& file : kept) {
    const fs::path folder = fs::path(file).parent_path();
    const std::string name = folder.filename().string().substr(std::string(kSessionPrefix).size());
    moveInto(folder.parent_path() / (kDamagedPrefix + name), file);
  }
  std::error_code ignored;
  for (const Session& session : sessions_) fs::remove_all(session.folder, ignored);
  sessions_.clear();
  drawings_.clear();
  return kept;
}

}  // namespace host
