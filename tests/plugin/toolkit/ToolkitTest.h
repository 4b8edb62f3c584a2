// The toolkit in the real host, with a bundle on disk.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <string>

#include "HMX_AIPlugin.h"
#include "HMX_AISuiteManager.h"
#include "Host.h"
#include "Pictures.h"
#include "SPBasic.h"
#include "ScratchFolder.h"
#include "Theme.h"
#include "ToolkitPlugin.h"

// Lasts as long as the process, as does what the toolkit knows of it. Ids that its table has:
//   1-99          "data<id>", in no folder
//   16000-19999   "p<id>.png", with "p<id>@2x.png" 4000 above
//   24000-26999   "s<id>.svg"
class TestBundle {
 public:
  TestBundle() {
    std::string table;
    for (int id = 1; id < 27000; ++id) {
      const std::string number = std::to_string(id);
      if (id < 100) table += number + ".type data" + number + "\n";
      if (id >= 16000 && id < 20000) table += number + ".type p" + number + ".png\n";
      if (id >= 24000) table += number + ".type s" + number + ".svg\n";
    }
    Write("txt/IDToFile.txt", table);
  }
  void Write(const std::string& file, const std::string& bytes) const {
    scratch.write("Test.bundle/Contents/Resources/" + file, bytes);
  }
  // The PNG file behind the id, or behind the one 4000 above.
  void WritePicture(int id, const QColor& color, int width = 16, int height = 16,
                    bool isDouble = false) const {
    Write("png/p" + std::to_string(id) + (isDouble ? "@2x.png" : ".png"), PNGPicture(width, height, color));
  }

  const ScratchFolder scratch;
  const std::filesystem::path resources = scratch.path / "Test.bundle/Contents/Resources";
};

class ToolkitPlugin : public HMX_AIPlugin {
 public:
  explicit ToolkitPlugin(const SPMessageData& message) : HMX_AIPlugin(message) {
    RequestSuite("AI Data Filter Suite");
    suiteManager->Acquire();
  }
  ~ToolkitPlugin() override { suiteManager->Release(); }
};

class ToolkitTest : public testing::Test {
 protected:
  ToolkitTest() {
    host::setTheme(host::Theme::Light);
    qRVADM::SetToolkitPlugin(record.handle);
  }
  ~ToolkitTest() override { qRVADM::SetToolkitPlugin(nullptr); }

  void Request(std::initializer_list<const char*> suites) {
    for (const char* suite : suites) EXPECT_EQ(plugin.RequestSuite(suite), kNoErr) << suite;
  }

  static inline const TestBundle bundle;
  int argumentCount = 1;
  char programName[5] = "test";
  char* arguments[2] = {programName, nullptr};
  const QApplication application{argumentCount, arguments};
  host::Host host;
  host::PluginRecord& record = host.addPlugin("test", bundle.scratch.file("Test.bundle"));
  ToolkitPlugin plugin{{kSPValidSPMessageData, record.handle, nullptr, host.basic()}};
};
