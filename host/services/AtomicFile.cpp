#include "AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "Descriptor.h"
#include "TemporaryFile.h"

namespace host {
namespace {

std::string reasonOf(int error) {
  switch (error) {
    case ENOENT:
      return "there is no such file or folder";
    case ENOTDIR:
      return "a part of its path is no folder";
    case EACCES:
    case EPERM:
      return "permission denied";
    case EISDIR:
      return "it is a folder";
    case ENOSPC:
    case EDQUOT:
      return "the disk is full";
    case EFBIG:
      return "the file is too large";
    case EROFS:
      return "the disk can only be read";
    case ENAMETOOLONG:
      return "its name is too long";
    case ELOOP:
      return "its links lead in a circle";
    default:
      break;
  }
  const char* const words = ::strerrordesc_np(error);  // in English whatever the locale
  return words == nullptr ? "error " + std::to_string(error) : words;
}

bool writeAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

// Some file systems have no way to do that, which is no fault.
bool bringToDisk(int descriptor) {
  return ::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP;
}

// Where a chain of links leads, whether anything is there or not. The file itself if the chain has no end.
std::filesystem::path targetOf(const std::string& file) {
  constexpr int kMostLinks = 40;
  std::filesystem::path target = file;
  std::error_code error;
  for (int links = 0; links < kMostLinks && std::filesystem::is_symlink(target, error); ++links) {
    target = target.parent_path() / std::filesystem::read_symlink(target, error);
  }
  return target;
}

mode_t modeOfNewFiles() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

std::string writeInPlace(const std::string& file, std::string_view bytes) {
  Descriptor descriptor(::open(file.c_str(), O_WRONLY | O_CLOEXEC));
  if (!descriptor.good() || !writeAll(descriptor.number(), bytes) || !descriptor.close())
    return reasonOf(errno);
  return {};
}

// 0, or the error.
int putInPlace(const std::filesystem::path& target, TemporaryFile::Kind kind, std::string_view bytes,
               mode_t mode) {
  TemporaryFile temporary(target, kind);
  const bool isPut = temporary.good() && writeAll(temporary.number(), bytes) &&
                     ::fchmod(temporary.number(), mode) == 0 && bringToDisk(temporary.number()) &&
                     temporary.putInPlace();
  return isPut ? 0 : errno;
}

// The folder's entry must reach the disk as well; a file system that can't do that does no harm.
void syncFolder(const std::filesystem::path& folder) {
  const Descriptor descriptor(
      ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (descriptor.good()) ::fsync(descriptor.number());
}

}  // namespace

std::optional<std::string> readFile(const std::string& file, std::string* reason, std::size_t limit) {
  const auto fail = [reason](int error) {
    if (reason != nullptr) *reason = error == ENOENT ? "there is no such file" : reasonOf(error);
    return std::nullopt;
  };
  const Descriptor descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
  struct stat status {};
  if (!descriptor.good() || ::fstat(descriptor.number(), &status) != 0) return fail(errno);
  if (S_ISDIR(status.st_mode)) return fail(EISDIR);
  if (static_cast<std::size_t>(status.st_size) > limit) return fail(EFBIG);
  // What is no ordinary file has no size beforehand; what grows meanwhile is read to its end.
  std::string bytes;
  std::size_t filled = 0;
  for (bytes.resize(static_cast<std::size_t>(status.st_size) + 1);;) {
    const ssize_t count = ::read(descriptor.number(), bytes.data() + filled, bytes.size() - filled);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return fail(errno);
    if (count == 0) break;
    filled += static_cast<std::size_t>(count);
    if (filled > limit) return fail(EFBIG);
    if (filled == bytes.size()) bytes.resize(bytes.size() + bytes.size() / 2 + 65536);
  }
  bytes.resize(filled);
  return bytes;
}

std::string replaceFile(const std::string& file, std::string_view bytes) {
  const std::filesystem::path target = targetOf(file);
  struct stat status {};
  const bool exists = ::stat(target.c_str(), &status) == 0;
  if (!exists && errno == ELOOP) return reasonOf(errno);
  if (exists && S_ISDIR(status.st_mode)) return reasonOf(EISDIR);
  if (exists && !S_ISREG(status.st_mode)) return writeInPlace(target.string(), bytes);
  // Where the old file may not be written, putting another in its place would be a trick on its owner.
  if (exists && ::access(target.c_str(), W_OK) != 0) return reasonOf(errno);

  const mode_t mode = exists ? status.st_mode & 07777 : modeOfNewFiles();
  int error = putInPlace(target, TemporaryFile::Kind::Nameless, bytes, mode);
  if (error != 0) error = putInPlace(target, TemporaryFile::Kind::Named, bytes, mode);
  if (error != 0) return error == ENOENT ? "its folder is not there" : reasonOf(error);
  syncFolder(target.parent_path());
  return {};
}

}  // namespace host
