// A bundle with text files of the test's own, which the text system finds.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "ResourceLocation.h"
#include "ScratchFolder.h"
#include "TextModules.h"

class TextBundle : public testing::Test {
 protected:
  TextBundle() {
    std::filesystem::create_directories(resources);
    setenv("LANGUAGE", "en", 1);
    unsetenv("LOCALE_MISSING");
    FreeTextState();
  }
  ~TextBundle() override {
    FreeTextState();
    for (const char* name : {"LANGUAGE", "LOCALE_MISSING", "LOCALE_PATH", "RVLANG"}) unsetenv(name);
  }

  void Write(const std::string& file, const std::string& text) const {
    scratch.write(kResources + ("/" + file), text);
  }

  // What the plug-in does as it starts, for a user of this language.
  void Start(const char* language = "en", const char* module = "corvane") const {
    setenv("LANGUAGE", language, 1);
    SetLocaleEnvironment(resources.c_str());
    RegisterTextModule(module);
  }

  static constexpr char kResources[] = "Demo.bundle/Contents/Resources";

  const ScratchFolder scratch;
  const std::filesystem::path folder = scratch.path, resources = folder / kResources;
};
