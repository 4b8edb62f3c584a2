// The program is killed while it saves: the file that was there is whole, and the work comes back.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <chrono>
#include <functional>
#include <thread>

#include "ChildHost.h"
#include "ScratchFolder.h"
#include "World.h"

namespace host {
namespace {

namespace fs = std::filesystem;

// Large enough that it takes a while to write.
std::string largeDrawing() {
  std::string drawing = squareOnPage();
  return drawing.insert(drawing.rfind("</svg>"), "<!--" + std::string(20U << 20U, 'x') + "-->");
}

void waitFor(const char* what, const std::function<bool()>& isSo) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(120);
  while (!isSo()) {
    if (std::chrono::steady_clock::now() > end) throw std::runtime_error(std::string("no ") + what);
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

bool hasCopy(const fs::path& home) {
  std::error_code gone;
  for (fs::recursive_directory_iterator entry(home, gone), end; !gone && entry != end;
       entry.increment(gone)) {
    if (entry->path().extension() == ".svg") return true;
  }
  return false;
}

void shoot(const char* name) {
  const QString folder = qEnvironmentVariable("CORVANE_SHOTS");
  if (folder.isEmpty()) return;
  QGuiApplication::primaryScreen()->grabWindow(0).save(folder + "/" + name + ".png");
}

class CrashStory : public testing::Test {
 protected:
  void clickInto(const InputDevices::Place& window) {
    devices.moveTo(window.x + window.width / 2, window.y + window.height / 3);
    devices.press(InputDevices::kLeft);
    devices.release(InputDevices::kLeft);
  }

  // Not if the save was over before anybody looked.
  bool isKilledDuringASave(ChildHost& host, const InputDevices::Place& window, const std::string& file) {
    waitFor("copy of the changes", [&] {
      devices.pressKeys("Alt+4");
      clickInto(window);
      std::this_thread::sleep_for(std::chrono::milliseconds(200));
      return hasCopy(home.path);
    });
    shoot("before-the-kill");
    const fs::file_time_type age = fs::last_write_time(file);
    const auto isOver = [&] { return fs::last_write_time(file) != age; };
    devices.pressKeys("Ctrl+s");
    bool isKilled = false;
    waitFor("file being written", [&] {
      isKilled = host.killIf([&] { return host.hasOpen(drawings.path.string()) && !isOver(); });
      return isKilled || isOver();
    });
    if (!isKilled) waitFor("end of the copy", [&] { return !hasCopy(home.path); });
    return isKilled;
  }

  InputDevices devices{qgetenv("DISPLAY").toStdString()};
  ScratchFolder home;
  ScratchFolder drawings;
};

TEST_F(CrashStory, AKillDuringASaveLosesNothing) {
  std::string before = largeDrawing();
  const std::string file = drawings.write("large.svg", before);
  {
    ChildHost host(home.path, {file, "--pref", "corvane-host/AutosaveSeconds=1"});
    const InputDevices::Place window = host.waitForWindow(devices, false);
    while (!isKilledDuringASave(host, window, file)) before = readText(file);
  }
  EXPECT_TRUE(readText(file) == before);

  ChildHost host(home.path, {});
  host.waitForWindow(devices, true);
  shoot("offered-back");
  waitFor("end of the question", [&] {
    devices.pressKeys("Return");
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    return !host.focusWindow(devices, true);
  });
  waitFor("recovered file", [&] {
    host.waitForWindow(devices, false);
    devices.pressKeys("Ctrl+s");
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    return readText(file) != before;
  });
  shoot("recovered");
  devices.pressKeys("Ctrl+q");
  EXPECT_EQ(host.waitForEnd(), 0);
  const std::string after = readText(file);
  EXPECT_NE(after.find("Regmark"), std::string::npos);
  EXPECT_GT(after.size(), before.size());
  EXPECT_EQ(after.compare(after.size() - 7, 7, before, before.size() - 7, 7), 0);
  EXPECT_FALSE(hasCopy(home.path)) << "nothing is left to offer";
}

}  // namespace
}  // namespace host
