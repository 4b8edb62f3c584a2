// What plug-ins get from the operating system, in buffers of their own.
#include "Platform.h"
#include "ScratchFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

namespace fs = std::filesystem;

TEST(Platform, LanguageIsCopiedIfItFits) {
  setenv("LANGUAGE", "pt_BR:de", 1);
  std::array<char, 16> tag{"before"};
  EXPECT_FALSE(CopyPreferredLanguage(tag.data(), 5));
  EXPECT_STREQ(tag.data(), "before");
  EXPECT_FALSE(CopyPreferredLanguage(nullptr, 16));
  EXPECT_TRUE(CopyPreferredLanguage(tag.data(), 6));
  EXPECT_STREQ(tag.data(), "pt-BR");
  setenv("LANGUAGE", "C", 1);
  EXPECT_FALSE(CopyPreferredLanguage(tag.data(), tag.size()));
  EXPECT_STREQ(tag.data(), "pt-BR");
}

TEST(Platform, NormalFormStaysInItsBuffer) {
  struct Row {
    std::string text;
    std::size_t size;
    NormalFormResult result;
    std::string after;
  };
  // U+1D15E is longer in its normal form: eight bytes for four.
  const std::string note = "\xF0\x9D\x85\x9E";
  const std::string composed = "\xF0\x9D\x85\x97\xF0\x9D\x85\xA5";
  for (const Row& row :
       {Row{"u\xCC\x88", 4, NormalFormResult::Done, "\xC3\xBC"},
        Row{note, 9, NormalFormResult::Done, composed}, Row{note, 8, NormalFormResult::TooLong, note},
        Row{"caf\xE9", 16, NormalFormResult::NotUTF8, "caf\xE9"}, Row{"", 1, NormalFormResult::Done, ""}}) {
    std::array<char, 32> buffer{};
    row.text.copy(buffer.data(), row.text.size());
    buffer[row.size] = 'x';  // what lies behind is not the function's
    EXPECT_EQ(NormalizeFormC(buffer.data(), row.size), row.result);
    EXPECT_STREQ(buffer.data(), row.after.c_str());
    EXPECT_EQ(buffer[row.size], 'x');
  }
}

TEST(Platform, ResourcesAreFoundByPath) {
  const ScratchFolder scratch;
  const fs::path& root = scratch.path;
  const fs::path resources = root / "Contents" / "Resources";
  fs::create_directories(resources / "de.lproj");
  std::ofstream(resources / "rv.asc") << "english";
  std::ofstream(resources / "de.lproj" / "rv.asc") << "german";

  EXPECT_TRUE(IsBundle(root.c_str()));
  EXPECT_FALSE(IsBundle(nullptr));
  std::array<char, 512> path{};
  const auto find = [&](const char* extension, const char* localisation) {
    path.fill('\0');
    CopyBundleResourcePath(root.c_str(), "rv", extension, localisation, path.data(), path.size());
    return std::string(path.data());
  };
  setenv("LANGUAGE", "fr:de", 1);
  EXPECT_EQ(find("asc", nullptr), (resources / "de.lproj" / "rv.asc").string());
  setenv("LANGUAGE", "fr", 1);
  EXPECT_EQ(find("asc", nullptr), (resources / "rv.asc").string());
  EXPECT_EQ(find("asc", "de"), (resources / "de.lproj" / "rv.asc").string());
  EXPECT_EQ(find("asc", "fr"), "");
  EXPECT_EQ(find(nullptr, nullptr), "");

  const std::size_t length = (resources / "rv.asc").string().size();
  path.fill('x');
  EXPECT_FALSE(CopyBundleResourcePath(root.c_str(), "rv", "asc", nullptr, path.data(), length));
  EXPECT_EQ(path[0], 'x');
  EXPECT_TRUE(CopyBundleResourcePath(root.c_str(), "rv", "asc", nullptr, path.data(), length + 1));
  EXPECT_FALSE(CopyBundleResourcePath(nullptr, "rv", "asc", nullptr, path.data(), path.size()));
  EXPECT_FALSE(CopyBundleResourcePath(root.c_str(), nullptr, "asc", nullptr, path.data(), path.size()));
}

}  // namespace
