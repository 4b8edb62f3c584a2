// The real window with the plug-in and a user.
#pragma once

#include "User.h"
#include "WindowWorld.h"

namespace host {

// What all users of the machine share is the test's own, before the plug-in looks at it.
class SharedData {
 protected:
  SharedData() { setenv("CORVANE_SHARED_DATA", shared_.path.c_str(), 1); }
  ~SharedData() { unsetenv("CORVANE_SHARED_DATA"); }

 private:
  ScratchFolder shared_;
};

class WindowStory : private SharedData, public WindowTest {
 protected:
  WindowStory() { window.setGeometry(0, 0, 1400, 1050); }
  ~WindowStory() override;

  void tell(const std::function<void(User&)>& story) { runUser(window, story); }

  // The rest is for the user's thread. Places of the drawing in front are in document units.
  void open(const User& user, const std::string& file);  // by Ctrl+O
  void save(const User& user);                           // by Ctrl+S
  QPoint placeOf(const User& user, const AIRealPoint& point);
  // The colour that the screen shows there.
  QRgb colourAt(const User& user, const AIRealPoint& point);
  void waitForColour(const User& user, const AIRealPoint& point, QRgb colour);
  // Centres of what lies on the layer, from the bottom up; nothing if there is no such layer.
  std::vector<AIRealPoint> centresOn(const User& user, const std::string& layer);
  void waitForArt(const User& user, const std::string& layer, std::size_t count);
  // From the top.
  std::vector<std::string> layers(const User& user);

  // In the thread of the window.
  static QRgb colourOfPixel(const QPoint& place);  // of the screen

  // The way to an item of the product's menu.
  std::vector<std::string> productMenu(const User& user, const std::string& key);
};

}  // namespace host
