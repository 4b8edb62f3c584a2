#include "LoadResource.h"

#include <sys/stat.h>

#include <cstdlib>
#include <limits>

#include "HasBrightnessVersions.h"
#include "HostObjects.h"
#include "ToolkitTest.h"

namespace {

using qRVADM::HasBrightnessVersions;
using qRVADM::LoadResource;

class LoadResourceTest : public ToolkitTest {
 protected:
  // "nothing" for 0 bytes; a pointer that 0 came with is left over for the leak checker.
  std::string Load(int id) {
    char unwritten = '?';
    char* data = &unwritten;
    const int size = LoadResource(record.handle, id, &data);
    if (size == 0) {
      EXPECT_EQ(data, nullptr) << id;
      return "nothing";
    }
    std::string bytes(data, static_cast<std::size_t>(size));
    std::free(data);
    return bytes;
  }
  bool IsThere(int id) { return LoadResource(record.handle, id, nullptr) == 1; }
  void Link(const std::string& to, const std::string& name) const {
    std::filesystem::remove(bundle.resources / name);
    std::filesystem::create_symlink(to, bundle.resources / name);
  }
};

TEST_F(LoadResourceTest, GivesAllBytes) {
  for (const std::size_t size : {1U, 16383U, 16384U, 16385U, 100000U}) {
    std::string bytes(size, ' ');
    for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>(i * 31);
    bundle.Write("data1", bytes);
    EXPECT_TRUE(Load(1) == bytes) << size;
    EXPECT_TRUE(IsThere(1));
  }
  EXPECT_EQ(host.objects().dataFilters.size(), 0U);
}

TEST_F(LoadResourceTest, WhatIsNotThereGivesNothing) {
  bundle.Write("data2", "");
  std::filesystem::create_directories(bundle.resources / "data3");
  ASSERT_EQ(mkfifo((bundle.resources / "data4").c_str(), 0600), 0);
  const struct {
    int id;
    bool opens;
    const char* what;
  } cases[] = {
      {2, true, "empty"},       {3, false, "a folder"},    {4, false, "a pipe"},
      {5, false, "no file"},    {100, false, "no entry"},  {-1, false, "no entry"},
      {4005, false, "no file"}, {23000, false, "no file"}, {std::numeric_limits<int>::max(), false, ""}};
  for (const auto& c : cases) {
    EXPECT_EQ(Load(c.id), "nothing") << c.what;
    EXPECT_EQ(IsThere(c.id), c.opens) << c.what;
  }
  EXPECT_EQ(host.objects().dataFilters.size(), 0U);
}

TEST_F(LoadResourceTest, LinksStayInTheFolder) {
  bundle.Write("data10", "inside");
  std::ofstream(bundle.root / "secret") << "outside";
  std::filesystem::create_directories(bundle.root / "Test.bundle/Contents/Resources2");
  std::ofstream(bundle.root / "Test.bundle/Contents/Resources2/data") << "beside";
  Link("data10", "data11");
  Link((bundle.root / "secret").string(), "data12");
  Link("../../../secret", "data13");
  Link("/dev/zero", "data14");
  Link("data15", "data15");
  Link("../Resources2/data", "data16");
  EXPECT_EQ(Load(11), "inside");
  for (const int id : {12, 13, 14, 15, 16}) {
    EXPECT_EQ(Load(id), "nothing") << id;
    EXPECT_FALSE(IsThere(id)) << id;
  }
}

TEST_F(LoadResourceTest, RefusalsGiveNothing) {
  bundle.Write("data20", std::string(40000, 'x'));
  for (const char* entry : {"SP Plug-ins Suite:GetPluginFileSpecification", "AI File Path Suite:New",
                            "AI File Path Suite:SetFromFileReference", "AI File Path Suite:GetFullPath",
                            "AI Unicode String Suite:GetBytes", "AI Data Filter Suite:NewFileDataFilter",
                            "AI Data Filter Suite:LinkDataFilter", "AI Data Filter Suite:ReadDataFilter"}) {
    ASSERT_EQ(host.refusal().add(entry), "");
    EXPECT_EQ(Load(20), "nothing") << entry;
    host.refusal().clear();
  }
  ASSERT_EQ(host.refusal().add("AI Data Filter Suite:ReadDataFilter:3"), "");
  EXPECT_EQ(Load(20).size(), 2U * 16384) << "what came before the failure";
  host.refusal().clear();
  EXPECT_EQ(Load(20).size(), 40000U);
  EXPECT_EQ(host.objects().dataFilters.size(), 0U);
  EXPECT_EQ(LoadResource(nullptr, 20, nullptr), 0);
}

TEST_F(LoadResourceTest, BrightnessVersionsNeedBothFiles) {
  for (const char* file : {"p17300", "p17301", "p18301", "p18302"}) {
    bundle.Write(std::string("png/") + file + ".png", "x");
  }
  EXPECT_FALSE(HasBrightnessVersions(record.handle, 16300)) << "light alone";
  EXPECT_TRUE(HasBrightnessVersions(record.handle, 16301));
  EXPECT_FALSE(HasBrightnessVersions(record.handle, 16302)) << "dark alone";
  EXPECT_FALSE(HasBrightnessVersions(record.handle, 16303));
  EXPECT_FALSE(HasBrightnessVersions(record.handle, std::numeric_limits<int>::max()));
}

}  // namespace
