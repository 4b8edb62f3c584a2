// A document in the real host, with the suites that paints need. Inks are plain.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "AIColorConversion.h"
#include "AICustomColor.h"
#include "Document.h"
#include "HeldSuites.h"

class PaintFixture : public testing::Test {
 protected:
  // No colour profile is found below these.
  static void SetUpTestSuite() {
    for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_DATA_DIRS"}) setenv(name, "/nonexistent", 1);
  }

  PaintFixture() { host.documents().open(document, "drawing"); }

  // A paint of a custom colour that the document has.
  AIColor CustomPaint(const AICustomColor& definition, AIReal tint = 0) {
    AIColor paint{};
    paint.kind = kCustomColor;
    const std::string name = "custom " + std::to_string(++count);
    const host::CustomColorId id = document->addCustomColor(name, definition);
    paint.c.c.color =
        host::makeHandle<AICustomColorHandle>(host::HandleKind::CustomColor, document->serial(), id);
    paint.c.c.tint = tint;
    return paint;
  }

  static AIColor Paint(AIColorTag kind, AIReal first = 0, AIReal second = 0, AIReal third = 0,
                       AIReal fourth = 0) {
    AIColor paint{};
    paint.kind = kind;
    paint.c.f = {first, second, third, fourth};  // the other components lie over these
    if (kind == kGrayColor) paint.c.g = {first};
    if (kind == kThreeColor) paint.c.rgb = {first, second, third};
    return paint;
  }

  static AICustomColor Definition(AICustomColorTag kind, AIReal first = 0, AIReal second = 0,
                                  AIReal third = 0, AIReal fourth = 0) {
    AICustomColor definition{};
    definition.kind = kind;
    definition.flag = kCustomSpotColor;
    if (kind == kCustomFourColor) definition.c.f = {first, second, third, fourth};
    if (kind == kCustomThreeColor) definition.c.rgb = {first, second, third};
    if (kind == kCustomLabColor) definition.c.lab = {first, second, third};
    return definition;
  }

  host::Host host;
  std::shared_ptr<host::Document> document = std::make_shared<host::Document>();

 private:
  const HeldSuites suites{host, {kAIColorConversionSuite, kAICustomColorSuite}};
  int count = 0;
};
