#include "BundleLookup.h"
#include "ScratchFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace host {
namespace {

namespace fs = std::filesystem;

// A bundle with files and folders at these places of its resource folder; a place that ends in "/" is a
// folder.
class Bundle {
 public:
  explicit Bundle(const std::vector<std::string>& places) {
    fs::create_directories(resources());
    for (const std::string& place : places) add(place);
  }

  const fs::path& root() const { return scratch_.path; }
  fs::path resources() const { return root() / "Contents" / "Resources"; }

 private:
  void add(const std::string& place) const {
    if (place.back() == '/') {
      fs::create_directories(resources() / place.substr(0, place.size() - 1));
    } else {
      std::ofstream(resources() / place) << place;
    }
  }

  ScratchFolder scratch_;
};

TEST(BundleLookup, ABundleHasAResourceFolder) {
  const Bundle bundle({"file"});
  EXPECT_TRUE(isBundle(bundle.root()));
  EXPECT_TRUE(isBundle(bundle.root() / ""));
  EXPECT_FALSE(isBundle(bundle.root() / "Contents"));
  EXPECT_FALSE(isBundle(bundle.root() / "missing"));
  EXPECT_FALSE(isBundle(bundle.resources() / "file"));
  EXPECT_FALSE(isBundle(""));
}

TEST(BundleLookup, ChoosesTheFirstLanguageItHas) {
  const Bundle bundle({"de.lproj/", "pt_BR.lproj/", "zh-Hans.lproj/", "zh-TW.lproj/", "en_GB.lproj/",
                       "it.lproj", "sv.old.lproj/", "notes.lproj/", "nl/"});
  struct Row {
    std::vector<std::string> languages;
    const char* folder;
  };
  const std::vector<Row> table{
      {{}, ""},
      {{"de"}, "de.lproj"},
      {{"de-AT"}, "de.lproj"},
      {{"pt-BR"}, "pt_BR.lproj"},
      {{"pt"}, "pt_BR.lproj"},
      {{"pt-PT"}, "pt_BR.lproj"},
      {{"zh-TW"}, "zh-TW.lproj"},
      {{"zh-Hans-SG"}, "zh-Hans.lproj"},
      {{"zh"}, "zh-Hans.lproj"},
      {{"fr"}, ""},
      {{"fr", "ja", "de"}, "de.lproj"},
      {{"en"}, ""},
      {{"en-GB"}, "en_GB.lproj"},
      {{"en-US", "de"}, ""},
      {{"fr", "en", "de"}, ""},
      {{"it"}, ""},  // a file of that name is no localisation
      {{"sv"}, ""},
      {{"nl"}, ""},
      {{"d"}, ""},
  };
  for (const Row& row : table) {
    const fs::path expected = bundle.resources() / row.folder;
    EXPECT_TRUE(fs::equivalent(chosenFolder(bundle.root(), row.languages), expected))
        << testing::PrintToString(row.languages);
  }
}

TEST(BundleLookup, FindsALocalisationByName) {
  const Bundle bundle({"pt_BR.lproj/", "zh-Hant.lproj/", "C.lproj/"});
  const auto folder = [&](const char* name) {
    const auto found = localisationFolder(bundle.root(), name);
    return found ? found->filename().string() : std::string();
  };
  EXPECT_EQ(folder("pt_BR"), "pt_BR.lproj");
  EXPECT_EQ(folder("pt-BR"), "pt_BR.lproj");
  EXPECT_EQ(folder("zh_Hant"), "zh-Hant.lproj");
  EXPECT_EQ(folder("C"), "C.lproj");
  for (const char* name : {"pt", "pt_br", "Bundle", "", "..", ".", "../Resources", "pt_BR.lproj/..", "/"}) {
    EXPECT_EQ(folder(name), "") << name;
  }
}

TEST(BundleLookup, FindsFilesOfAFolderAndNoOthers) {
  const Bundle bundle({"rv.asc", "plain", "folder.asc/", "folder.asc/in", "..hidden"});
  const auto find = [&](const char* name, const char* extension) {
    return fileInFolder(bundle.resources(), name, extension);
  };
  EXPECT_EQ(find("rv", "asc"), (bundle.resources() / "rv.asc").string());
  EXPECT_EQ(find("rv.asc", ""), (bundle.resources() / "rv.asc").string());
  EXPECT_EQ(find("plain", ""), (bundle.resources() / "plain").string());
  EXPECT_EQ(find("..hidden", ""), (bundle.resources() / "..hidden").string());
  struct Row {
    const char* name;
    const char* extension;
  };
  for (const Row& row : std::vector<Row>{{"RV", "asc"},
                                         {"rv", "ASC"},
                                         {"rv", ""},
                                         {"folder", "asc"},
                                         {"folder.asc/in", ""},
                                         {"../Resources/rv", "asc"},
                                         {"rv", "x/../asc"},
                                         {"/etc/passwd", ""},
                                         {"", ""},
                                         {"", "."},
                                         {".", ""},
                                         {"..", ""}}) {
    EXPECT_EQ(find(row.name, row.extension), std::nullopt) << row.name << " | " << row.extension;
  }
}

}  // namespace
}  // namespace host
