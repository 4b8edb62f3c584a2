// The real program, run with arguments, in a folder of its own.
#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "ScratchFolder.h"
#include "World.h"

namespace host {

struct ProcessResult {
  int code;
  std::string out;
  std::string err;
  bool hasStored;  // anything in the user's folders
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
  std::string command = before + " XDG_CONFIG_HOME=" + quoted(scratch.file("config")) +
                        " XDG_STATE_HOME=" + quoted(scratch.file("state")) + " " +
                        quoted(std::string(CORVANE_BIN) + "/corvane-host");
  for (const std::string& argument : arguments) command += " " + quoted(argument);
  command += " <" + quoted(scratch.write("in", input)) + " >" + quoted(scratch.file("out")) + " 2>" +
             quoted(scratch.file("err"));
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, readText(scratch.file("out")),
          readText(scratch.file("err")), scratch.has("config") || scratch.has("state")};
}

}  // namespace host
