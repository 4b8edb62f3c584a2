#include "RecoveryFolder.h"

#include <cstdlib>
#include <system_error>

#include "AtomicFile.h"
#include "RecoveryNames.h"

namespace host {
namespace {

namespace fs = std::filesystem;

std::string sentence(const fs::path& place, const std::string& reason) {
  return "unsaved drawings cannot be kept in " + place.string() + ": " + reason;
}

}  // namespace

RecoveryFolder::~RecoveryFolder() {
  std::error_code ignored;
  if (!folder_.empty()) fs::remove_all(folder_, ignored);
}

std::string RecoveryFolder::make() {
  std::error_code error;
  if (fs::create_directories(root_, error)) fs::permissions(root_, fs::perms::owner_all, error);
  if (error) return sentence(root_, error.message());
  const auto beginning = FileLock::wait((root_ / kLockName).string());
  std::string name = (root_ / (std::string(kSessionPrefix) + "XXXXXX")).string();
  if (!beginning || ::mkdtemp(name.data()) == nullptr) return sentence(root_, "it cannot be written to");
  folder_ = name;
  lock_ = FileLock::attempt((folder_ / kLockName).string());
  return lock_ ? std::string() : sentence(folder_, "it cannot be locked");
}

std::string RecoveryFolder::fileOf(std::uint32_t number, const char* end) const {
  return (folder_ / (std::to_string(number) + end)).string();
}

// A note without its drawing tells of no work, so it comes first.
std::string RecoveryFolder::write(std::uint32_t number, const RecoveryNote& note, std::string_view svg) {
  if (!lock_) {
    if (std::string reason = make(); !reason.empty()) return reason;
  }
  std::string reason = replaceFile(fileOf(number, kNoteEnd), noteAsJson(note));
  if (reason.empty()) reason = replaceFile(fileOf(number, kDrawingEnd), svg);
  return reason.empty() ? reason : sentence(folder_, reason);
}

void RecoveryFolder::remove(std::uint32_t number) {
  std::error_code ignored;
  for (const char* end : {kDrawingEnd, kNoteEnd}) fs::remove(fileOf(number, end), ignored);
}

}  // namespace host
