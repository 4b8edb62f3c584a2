#include "ReplaceFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

namespace Vandrell::Corvane {
namespace {

namespace fs = std::filesystem;

// A file beside `target`, gone with the object unless it took the target's place.
class Replacement {
 public:
  explicit Replacement(std::string target)
      : targetPath(std::move(target)),
        ownPath(targetPath + ".XXXXXX"),
        descriptor(::mkostemp(ownPath.data(), O_CLOEXEC)) {}
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement() {
    if (descriptor < 0) return;
    Close();
    if (!placed) ::unlink(ownPath.c_str());
  }

  bool Write(std::string_view bytes) const {
    while (descriptor >= 0 && !bytes.empty()) {
      const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
      if (written < 0 && errno != EINTR) return false;
      if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return descriptor >= 0;
  }
  bool Place(mode_t mode) {
    placed = ::fchmod(descriptor, mode) == 0 && ReachesDisk() && Close() &&
             ::rename(ownPath.c_str(), targetPath.c_str()) == 0;
    return placed;
  }

 private:
  // Some file systems have no way to do that, which is no fault.
  bool ReachesDisk() const { return ::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP; }
  bool Close() { return closed || (closed = true, ::close(descriptor) == 0); }

  const std::string targetPath;
  std::string ownPath;
  const int descriptor;
  bool closed = false;
  bool placed = false;
};

// Where a chain of links ends, whether anything is there or not. Nullopt if it has no end.
std::optional<fs::path> EndOfLinks(fs::path path) {
  constexpr int kMostLinks = 40;
  std::error_code error;
  for (int links = 0; links < kMostLinks; ++links) {
    if (!fs::is_symlink(path, error)) return path;
    path = path.parent_path() / fs::read_symlink(path, error);
  }
  return std::nullopt;
}

mode_t ModeOfNewFiles() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666U & ~mask;
}

// Permissions of the file or, where there is none, those of a new one. Nullopt if it cannot be replaced.
std::optional<mode_t> ModeFor(const fs::path& target) {
  struct stat status {};
  if (::stat(target.c_str(), &status) != 0)
    return errno == ENOENT ? std::optional(ModeOfNewFiles()) : std::nullopt;
  if (!S_ISREG(status.st_mode) || ::access(target.c_str(), W_OK) != 0) return std::nullopt;
  return status.st_mode & 07777U;
}

}  // namespace

bool ReplaceFile(const std::string& path, std::string_view bytes) {
  const std::optional<fs::path> target = EndOfLinks(path);
  if (!target) return false;
  const std::optional<mode_t> mode = ModeFor(*target);
  if (!mode) return false;
  Replacement replacement(target->string());
  return replacement.Write(bytes) && replacement.Place(*mode);
}

}  // namespace Vandrell::Corvane
