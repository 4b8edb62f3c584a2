// The real program, run with arguments, in a folder of its own.
#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "World.h"

namespace host {

// A folder that goes with the object.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "corvane-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no scratch folder");
    path_ = pattern;
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  std::string file(const std::string& name) const { return (path_ / name).string(); }
  std::string write(const std::string& name, const std::string& bytes) const {
    std::ofstream(path_ / name, std::ios::binary) << bytes;
    return file(name);
  }
  bool has(const std::string& name) const { return std::filesystem::exists(path_ / name); }
  std::size_t count() const {
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(path_)) files += entry.exists() ? 1U : 0U;
    return files;
  }

 private:
  std::filesystem::path path_;
};

struct ProcessResult {
  int code;
  std::string out;
  std::string err;
};

inline std::string quoted(const std::string& text) {
  std::string result = "'";
  for (const char c : text) result += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return result + "'";
}

// `before` is put in front of the command, such as "ulimit -f 8;". `input` is its standard input.
inline ProcessResult runHost(const std::vector<std::string>& arguments, const std::string& input = {},
                             const std::string& before = {}) {
  const ScratchFolder scratch;
  std::string command = before + " XDG_CONFIG_HOME=" + quoted(scratch.file("config")) + " " +
                        quoted(std::string(CORVANE_BIN) + "/corvane-host");
  for (const std::string& argument : arguments) command += " " + quoted(argument);
  command += " <" + quoted(scratch.write("in", input)) + " >" + quoted(scratch.file("out")) + " 2>" +
             quoted(scratch.file("err"));
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, readText(scratch.file("out")),
          readText(scratch.file("err"))};
}

}  // namespace host
