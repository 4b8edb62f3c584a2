// A bundle with text files of the test's own, which the text system finds.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "ResourceLocation.h"
#include "TextModules.h"

class TextBundle : public testing::Test {
 protected:
  TextBundle() {
    std::string pattern = (std::filesystem::temp_directory_path() / "corvane-texts-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no scratch folder");
    folder = pattern;
    resources = folder / "Demo.bundle/Contents/Resources";
    std::filesystem::create_directories(resources);
    setenv("LANGUAGE", "en", 1);
    unsetenv("LOCALE_MISSING");
    FreeTextState();
  }
  ~TextBundle() override {
    FreeTextState();
    for (const char* name : {"LANGUAGE", "LOCALE_MISSING", "LOCALE_PATH", "RVLANG"}) unsetenv(name);
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
  }

  void Write(const std::string& file, const std::string& text) const {
    std::filesystem::create_directories((resources / file).parent_path());
    std::ofstream(resources / file, std::ios::binary) << text;
  }

  // What the plug-in does as it starts, for a user of this language.
  void Start(const char* language = "en", const char* module = "corvane") const {
    setenv("LANGUAGE", language, 1);
    SetLocaleEnvironment(resources.c_str());
    RegisterTextModule(module);
  }

  static std::string Read(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  std::filesystem::path folder, resources;
};
