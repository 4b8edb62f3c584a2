// Which picture of a bundle lies behind an id.
#include "ResourceTable.h"
#include "ScratchFolder.h"

#include <gtest/gtest.h>

namespace host {
namespace {

namespace fs = std::filesystem;

class ResourceTableTest : public testing::Test {
 protected:
  void write(const std::string& file, const std::string& bytes = "picture") {
    folder.write("a.bundle/Contents/Resources/" + file, bytes);
  }
  // The file relative to the resource folder.
  std::string find(int id, ResourceTable::Version version = {}) {
    const auto found = ResourceTable(scratch / "a.bundle").picture(id, version);
    return found ? fs::path(*found).lexically_relative(resources).string() : "none";
  }

  const ScratchFolder folder;
  const fs::path scratch = folder.path;
  const fs::path resources = scratch / "a.bundle/Contents/Resources";
};

TEST_F(ResourceTableTest, TakesTheVersionThatIsThere) {
  EXPECT_EQ(find(16201), "none") << "there is no table yet";
  write("txt/IDToFile.txt",
        "16201.PNG plain.png\n17201.PNG light.png\r\n18201.PNG dark.png\r16203.PNG only.png\n"
        "25001.SVG light.svg\n26001.SVG dark.svg\n");
  for (const char* file : {"png/plain.png", "png/light.png", "png/dark.png", "png/dark@2x.png",
                           "png/only.png", "svg/light.svg", "svg/dark.svg"}) {
    write(file);
  }
  const struct {
    int id;
    ResourceTable::Version version;
    const char* file;
  } table[] = {
      {16201, {false, true}, "png/light.png"},
      {16201, {true, false}, "png/dark.png"},
      {16201, {true, true}, "png/dark@2x.png"},
      {16203, {true, true}, "png/only.png"},
      {17201, {true, false}, "png/light.png"},
      {24001, {true, false}, "svg/dark.svg"},
      {16204, {}, "none"},
  };
  for (const auto& row : table) EXPECT_EQ(find(row.id, row.version), row.file) << row.id;
}

TEST_F(ResourceTableTest, PassesOverLinesThatAreNone) {
  const std::pair<const char*, const char*> table[] = {
      {"  +5.PNG\t a.png junk", "png/a.png"},
      {"5.PNG a.png\n5.PNG b.png", "png/b.png"},
      {"5.PNG a.png\n5.PNG\n5 PNG b.png\n5.PNG \n", "png/a.png"},
      {"5.xml a.png", "none"},
      {"99999999999.PNG a.png\nfive.PNG a.png\n.PNG a.png\n-5.PNG a.png", "none"},
      {"5.PNG missing.png", "none"},
      {"5.PNG png", "none"},
  };
  write("png/a.png");
  write("png/b.png");
  for (const auto& [lines, file] : table) {
    write("txt/IDToFile.txt", lines);
    EXPECT_EQ(find(5), file) << lines;
  }
}

TEST_F(ResourceTableTest, NothingLeadsOutOfTheResources) {
  write("png/a.png");
  const std::string secret = folder.write("secret.png", "picture");
  fs::create_symlink(secret, resources / "png/link.png");
  for (const std::string& name : {std::string("../../../../secret.png"), secret, std::string("link.png")}) {
    write("txt/IDToFile.txt", "5.PNG " + name + "\n6.PNG a.png\n");
    EXPECT_EQ(find(5), "none") << name;
    EXPECT_EQ(find(6), "png/a.png") << name;
  }
}

}  // namespace
}  // namespace host
