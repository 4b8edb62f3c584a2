// The real window with the real plug-in, used with mouse and keys.
#pragma once

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QString>
#include <QTimer>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "HostProcess.h"
#include "MainWindow.h"
#include "World.h"

class QMenu;

namespace host {

// Waits for the next modal dialog, notes what is in it and answers it.
class BoxAnswer {
 public:
  struct Seen {
    std::string name;  // of its class
    std::string title;
    std::string text;
    QMessageBox::Icon icon;  // of a message box
    std::string defaultButton;
    int buttons;
    bool overTheWindow;
  };

  explicit BoxAnswer(Qt::Key key);
  explicit BoxAnswer(QMessageBox::StandardButton button);
  explicit BoxAnswer(std::function<void(QDialog&)> answer);

  // Nullopt if no box came up yet.
  const std::optional<Seen>& seen() const { return seen_; }

 private:
  void look(const std::function<void(QDialog&)>& answer);

  QTimer timer_;
  std::optional<Seen> seen_;
};

// Lets pass what the window does by itself. It looks at changes by a timer without delay, which a single pass
// of the event loop may leave for the next.
void settle();

// Without "&" of a mnemonic.
std::string shownText(const QString& text);

class WindowWorld {
 public:
  explicit WindowWorld(const std::vector<std::filesystem::path>& bundles = {corvaneBundle()},
                       Folders folders = {}, std::int32_t autosaveSeconds = 30);

  // What the user's file dialogs will answer.
  std::vector<std::string> filesToOpen;
  std::string fileToSave;
  std::string proposedFile;  // what the last save dialog proposed

  std::string textOf(const std::string& key);  // of a plug-in's menu item
  // Clicks through the menus. A failure is reported, and nothing chosen, if one of the texts is not there.
  void choose(const std::vector<std::string>& path);
  QMenu& menu(const std::vector<std::string>& path);  // throws if there is none
  void addMarks();  // through the menu, accepting the options and answering what the plug-in has to say
  void activate();  // no window manager does it here when a box has closed
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers);
  QWidget& view();  // of the current drawing
  void movePointer(const QPoint& to, Qt::MouseButtons held = {}, Qt::KeyboardModifiers modifiers = {});
  Document& document() { return *host.currentDocument(); }
  bool hasLayer(const std::string& title) { return layerTitled(document(), title) != 0; }

  // Of the bar from left to right, a line each: "---" is a separator, "[x]" is checked, "(off)" is disabled,
  // and what is in a menu of a menu stands in braces.
  std::string menuTree();

  Host host;
  Session session{host};
  std::optional<MainWindow> window;
};

// Tests of the window: English, no language of the environment.
class WindowTest : public testing::Test {
 protected:
  static const std::string kPoster;
  static const std::string kStickers;

  WindowTest();

  WindowWorld world;
  MainWindow& window = *world.window;
  ScratchFolder scratch;
};

}  // namespace host
