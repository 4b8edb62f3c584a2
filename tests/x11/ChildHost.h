// The real program as another process on the same screen.
#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

#include "InputDevices.h"

class ChildHost {
 public:
  // `home` takes all that the program keeps for its user.
  ChildHost(const std::string& home, const std::vector<std::string>& arguments);
  ChildHost(const ChildHost&) = delete;
  ChildHost& operator=(const ChildHost&) = delete;
  ~ChildHost() { kill(); }

  // Waits for the main window, or for a dialog over it, and gives it the keyboard. Throws std::runtime_error
  // if none comes.
  InputDevices::Place waitForWindow(InputDevices& devices, bool isDialog);
  bool focusWindow(InputDevices& devices, bool isDialog) {  // false: there is none
    return devices.focusWindowOf(process_, isDialog).has_value();
  }
  bool hasOpen(const std::string& folder) const;  // some file in it, with or without a name
  // Asks while the program stands still, and kills it if the answer is yes; tells whether it did. Throws
  // std::runtime_error if the program has ended by itself.
  bool killIf(const std::function<bool()>& isSo);
  void kill();       // without a chance to tidy up
  int waitForEnd();  // the exit code; -1 after a signal

 private:
  pid_t process_;
};
