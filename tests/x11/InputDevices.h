// Mouse and keyboard of an X server: what they do reaches whatever program has the pointer or the focus.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

class InputDevices {
 public:
  enum Button { kLeft = 1, kMiddle, kRight, kWheelUp, kWheelDown };

  // Throws std::runtime_error if the server does not answer. To be used by one thread at a time.
  explicit InputDevices(const std::string& display);
  ~InputDevices();

  // Pixels of the screen, y down.
  void moveTo(int x, int y);
  void press(Button button);
  void release(Button button);

  // Keys by their X names, modifiers first: "Ctrl+Shift+z", "Return", "Alt+Down".
  void pressKeys(std::string_view keys);
  void holdKey(std::string_view name, bool down);
  void type(std::string_view text);  // ASCII

  // Sends the window a message of the type `name`, behind everything done so far.
  void sendMark(unsigned long window, const char* name);
  struct Place {
    int x, y, width, height;
  };
  // Gives the keyboard to the topmost window of another process, or to its topmost dialog, and says where it
  // is; nothing if it shows none yet.
  std::optional<Place> focusWindowOf(int process, bool isDialog);

 private:
  class Server;
  std::unique_ptr<Server> server_;
};
