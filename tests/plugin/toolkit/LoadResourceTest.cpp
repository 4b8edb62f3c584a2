#include "LoadResource.h"

#include <sys/stat.h>

#include <cstdlib>
#include <limits>

#include "HasBrightnessVersions.h"
#include "HostObjects.h"
#include "ToolkitTest.h"

namespace {

using qRVADM::LoadResource;

class LoadResourceTest : public ToolkitTest {
 protected:
  ~LoadResourceTest() override { EXPECT_EQ(host.objects().dataFilters.size(), 0U); }

  // A pointer that 0 came with is left over for the leak checker.
  std::string Load(int id) {
    char unwritten = '?', *data = &unwritten;
    const int size = LoadResource(record.handle, id, &data);
    EXPECT_EQ(data == nullptr, size == 0) << id;
    std::string bytes(data != nullptr ? data : "", static_cast<std::size_t>(size));
    std::free(data);
    return bytes;
  }
  bool IsThere(int id) { return LoadResource(record.handle, id, nullptr) == 1; }
};

TEST_F(LoadResourceTest, GivesAllBytes) {
  for (const std::size_t size : {1U, 16384U, 100000U}) {
    std::string bytes(size, ' ');
    for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>(i * 31);
    bundle.Write("data1", bytes);
    EXPECT_TRUE(Load(1) == bytes) << size;
  }
}

TEST_F(LoadResourceTest, WhatIsNotThereGivesNothing) {
  bundle.Write("data2", "");
  std::filesystem::create_directories(bundle.resources / "data3");
  ASSERT_EQ(mkfifo((bundle.resources / "data4").c_str(), 0600), 0);
  for (const int id : {2, 3, 4, 5, 100, -1, 4005, std::numeric_limits<int>::max()}) {
    EXPECT_EQ(Load(id), "") << id;
    EXPECT_EQ(IsThere(id), id == 2) << id;
  }
}

TEST_F(LoadResourceTest, LinksStayInTheFolder) {
  bundle.Write("data10", "inside");
  bundle.Write("../Resources2/data", "beside");
  int id = 11;
  for (const char* to : {"data10", "/dev/zero", "../Resources2/data", "data14"}) {
    std::filesystem::create_symlink(to, bundle.resources / ("data" + std::to_string(id)));
    EXPECT_EQ(Load(id), id == 11 ? "inside" : "") << to;
    EXPECT_EQ(IsThere(id++), to == std::string("data10")) << to;
  }
}

TEST_F(LoadResourceTest, BrightnessVersionsNeedBothFiles) {
  for (const int id : {17300, 17301, 18301, 18302}) bundle.Write("png/p" + std::to_string(id) + ".png", "x");
  for (const int id : {16300, 16301, 16302, 16303, std::numeric_limits<int>::max()}) {
    EXPECT_EQ(qRVADM::HasBrightnessVersions(record.handle, id), id == 16301) << id;
  }
}

}  // namespace
