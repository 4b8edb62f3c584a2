// Files read through the host.
#include <sys/stat.h>

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
  // Reads to the end, `chunk` bytes at a time.
  std::string readAll(AIDataFilterHandle filter, std::size_t chunk) {
    std::string all, buffer(chunk, ' ');
    for (std::size_t got = chunk; got == chunk; all.append(buffer, 0, got)) {
      EXPECT_EQ(filters.ReadDataFilter(filter, buffer.data(), &got), kNoErr);
    }
    return all;
  }

  const ScratchFolder scratch;
  const AIDataFilterSuite& filters = ACQUIRE(AIDataFilterSuite);
};

TEST_F(DataFilterSuiteTest, ReadsTheFilePieceByPiece) {
  std::string bytes(10000, ' ');
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 7);
  const std::string path = scratch.write("data", bytes);
  for (const std::size_t chunk : {1U, 9999U, 10000U, 10001U}) {
    const AIDataFilterHandle filter = newFilter(path);
    ASSERT_EQ(filters.LinkDataFilter(filter), kNoErr);
    EXPECT_TRUE(readAll(filter, chunk) == bytes) << chunk;
    EXPECT_EQ(readAll(filter, 1), "") << "behind the end";
    EXPECT_EQ(filters.UnlinkDataFilter(filter), kNoErr);
  }
}

TEST_F(DataFilterSuiteTest, OnlyRegularFilesCanBeLinked) {
  const std::string pipe = scratch.file("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& path : {scratch.file("missing"), scratch.path.string(), pipe, std::string()}) {
    const AIDataFilterHandle filter = newFilter(path);
    EXPECT_EQ(filters.LinkDataFilter(filter), kNoSuchItemErr) << path;
    EXPECT_EQ(filters.UnlinkDataFilter(filter), kNoErr) << path;
  }
}

TEST_F(DataFilterSuiteTest, WrongArgumentsGiveCodes) {
  const std::string path = scratch.write("data", "abc");
  AIDataFilterHandle filter = newFilter(path);
  EXPECT_EQ(filters.NewFileDataFilter(path.c_str(), "write", &filter), kSPUnsupportedError);
  EXPECT_EQ(filter, nullptr);
  EXPECT_TRUE(each(kBadParameterErr, filters.NewFileDataFilter(nullptr, "read", &filter),
                   filters.NewFileDataFilter(path.c_str(), nullptr, &filter),
                   filters.NewFileDataFilter(path.c_str(), "read", nullptr)));
  filter = newFilter(path);
  char byte = '?';
  std::size_t count = 1;
  EXPECT_EQ(filters.ReadDataFilter(filter, &byte, &count), kBadParameterErr) << "not linked yet";
  EXPECT_EQ(count, 0U);
  ASSERT_EQ(filters.LinkDataFilter(filter), kNoErr);
  EXPECT_EQ(filters.LinkDataFilter(filter), kBadParameterErr) << "linked already";
  EXPECT_EQ(filters.ReadDataFilter(filter, &byte, nullptr), kBadParameterErr);
  EXPECT_EQ(filters.ReadDataFilter(filter, nullptr, &(count = 1)), kBadParameterErr);
  EXPECT_EQ(readAll(filter, 8), "abc") << "untouched by the failures";
}

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
