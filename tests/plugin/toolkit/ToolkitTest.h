// The toolkit in the real host, with a bundle on disk.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "HMX_AIPlugin.h"
#include "HMX_AISuiteManager.h"
#include "Host.h"
#include "IconPlugin.h"
#include "SPBasic.h"
#include "ScratchFolder.h"
#include "Theme.h"

// Lasts as long as the process, as does what the toolkit knows of it. Ids that its table has:
//   16000-18999, 19000-19999   "p<id>.png", with "p<id>@2x.png" 4000 above
//   24000-26999                "s<id>.svg"
//   1-99                       "data<id>", in no folder
class TestBundle {
 public:
  static const TestBundle& Instance() {
    static const TestBundle bundle;
    return bundle;
  }

  TestBundle(const TestBundle&) = delete;
  TestBundle& operator=(const TestBundle&) = delete;

  void Write(const std::string& file, const std::string& bytes) const {
    scratch.write(kResources + ("/" + file), bytes);
  }

  static constexpr char kResources[] = "Test.bundle/Contents/Resources";

  const ScratchFolder scratch;
  const std::filesystem::path root = scratch.path, resources = root / kResources;

 private:
  TestBundle() {
    std::string table;
    const auto list = [&table](int first, int last, const std::string& before, const std::string& after) {
      for (int id = first; id <= last; ++id) {
        table += std::to_string(id) + ".type " + before + std::to_string(id) + after + "\n";
      }
    };
    list(1, 99, "data", "");
    list(16000, 19999, "p", ".png");
    list(24000, 26999, "s", ".svg");
    Write("txt/IDToFile.txt", table);
  }
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
  explicit ToolkitTest(const char* scale = "1") {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("QT_SCALE_FACTOR", scale, 1);
    application = std::make_unique<QApplication>(argumentCount, arguments);
    host::setTheme(host::Theme::Light);
    qRVADM::SetIconPlugin(record.handle);
  }
  ~ToolkitTest() override { qRVADM::SetIconPlugin(nullptr); }

  std::uint64_t SuiteCalls() { return host.refusal().callCount(); }

  int argumentCount = 1;
  char programName[5] = "test";
  char* arguments[2] = {programName, nullptr};
  std::unique_ptr<QApplication> application;
  const TestBundle& bundle = TestBundle::Instance();
  host::Host host;
  host::PluginRecord& record = host.addPlugin("test", bundle.resources.parent_path().parent_path().string());
  ToolkitPlugin plugin{{kSPValidSPMessageData, record.handle, nullptr, host.basic()}};
};
