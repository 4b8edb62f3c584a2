#include "InputDevices.h"

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

#include <array>
#include <stdexcept>
#include <vector>

namespace {

struct Freed {
  void operator()(void* memory) const { XFree(memory); }
};

KeySym symOf(std::string_view name) {
  const std::array<std::pair<std::string_view, const char*>, 3> modifiers = {
      {{"Ctrl", "Control_L"}, {"Shift", "Shift_L"}, {"Alt", "Alt_L"}}};
  for (const auto& [shortName, keyName] : modifiers) {
    if (name == shortName) return XStringToKeysym(keyName);
  }
  const KeySym sym = XStringToKeysym(std::string(name).c_str());
  if (sym == NoSymbol) throw std::runtime_error("there is no key " + std::string(name));
  return sym;
}

std::vector<std::string_view> parted(std::string_view keys) {
  std::vector<std::string_view> names;
  for (std::size_t plus = 0; (plus = keys.find('+')) != std::string_view::npos;
       keys.remove_prefix(plus + 1)) {
    names.push_back(keys.substr(0, plus));
  }
  names.push_back(keys);
  return names;
}

}  // namespace

class InputDevices::Server {
 public:
  explicit Server(const std::string& name) : display(XOpenDisplay(name.c_str())) {
    if (display == nullptr) throw std::runtime_error("the X server " + name + " does not answer");
  }
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;
  ~Server() { XCloseDisplay(display); }

  void key(KeySym sym, bool down) {
    XTestFakeKeyEvent(display, XKeysymToKeycode(display, sym), down ? True : False, CurrentTime);
    XSync(display, False);
  }
  void character(char c) {
    const auto sym = static_cast<KeySym>(static_cast<unsigned char>(c));
    const bool shifted = XkbKeycodeToKeysym(display, XKeysymToKeycode(display, sym), 0, 0) != sym;
    if (shifted) key(XK_Shift_L, true);
    key(sym, true);
    key(sym, false);
    if (shifted) key(XK_Shift_L, false);
  }
  long processOf(Window window) const {
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* bytes = nullptr;
    XGetWindowProperty(display, window, XInternAtom(display, "_NET_WM_PID", False), 0, 1, False, XA_CARDINAL,
                       &type, &format, &count, &rest, &bytes);
    const std::unique_ptr<unsigned char, Freed> owned(bytes);
    return count == 1 ? *reinterpret_cast<long*>(bytes) : 0;
  }

  Display* const display;
};

InputDevices::InputDevices(const std::string& display) : server_(std::make_unique<Server>(display)) {}
InputDevices::~InputDevices() = default;

void InputDevices::moveTo(int x, int y) {
  XTestFakeMotionEvent(server_->display, 0, x, y, CurrentTime);
  XSync(server_->display, False);
}

void InputDevices::press(Button button) {
  XTestFakeButtonEvent(server_->display, static_cast<unsigned>(button), True, CurrentTime);
  XSync(server_->display, False);
}

void InputDevices::release(Button button) {
  XTestFakeButtonEvent(server_->display, static_cast<unsigned>(button), False, CurrentTime);
  XSync(server_->display, False);
}

void InputDevices::holdKey(std::string_view name, bool down) {
  server_->key(symOf(name), down);
}

void InputDevices::pressKeys(std::string_view keys) {
  const std::vector<std::string_view> names = parted(keys);
  for (const std::string_view name : names) holdKey(name, true);
  for (auto name = names.rbegin(); name != names.rend(); ++name) holdKey(*name, false);
}

void InputDevices::type(std::string_view text) {
  for (const char c : text) server_->character(c);
}

void InputDevices::sendMark(unsigned long window, const char* name) {
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = XInternAtom(server_->display, name, False);
  event.xclient.format = 32;
  XSendEvent(server_->display, window, False, NoEventMask, &event);
  XSync(server_->display, False);
}

std::optional<InputDevices::Place> InputDevices::focusWindowOf(int process, bool isDialog) {
  Window root = 0;
  Window parent = 0;
  Window* windows = nullptr;
  unsigned count = 0;
  XQueryTree(server_->display, DefaultRootWindow(server_->display), &root, &parent, &windows, &count);
  const std::unique_ptr<Window, Freed> owned(windows);
  for (unsigned i = count; i-- > 0;) {  // from the top
    XWindowAttributes shown{};
    if (XGetWindowAttributes(server_->display, windows[i], &shown) == 0) continue;
    if (shown.map_state != IsViewable || server_->processOf(windows[i]) != process) continue;
    Window owner = 0;
    if ((XGetTransientForHint(server_->display, windows[i], &owner) != 0) != isDialog) continue;
    XSetInputFocus(server_->display, windows[i], RevertToParent, CurrentTime);
    XSync(server_->display, False);
    return Place{shown.x, shown.y, shown.width, shown.height};
  }
  return std::nullopt;
}
