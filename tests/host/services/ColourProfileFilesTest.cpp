#include "ColourProfileFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "ScratchFolder.h"
#include "Variable.h"

namespace host {
namespace {

namespace fs = std::filesystem;
using Paths = std::vector<fs::path>;

TEST(ColourProfileFolders, FollowTheBaseDirectories) {
  const struct {
    const char *home, *data, *shared;
    Paths expected;
  } cases[] = {
      {"/h", "/d", "/s:/t", {"/d/color/icc", "/h/.color/icc", "/s/color/icc", "/t/color/icc"}},
      {"/h", "data", "s::/t:", {"/h/.local/share/color/icc", "/h/.color/icc", "/t/color/icc"}},
      {nullptr, nullptr, nullptr, {"/usr/local/share/color/icc", "/usr/share/color/icc"}},
  };
  for (const auto& c : cases) {
    const Variable home("HOME", c.home), data("XDG_DATA_HOME", c.data), shared("XDG_DATA_DIRS", c.shared);
    EXPECT_EQ(colourProfileFolders(), c.expected);
  }
}

std::string head(const std::string& kind) {
  return std::string(12, 'x') + kind;
}

TEST(CmykProfileFiles, AreToldByTheirHeadInAnOrderOfTheirOwn) {
  const ScratchFolder first;
  const ScratchFolder second;
  const fs::path late = first.write("z.icc", head("prtrCMYK"));
  const fs::path early = first.write("b/deep/er.icm", head("prtrCMYK") + "more");
  const fs::path other = second.write("a.icc", head("prtrCMYK"));
  first.write("screen.icc", head("mntrRGB "));

  first.write("short.icc", head("prtrCMY"));
  ASSERT_EQ(mkfifo((first.path / "fifo.icc").c_str(), 0600), 0);  // opening it would wait for ever
  fs::create_directory_symlink(first.path, first.path / "loop");
  EXPECT_EQ(cmykProfileFiles({first.path, "/nonexistent", second.path}), (Paths{early, late, other}));
}

TEST(ReadColourProfile, GivesNothingOfWhatIsNoneOrHuge) {
  const ScratchFolder folder;
  EXPECT_EQ(readColourProfile(folder.path / "missing.icc"), std::nullopt);
  EXPECT_EQ(readColourProfile(folder.path), std::nullopt);
  const fs::path huge = folder.write("huge.icc", "");
  fs::resize_file(huge, 65U << 20);
  EXPECT_EQ(readColourProfile(huge), std::nullopt);
}

}  // namespace
}  // namespace host
