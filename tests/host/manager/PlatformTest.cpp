// What plug-ins get from the operating system, in buffers of their own.
#include "Platform.h"
#include "ScratchFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <cstdlib>
#include <string>
#include <tuple>

namespace {

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
}

TEST(Platform, NormalFormStaysInItsBuffer) {
  // U+1D15E is longer in its normal form: eight bytes for four.
  const std::string note = "\xF0\x9D\x85\x9E", composed = "\xF0\x9D\x85\x97\xF0\x9D\x85\xA5";
  const std::tuple<std::string, std::size_t, NormalFormResult, std::string> rows[] = {
      {"u\xCC\x88", 4, NormalFormResult::Done, "\xC3\xBC"},
      {"", 1, NormalFormResult::Done, ""},
      {note, 9, NormalFormResult::Done, composed},
      {note, 8, NormalFormResult::TooLong, note},
      {"caf\xE9", 16, NormalFormResult::NotUTF8, "caf\xE9"}};
  for (const auto& [text, size, result, after] : rows) {
    std::array<char, 32> buffer{};
    text.copy(buffer.data(), text.size());
    buffer[size] = 'x';  // what lies behind is not the function's
    EXPECT_EQ(NormalizeFormC(buffer.data(), size), result);
    EXPECT_STREQ(buffer.data(), after.c_str());
    EXPECT_EQ(buffer[size], 'x');
  }
}

TEST(Platform, ResourcesAreFoundByPath) {
  const ScratchFolder scratch;
  const std::string root = scratch.path.string();
  const std::string english = scratch.write("Contents/Resources/rv.asc", "english");
  const std::string german = scratch.write("Contents/Resources/de.lproj/rv.asc", "german");
  EXPECT_TRUE(IsBundle(root.c_str()));
  EXPECT_FALSE(IsBundle(nullptr));
  std::array<char, 512> path{};
  const auto find = [&](const char* extension, const char* localisation) {
    path.fill('\0');
    CopyBundleResourcePath(root.c_str(), "rv", extension, localisation, path.data(), path.size());
    return std::string(path.data());
  };
  setenv("LANGUAGE", "fr:de", 1);
  EXPECT_EQ(find("asc", nullptr), german);
  setenv("LANGUAGE", "fr", 1);
  EXPECT_EQ(find("asc", nullptr), english);
  EXPECT_EQ(find("asc", "de"), german);
  EXPECT_EQ(find("asc", "fr"), "");
  EXPECT_EQ(find(nullptr, nullptr), "");

  path.fill('x');
  EXPECT_FALSE(CopyBundleResourcePath(root.c_str(), "rv", "asc", nullptr, path.data(), english.size()));
  EXPECT_EQ(path[0], 'x');
  EXPECT_TRUE(CopyBundleResourcePath(root.c_str(), "rv", "asc", nullptr, path.data(), english.size() + 1));
  EXPECT_FALSE(CopyBundleResourcePath(root.c_str(), nullptr, "asc", nullptr, path.data(), path.size()));
}

TEST(Platform, TheSharedFolderIsMadeForAllUsers) {
  const ScratchFolder scratch;
  const std::string wanted = scratch.file("all/shared");
  std::array<char, 512> path{"before"};
  setenv("CORVANE_SHARED_DATA", (wanted + "/").c_str(), 1);
  const mode_t mask = umask(077);
  EXPECT_FALSE(FSFindFolder(kLocalDomain, kSharedUserDataFolderType, path.data(), wanted.size()));
  EXPECT_FALSE(FSFindFolder(kLocalDomain, 0, path.data(), path.size()));
  EXPECT_FALSE(FSFindFolder(0, kSharedUserDataFolderType, path.data(), path.size()));
  EXPECT_STREQ(path.data(), "before");
  EXPECT_TRUE(FSFindFolder(kLocalDomain, kSharedUserDataFolderType, path.data(), path.size()));
  umask(mask);
  EXPECT_EQ(path.data(), wanted);
  EXPECT_EQ(std::filesystem::status(wanted).permissions(), std::filesystem::perms::all);
  EXPECT_NE(std::filesystem::status(scratch.path / "all").permissions(), std::filesystem::perms::all);
  setenv("CORVANE_SHARED_DATA", scratch.write("file", "").c_str(), 1);
  EXPECT_FALSE(FSFindFolder(kLocalDomain, kSharedUserDataFolderType, path.data(), path.size()));
  unsetenv("CORVANE_SHARED_DATA");
}

}  // namespace
