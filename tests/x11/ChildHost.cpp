#include "ChildHost.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <thread>

namespace {

constexpr std::chrono::seconds kPatience(120);

[[noreturn]] void becomeHost(const std::string& home, const std::vector<std::string>& arguments) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
    setenv(name, home.c_str(), 1);
  }
  std::string program = std::string(CORVANE_BIN) + "/corvane-host";
  std::vector<std::string> words = arguments;
  std::vector<char*> argv{program.data()};
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  execv(program.c_str(), argv.data());
  _exit(127);
}

}  // namespace

ChildHost::ChildHost(const std::string& home, const std::vector<std::string>& arguments) : process_(fork()) {
  if (process_ == 0) becomeHost(home, arguments);
}

InputDevices::Place ChildHost::waitForWindow(InputDevices& devices, bool isDialog) {
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (std::chrono::steady_clock::now() < end) {
    if (const auto place = devices.focusWindowOf(process_, isDialog)) return *place;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  throw std::runtime_error(isDialog ? "there is no dialog" : "there is no window");
}

bool ChildHost::hasOpen(const std::string& folder) const {
  namespace fs = std::filesystem;
  std::error_code gone;
  fs::directory_iterator file("/proc/" + std::to_string(process_) + "/fd", gone);
  for (; !gone && file != fs::directory_iterator(); file.increment(gone)) {
    if (fs::read_symlink(file->path(), gone).string().rfind(folder + "/", 0) == 0) return true;
  }
  return false;
}

bool ChildHost::killIf(const std::function<bool()>& isSo) {
  ::kill(process_, SIGSTOP);
  int status = 0;
  waitpid(process_, &status, WUNTRACED);
  if (!WIFSTOPPED(status)) throw std::runtime_error("the program ended by itself");
  const bool ends = isSo();
  if (ends)
    kill();
  else
    ::kill(process_, SIGCONT);
  return ends;
}

void ChildHost::kill() {
  if (process_ <= 0) return;
  ::kill(process_, SIGKILL);
  waitForEnd();
}

int ChildHost::waitForEnd() {
  int status = 0;
  waitpid(process_, &status, 0);
  process_ = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
