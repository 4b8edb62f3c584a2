#include "TemporaryFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace host {
namespace {

// Leaves room for what makes the name another one; file systems allow 255 bytes.
constexpr std::size_t kLongestName = 230;

std::string nameBeside(const std::filesystem::path& target, const std::string& ending) {
  return (target.parent_path() / target.filename().string().substr(0, kLongestName)).string() + ending;
}

Descriptor openNameless(const std::filesystem::path& target) {
  const std::string folder = target.parent_path().empty() ? "." : target.parent_path().string();
  return Descriptor(::open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600));
}

bool link(const Descriptor& descriptor, const std::string& name) {
  const std::string opened = "/proc/self/fd/" + std::to_string(descriptor.number());
  return ::linkat(AT_FDCWD, opened.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

}  // namespace

TemporaryFile::TemporaryFile(const std::filesystem::path& target, Kind kind)
    : target_(target), descriptor_(kind == Kind::Nameless ? openNameless(target) : Descriptor(-1)) {
  if (kind == Kind::Nameless) return;
  std::string name = nameBeside(target, ".XXXXXX");
  descriptor_ = Descriptor(::mkostemp(name.data(), O_CLOEXEC));
  if (descriptor_.good()) name_ = name;
}

TemporaryFile::~TemporaryFile() {
  if (!name_.empty()) ::unlink(name_.c_str());
}

// Nothing can take the place of another file without a name of its own; it has it for one moment.
bool TemporaryFile::giveName() {
  const std::string ending = "." + std::to_string(::getpid()) + "-";
  for (int attempt = 1;; ++attempt) {
    const std::string name = nameBeside(target_, ending + std::to_string(attempt));
    if (link(descriptor_, name)) {
      name_ = name;
      return true;
    }
    if (errno != EEXIST) return false;
  }
}

bool TemporaryFile::putInPlace() {
  if (name_.empty() && !giveName()) return false;
  if (!descriptor_.close() || ::rename(name_.c_str(), target_.c_str()) != 0) return false;
  name_.clear();
  return true;
}

}  // namespace host
