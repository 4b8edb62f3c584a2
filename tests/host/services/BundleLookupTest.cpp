#include "BundleLookup.h"
#include "ScratchFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace host {
namespace {

namespace fs = std::filesystem;

// A bundle with files at these places of its resource folder; a place that ends in "/" is a folder.
struct Bundle {
  explicit Bundle(const std::vector<std::string>& places) {
    for (const std::string& place : places) {
      fs::create_directories((resources / place).parent_path());
      if (place.back() != '/') std::ofstream(resources / place) << place;
    }
  }

  const ScratchFolder scratch;
  const fs::path root = scratch.path;
  const fs::path resources = root / "Contents" / "Resources";
};

TEST(BundleLookup, ChoosesTheFirstLanguageItHas) {
  const Bundle bundle({"de.lproj/", "pt_BR.lproj/", "zh-Hans.lproj/", "zh-TW.lproj/", "en_GB.lproj/",
                       "it.lproj", "sv.old.lproj/", "nl/"});
  const std::vector<std::pair<std::vector<std::string>, const char*>> table{
      {{}, ""},
      {{"de-AT"}, "de.lproj"},
      {{"pt-PT"}, "pt_BR.lproj"},
      {{"zh-TW"}, "zh-TW.lproj"},
      {{"zh-Hans-SG"}, "zh-Hans.lproj"},
      {{"fr", "ja", "de"}, "de.lproj"},
      {{"en-GB"}, "en_GB.lproj"},
      {{"fr", "en", "de"}, ""},
      {{"it", "sv", "nl", "d"}, ""},  // a file, and names that only begin or end alike
  };
  EXPECT_TRUE(isBundle(bundle.root) && !isBundle(bundle.resources) && !isBundle(""));
  for (const auto& [languages, folder] : table) {
    EXPECT_TRUE(fs::equivalent(chosenFolder(bundle.root, languages), bundle.resources / folder))
        << testing::PrintToString(languages);
  }
}

TEST(BundleLookup, FindsALocalisationByName) {
  const Bundle bundle({"pt_BR.lproj/", "zh-Hant.lproj/"});
  const auto folder = [&](const char* name) {
    const auto found = localisationFolder(bundle.root, name);
    return found ? found->filename().string() : std::string();
  };
  for (const char* name : {"pt_BR", "pt-BR"}) EXPECT_EQ(folder(name), "pt_BR.lproj") << name;
  EXPECT_EQ(folder("zh_Hant"), "zh-Hant.lproj");
  for (const char* name : {"pt", "pt_br", "", "..", "../Resources", "pt_BR.lproj/..", "/"}) {
    EXPECT_EQ(folder(name), "") << name;
  }
}

TEST(BundleLookup, FindsFilesOfAFolderAndNoOthers) {
  const Bundle bundle({"rv.asc", "plain", "folder.asc/in"});
  const auto find = [&](const char* name, const char* extension) {
    return fileInFolder(bundle.resources, name, extension);
  };
  EXPECT_EQ(find("rv", "asc"), (bundle.resources / "rv.asc").string());
  EXPECT_EQ(find("plain", ""), (bundle.resources / "plain").string());
  const std::pair<const char*, const char*> strangers[] = {
      {"RV", "asc"},      {"rv", ""},          {"folder", "asc"}, {"../Resources/rv", "asc"},
      {"rv", "x/../asc"}, {"/etc/passwd", ""}, {"..", ""}};
  for (const auto& [name, extension] : strangers) {
    EXPECT_EQ(find(name, extension), std::nullopt) << name << " | " << extension;
  }
}

}  // namespace
}  // namespace host
