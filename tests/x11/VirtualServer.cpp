#include "VirtualServer.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>

namespace {

[[noreturn]] void becomeServer(int readyPipe, pid_t parent) {
  prctl(PR_SET_PDEATHSIG, SIGTERM);  // it removes its lock and its socket then
  if (getppid() != parent) _exit(1);
  const int silence = open("/dev/null", O_WRONLY | O_CLOEXEC);
  dup2(silence, STDERR_FILENO);
  const std::string ready = std::to_string(readyPipe);
  execlp("Xvfb", "Xvfb", "-displayfd", ready.c_str(), "-screen", "0", "1600x1200x24", "-nolisten", "tcp",
         "-noreset", static_cast<char*>(nullptr));
  _exit(1);
}

// Up to the end of the line, or as much as there is.
std::string readLine(int file) {
  std::string line;
  char c = 0;
  while (read(file, &c, 1) == 1 && c != '\n') line += c;
  return line;
}

}  // namespace

VirtualServer::VirtualServer() {
  int ends[2];
  if (pipe(ends) != 0) throw std::runtime_error("no pipe for the X server");
  const pid_t parent = getpid();
  process_ = fork();
  if (process_ == 0) {
    close(ends[0]);
    becomeServer(ends[1], parent);
  }
  close(ends[1]);
  const std::string number = readLine(ends[0]);
  close(ends[0]);
  if (number.empty()) throw std::runtime_error("Xvfb did not start");
  display_ = ":" + number;
}

VirtualServer::~VirtualServer() {
  kill(process_, SIGTERM);
  waitpid(process_, nullptr, 0);
}
