// The strips that show the table head, from the artboards to the view.
#include "TableHeadAnnotator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>

#include "AIAnnotatorDrawer.h"
#include "AINotifier.h"
#include "AnnotationCanvas.h"
#include "HMX_AIPlugin.h"
#include "HMX_AISuiteManager.h"
#include "Host.h"
#include "MessageDrawer.h"

namespace Vandrell::Corvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Pixels = std::vector<std::int32_t>;

struct StripPlugin : HMX_AIPlugin {
  explicit StripPlugin(const SPMessageData& message) : HMX_AIPlugin(message) {
    for (const char* name : {"AI Annotator Suite", "AI Annotator Drawer Suite", "AI Artboard Suite",
                             "AI Document View Suite", "AI Runtime Suite"}) {
      RequestSuite(name);
    }
    suiteManager->Acquire();
  }
  ~StripPlugin() override { suiteManager->Release(); }
};

struct Canvas : host::AnnotationCanvas {
  void drawRect(const AIRect& pixels, const host::AnnotationPen& pen, bool fill) override {
    const auto& color = pen.color;
    EXPECT_TRUE(color.red == 65000 && color.green == 0 && color.blue == 0 && pen.lineWidth == 2.0 && fill);
    rects.push_back({pixels.left, pixels.top, pixels.right, pixels.bottom});
  }
  std::vector<Pixels> rects;
};

// A view of one pixel a unit whose upper left corner is the point (0, 300).
class TableHead : public testing::Test {
 protected:
  TableHead() {
    host.onInvalidate = [this](const host::OpenDocument&, const AIRect& rect) {
      invalid.push_back({rect.left, rect.top, rect.right, rect.bottom});
    };
    annotator.emplace(&plugin);
  }
  // Those who go first at the end of a plug-in are the notifiers.
  ~TableHead() override {
    if (annotator) Notify(kSPInterfaceCaller, kSPInterfaceShutdownSelector);
  }

  SPMessageData Head() const { return {kSPValidSPMessageData, record.handle, nullptr, host.basic()}; }
  void Notify(const char* caller, const char* selector) {
    SPMessageData message = Head();
    plugin.Dispatch(caller, selector, &message);
  }

  AIDocumentHandle Open(const std::vector<AIRealRect>& artboards) {
    auto document = std::make_shared<host::Document>();
    for (const AIRealRect& position : artboards) document->editState().artboards.push_back({position, "", 0});
    host::OpenDocument& open = host.documents().open(document, "drawing");
    open.view.setViewport(400, 300);
    open.view.setZoom(1);
    open.view.setCenter({200, 150});
    return open.handle();
  }

  // What the host's notifier of this name tells.
  void Fire(const std::string& name, void* data) {
    for (const host::NotifierRecord& notifier : host.notifiers()) {
      if (notifier.name != name) continue;
      AINotifierMessage message{Head(), notifier.handle, notifier.type.c_str(), data};
      plugin.Dispatch(kAINotifierCaller, notifier.type.c_str(), &message);
    }
  }

  std::vector<Pixels> Drawn() {
    Canvas canvas;
    const host::MessageDrawer drawer(host, canvas);
    AIAnnotatorMessage message{Head(), annotator->GetHandle(), nullptr, drawer.handle()};
    EXPECT_EQ(plugin.Dispatch(kCallerAIAnnotation, kSelectorAIDrawAnnotation, &message), kNoErr);
    return canvas.rects;
  }
  std::vector<Pixels> Invalidated() {
    invalid.clear();
    AIAnnotatorMessage message{Head(), annotator->GetHandle(), nullptr, nullptr};
    EXPECT_EQ(plugin.Dispatch(kCallerAIAnnotation, kSelectorAIInvalAnnotation, &message), kNoErr);
    return invalid;
  }

  host::Host host;
  host::PluginRecord& record = host.addPlugin("test", "/opt/plug-ins/test.bundle");
  StripPlugin plugin{Head()};
  std::optional<TableHeadAnnotator> annotator;
  std::vector<Pixels> invalid;
};

const std::vector<AIRealRect> kThree{{10, 300, 100, 200}, {200, 290, 300, 0}, {0, 100, 50, 90}};
const Pixels kFirst{8, 0, 10, 100};
const Pixels kSecond{198, 10, 200, 300};
const Pixels kThird{-2, 200, 0, 210};

TEST_F(TableHead, EachArtboardHasAStripOutsideOfItsLeftEdge) {
  const AIDocumentHandle document = Open(kThree);
  EXPECT_THAT(Drawn(), IsEmpty()) << "before the first update";
  annotator->Update(document);
  EXPECT_THAT(invalid, ElementsAre(kFirst, kSecond, kThird));
  EXPECT_THAT(Drawn(), ElementsAre(kFirst, kSecond, kThird));
  EXPECT_THAT(Invalidated(), ElementsAre(kFirst, kSecond, kThird));
  host.documents().current()->view.setZoom(2);
  EXPECT_THAT(Drawn(), testing::Contains(Pixels({-184, -150, -180, 50}))) << "strips grow with the view";
}

TEST_F(TableHead, ItFollowsTheDocuments) {
  const AIDocumentHandle document = Open({kThree[0]});
  for (const char* name :
       {"TableHeadAnnotator DocumentChanged Notifier", "TableHeadAnnotator DocumentOpened Notifier"}) {
    Fire(name, document);
    EXPECT_THAT(Drawn(), ElementsAre(kFirst)) << name;
    Fire(name, nullptr);
    EXPECT_THAT(Drawn(), IsEmpty()) << name;
  }
  annotator->Update(document);
  invalid.clear();
  Fire("TableHeadAnnotator DocumentClosed Notifier", document);
  EXPECT_THAT(invalid, ElementsAre(kFirst));
  EXPECT_THAT(Drawn(), IsEmpty());
  EXPECT_THAT(Invalidated(), IsEmpty());
}

TEST_F(TableHead, NotifiersGoWithTheAnnotator) {
  annotator.reset();
  Fire("TableHeadAnnotator DocumentChanged Notifier", Open(kThree));
  EXPECT_THAT(invalid, IsEmpty());
}

TEST_F(TableHead, WhatTheHostDoesNotTellIsLeftOut) {
  const AIDocumentHandle document = Open(kThree);
  ASSERT_EQ(host.refusal().add("AI Artboard Suite:GetArtboardProperties:3"), "");
  annotator->Update(document);
  EXPECT_THAT(Drawn(), ElementsAre(kFirst, kSecond));
  host.refusal().clear();
  ASSERT_EQ(host.refusal().add("AI Document View Suite:ArtworkPointToViewPoint:2"), "");
  EXPECT_THAT(Drawn(), ElementsAre(kSecond)) << "nobody knows where the first one lies";
}

}  // namespace
}  // namespace Vandrell::Corvane
