// A document in the real host, with the suites that line types need, for as long as a test lives.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "HMX_AISuiteManager.h"
#include "Host.h"
#include "LineType.h"
#include "LineTypeOfArt.h"

namespace Vandrell::Corvane {

class LineTypeDocument : public testing::Test {
 protected:
  LineTypeDocument() {
    document.editState().artboards = {{{0, 300, 400, 0}, "1", 0}};
    host.documents().open(shared, "drawing");
    HMX_AISuiteManager& suites = HMX_AISuiteManager::Instance();
    suites.Reset();
    suites.SetBasicSuite(host.basic());
    for (const char* name : {"AI Art Suite", "AI Custom Color Suite", "AI Document Suite", "AI Layer Suite",
                             "AI Matching Art Suite", "AI Path Style Suite", "AI Swatch List Suite",
                             "AI Swatch Group Suite", "AI Unicode String Suite"}) {
      suites.Request(name);
    }
    EXPECT_EQ(suites.Acquire(), kNoErr);
  }
  ~LineTypeDocument() override { HMX_AISuiteManager::Instance().Release(); }

  // The first on top.
  void addLayers(const std::vector<std::string>& titles) {
    for (const std::string& title : titles) {
      document.editLayer(document.insertLayer(0, kPlaceBelowAll)).title = title;
    }
  }
  std::vector<std::string> titles() const {
    std::vector<std::string> found;
    for (const host::LayerId id : document.state().layers) found.push_back(document.layer(id)->title);
    return found;
  }
  host::ArtId root(std::size_t layer) const { return document.layer(document.state().layers[layer])->root; }
  host::ArtId add(AIArtType type, host::ArtId group) {
    return document.newArt(type, kPlaceInsideOnTop, group).value();
  }
  AIArtHandle handle(host::ArtId id) const {
    return host::makeHandle<AIArtHandle>(host::HandleKind::Art, document.serial(), id);
  }
  void select(const std::vector<host::ArtId>& art) {
    for (const host::ArtId id : art) document.setSelected(id, true);
  }

  AICustomColorHandle color(const std::string& name, AICustomColorTag kind = kCustomThreeColor,
                            AICustomColorFlags flag = kCustomSpotColor) {
    host::CustomColorId id = document.customColorByName(name);
    if (id == 0) id = document.addCustomColor(name, {kind, {}, flag});
    return host::makeHandle<AICustomColorHandle>(host::HandleKind::CustomColor, document.serial(), id);
  }
  // As the line type of this colour has it.
  AIPathStyle strokeOf(AICustomColorHandle custom) const {
    AIPathStyle style{};
    AIColor paint{};
    paint.kind = kCustomColor;
    paint.c.c = {custom, 0};
    ApplyLineTypeStroke(paint, style);
    return style;
  }
  void paint(host::ArtId art, const AIPathStyle& style) {
    document.setStyle(art, std::make_shared<const AIPathStyle>(style));
  }
  static LineType spot(const std::string& name) {
    LineType type;
    type.name = ai::UnicodeString(name);
    type.isCustomDataModel = true;
    type.customColor = AICustomColor();
    type.customColor.kind = kCustomThreeColor;
    type.customColor.c.rgb = {1, 0, 0};
    type.customColor.flag = kCustomSpotColor;
    return type;
  }
  std::vector<std::string> told() const {
    std::vector<std::string> texts;
    for (const host::Alert& alert : host.alerts()) texts.push_back(alert.text);
    return texts;
  }

  host::Host host;
  const std::shared_ptr<host::Document> shared = std::make_shared<host::Document>();
  host::Document& document = *shared;
};

}  // namespace Vandrell::Corvane
