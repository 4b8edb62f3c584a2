// Files read through the host.
#include <filesystem>

#include "AIDataFilter.h"
#include "HostFixture.h"
#include "ScratchFolder.h"

namespace {

class DataFilterSuiteTest : public HostFixture {
 protected:
  AIDataFilterHandle newFilter(const std::string& path) {
    AIDataFilterHandle filter = nullptr;
    EXPECT_EQ(filters.NewFileDataFilter(path.c_str(), kAIReadFilterMode, &filter), kNoErr);
    return filter;
  }

  const ScratchFolder scratch;
  const AIDataFilterSuite& filters = ACQUIRE(AIDataFilterSuite);
};

TEST_F(DataFilterSuiteTest, UnlinkingClosesTheFileAndLeavesAStaleHandle) {
  const auto openFiles = [] {
    const std::filesystem::directory_iterator all("/proc/self/fd"), end;
    return std::distance(all, end);
  };
  const auto before = openFiles();
  const AIDataFilterHandle stale = newFilter(scratch.write("data", "abc"));
  ASSERT_EQ(filters.LinkDataFilter(stale), kNoErr);
  EXPECT_EQ(openFiles(), before + 1);
  ASSERT_EQ(filters.UnlinkDataFilter(stale), kNoErr);
  EXPECT_EQ(openFiles(), before);
  for (const AIDataFilterHandle handle : {stale, reinterpret_cast<AIDataFilterHandle>(text("abc"))}) {
    char byte = '?';
    std::size_t count = 1;
    EXPECT_TRUE(each(kBadParameterErr, filters.LinkDataFilter(handle),
                     filters.ReadDataFilter(handle, &byte, &count), filters.UnlinkDataFilter(handle)));
    EXPECT_EQ(count, 0U);
  }
}

}  // namespace
