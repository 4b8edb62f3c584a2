// A plug-in that is nothing but its frame, in the real host.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "HMX_AIPlugin.h"
#include "HMX_AISuiteManager.h"
#include "Host.h"
#include "SPBasic.h"

class FramePlugin : public HMX_AIPlugin {
 public:
  explicit FramePlugin(const SPMessageData& message) : HMX_AIPlugin(message) {
    for (const char* name : {"AI Annotator Suite", "AI Art Suite", "AI Artboard Suite",
                             "AI Custom Color Suite", "AI Document Suite", "AI Document View Suite",
                             "AI Layer Suite", "AI Menu Suite", "AI Runtime Suite", "AI Swatch List Suite",
                             "AI Swatch Group Suite", "AI Tool Suite", "AI User Suite", "SP Basic Suite"}) {
      RequestSuite(name);
    }
    if (startupError == kNoErr) suiteManager->Acquire();
  }
  ~FramePlugin() override {
    if (startupError == kNoErr) suiteManager->Release();
  }

  using HMX_AIPlugin::MakeMenu;
  using HMX_AIPlugin::MakeNotifier;

  std::int32_t Nesting() const { return suiteManager->nesting; }
};

class FrameTest : public testing::Test {
 protected:
  FrameTest() { Start(); }

  void Start() { plugin = std::make_unique<FramePlugin>(Head()); }

  SPMessageData Head() const { return {kSPValidSPMessageData, record.handle, nullptr, host.basic()}; }

  // A message with this handle behind its head.
  template <typename Message, typename Handle>
  AIErr Send(const char* caller, const char* selector, Handle Message::*field, Handle handle) {
    Message message{};
    message.d = Head();
    message.*field = handle;
    return plugin->Dispatch(caller, selector, &message);
  }

  // One layer a title, the first on top.
  host::Document& OpenDocument(const std::vector<std::string>& layers) {
    auto document = std::make_shared<host::Document>();
    for (const std::string& title : layers) {
      document->editLayer(document->insertLayer(0, kPlaceBelowAll)).title = title;
    }
    return *host.documents().open(document, "drawing").document;
  }

  host::Host host;
  host::PluginRecord& record = host.addPlugin("test", "/opt/plug-ins/test.bundle");
  std::unique_ptr<FramePlugin> plugin;
};
