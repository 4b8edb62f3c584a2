// A host with an open document, and its suites as a plug-in has them.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "AIArt.h"
#include "AILayer.h"
#include "AIPath.h"
#include "AIPathStyle.h"
#include "AIUnicodeString.h"
#include "Host.h"
#include "SPBasic.h"

// The suite of this name in the version of its header.
#define ACQUIRE(Suite) acquire<Suite>(k##Suite, k##Suite##Version)

class HostFixture : public testing::Test {
 protected:
  HostFixture() {
    plugin = host.addPlugin("test", "/opt/plug-ins/test.bundle").handle;
    document = makeDocument();
    host.documents().open(document, "drawing");
  }

  // One layer "Layer 1" and one artboard of 400 by 300 units; changes are recorded.
  static std::shared_ptr<host::Document> makeDocument() {
    auto fresh = std::make_shared<host::Document>();
    fresh->editLayer(fresh->insertLayer(0, kPlaceAboveAll)).title = "Layer 1";
    host::Artboard artboard;
    artboard.position = {0, 300, 400, 0};
    artboard.name = "Front";
    fresh->editState().artboards = {artboard};
    fresh->startRecording();
    return fresh;
  }

  template <typename Suite>
  const Suite& acquire(const char* name, std::int32_t version) {
    const void* table = nullptr;
    EXPECT_EQ(host.basic()->AcquireSuite(name, version, &table), kSPNoError) << name;
    return *static_cast<const Suite*>(table);
  }

  // Whether calls all answered the same; they are made in no certain order.
  template <typename... Codes>
  static testing::AssertionResult each(AIErr expected, Codes... answers) {
    int place = 0;
    auto result = testing::AssertionSuccess();
    const auto check = [&](AIErr answer) {
      if (answer != expected) result = testing::AssertionFailure() << "call " << place << ": " << answer;
      ++place;
    };
    (check(answers), ...);
    return result;
  }

  AIUnicodeStringHandle text(std::string_view bytes = {}) {
    AIUnicodeStringHandle string = nullptr;
    EXPECT_EQ(strings.New(bytes.data(), bytes.size(), kAIUTF8CharacterEncoding, &string), kNoErr);
    return string;
  }
  std::string read(AIUnicodeStringHandle string) {
    const char* bytes = nullptr;
    std::size_t count = 0;
    EXPECT_EQ(strings.GetBytes(string, kAIUTF8CharacterEncoding, &bytes, &count), kNoErr);
    return bytes == nullptr ? "no string" : std::string(bytes, count);
  }

  AILayerHandle topLayer() {
    AILayerHandle layer = nullptr;
    EXPECT_EQ(layers.GetNthLayer(0, &layer), kNoErr);
    return layer;
  }
  AIArtHandle newArt(AIArtType type, AIPaintOrder order = kPlaceAboveAll, AIArtHandle prep = nullptr) {
    AIArtHandle made = nullptr;
    EXPECT_EQ(art.NewArt(type, order, prep, &made), kNoErr);
    return made;
  }
  // A closed square with its lower left corner at the given point.
  AIArtHandle newSquare(AIRealPoint corner, AIReal side) {
    const AIArtHandle square = newArt(kPathArt);
    AIPathSegment segments[4];
    for (int i = 0; i < 4; ++i) {
      const AIRealPoint point{corner.x + (i == 1 || i == 2 ? side : 0), corner.y + (i > 1 ? side : 0)};
      segments[i] = {point, point, point, 1};
    }
    EXPECT_EQ(paths.SetPathSegments(square, 0, 4, segments), kNoErr);
    EXPECT_EQ(paths.SetPathClosed(square, 1), kNoErr);
    return square;
  }
  void fill(AIArtHandle path) {
    AIPathStyle style{};
    style.fillPaint = 1;
    style.fill.color.c.g.gray = 1;
    EXPECT_EQ(styles.SetPathStyle(path, &style), kNoErr);
  }

  host::Host host;
  SPPluginRef plugin = nullptr;
  std::shared_ptr<host::Document> document;
  const AIUnicodeStringSuite& strings = ACQUIRE(AIUnicodeStringSuite);
  const AIArtSuite& art = ACQUIRE(AIArtSuite);
  const AILayerSuite& layers = ACQUIRE(AILayerSuite);
  const AIPathSuite& paths = ACQUIRE(AIPathSuite);
  const AIPathStyleSuite& styles = ACQUIRE(AIPathStyleSuite);
};
