// An X server without a screen, for the program that makes it.
#pragma once

#include <sys/types.h>

#include <string>

class VirtualServer {
 public:
  // Comes back when the server takes connections; throws std::runtime_error if it cannot be had.
  VirtualServer();
  VirtualServer(const VirtualServer&) = delete;
  VirtualServer& operator=(const VirtualServer&) = delete;
  // The server goes with this object, or with the process, whichever ends first.
  ~VirtualServer();

  const std::string& display() const { return display_; }  // such as ":7"

 private:
  pid_t process_ = -1;
  std::string display_;
};
