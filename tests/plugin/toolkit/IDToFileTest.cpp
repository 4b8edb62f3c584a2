#include "IDToFile.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <vector>

namespace {

using qRVADM::IDToFile;

std::string PathOf(const IDToFile& table, int id) {
  const std::string* path = table.Find(id);
  return path != nullptr ? *path : "none";
}

TEST(IDToFileTest, LinesMakeEntries) {
  const struct {
    std::string text;
    int id;
    std::string path;
    std::string doublePath;  // 4000 above
  } cases[] = {
      {"16201.png a.png", 16201, "png/a.png", "png/a@2x.png"},
      {"16201.png a.png\n", 16201, "png/a.png", "png/a@2x.png"},
      {"\r\n\n16201.png a.png", 16201, "png/a.png", "png/a@2x.png"},
      {"7.txt readme", 7, "readme", "readme@2x"},
      {"7.svg a.b.svg", 7, "svg/a.b.svg", "svg/a.b@2x.svg"},
      {"7.svg a.", 7, "/a.", "/a@2x."},
      {"-7.png a.png", -7, "png/a.png", "png/a@2x.png"},
      {"+7.png a.png", 7, "png/a.png", "png/a@2x.png"},
      {"  7. png \t a.png and more", 7, "png/a.png", "png/a@2x.png"},
      {"7.123456789a.png", 7, "png/a.png", "png/a@2x.png"},
      {"7.xmlx a.png", 7, "png/a.png", "png/a@2x.png"},
      {"7.XML a.xml", 7, "xml/a.xml", "xml/a@2x.xml"},
      {"7.png " + std::string(130, 'n'), 7, std::string(127, 'n'), std::string(127, 'n') + "@2x"},
      {"2147483647.png a.png", 2147483647, "png/a.png", "none"},
      {"7.png b/a.png", 7, "png/b/a.png", "png/b/a@2x.png"},

      {"7.xml a.png", 7, "none", "none"},
      {"7.png", 7, "none", "none"},
      {"7.png \n8.png b.png", 7, "none", "none"},
      {"7 .png a.png", 7, "none", "none"},
      {"7,png a.png", 7, "none", "none"},
      {"+-7.png a.png", -7, "none", "none"},
      {"x7.png a.png", 7, "none", "none"},
      {"2147483648.png a.png", -2147483648, "none", "none"},
      {std::string("7.png\0 a.png", 12), 7, "none", "none"},
      {std::string("7.png a\0.png", 12), 7, "a", "a@2x"},
      {"", 0, "none", "none"},
      {".png a.png", 0, "none", "none"},
  };
  for (const auto& c : cases) {
    const IDToFile table(c.text);
    EXPECT_EQ(PathOf(table, c.id), c.path) << c.text;
    if (c.id > 2147483647 - 4000) continue;
    EXPECT_EQ(PathOf(table, c.id + 4000), c.doublePath) << c.text;
  }
}

TEST(IDToFileTest, NamesThatLeadOutMakeNoEntry) {
  const struct {
    std::string name;
    std::string path;
  } cases[] = {
      {"/etc/passwd", "none"},
      {"/a.png", "none"},
      {"../../a.png", "none"},
      {"../../png/a.png", "none"},
      {"..", "none"},
      {"a/../../../b", "none"},
      {"a./../../../b", "none"},
      {"../a.png", "png/../a.png"},  // stays in the resource folder
      {"./a.png", "png/./a.png"},
      {"a..png", "png/a..png"},
      {"b/..a.png", "png/b/..a.png"},
  };
  for (const auto& c : cases) {
    const IDToFile table("7.png " + c.name);
    EXPECT_EQ(PathOf(table, 7), c.path) << c.name;
    EXPECT_EQ(table.Find(4007) == nullptr, c.path == "none") << c.name;
  }
  EXPECT_EQ(PathOf(IDToFile("7.png a.png\n7.png /b.png\n"), 7), "png/a.png")
      << "refused lines replace nothing";
}

TEST(IDToFileTest, LineEndsOfAnyKind) {
  for (const char* end : {"\n", "\r", "\r\n", "\n\n\n", "\r\r\n"}) {
    const std::string e = end;
    const IDToFile table("1.png a.png" + e + "2.png b.png" + e + "junk" + e + "3.xml c.png" + e +
                         "4.png d.png");
    EXPECT_EQ(PathOf(table, 1), "png/a.png");
    EXPECT_EQ(PathOf(table, 2), "png/b.png");
    EXPECT_EQ(PathOf(table, 3), "none");
    EXPECT_EQ(PathOf(table, 4), "png/d.png");
  }
  // As long as there is a CR ahead, the LFs before it are within the line.
  const IDToFile mixed("1.png a.png\n2.png b.png\r3.png c.png\n4.png d.png");
  EXPECT_EQ(PathOf(mixed, 1), "png/a.png");
  EXPECT_EQ(PathOf(mixed, 2), "none");
  EXPECT_EQ(PathOf(mixed, 3), "png/c.png");
  EXPECT_EQ(PathOf(mixed, 4), "png/d.png");
}

TEST(IDToFileTest, LaterLinesReplaceEarlierOnes) {
  const IDToFile table("20201.png own.png\n16201.png a.png\n16202.png b.png\n20202.png own.png\n");
  EXPECT_EQ(PathOf(table, 20201), "png/a@2x.png");
  EXPECT_EQ(PathOf(table, 20202), "png/own.png");
}

// Each of these takes minutes if a line's end is sought through all of the text again and again.
TEST(IDToFileTest, LongTextsTakeOneWalk) {
  std::mt19937 random(1);
  std::string noise(1 << 22, ' '), lines;
  for (char& byte : noise) byte = static_cast<char>(random());
  for (int id = 0; id < 200000; ++id) lines += std::to_string(id) + ".png a.png\n";
  const std::string texts[] = {noise,
                               std::string(1 << 20, 'a'),
                               std::string(1 << 22, '1'),
                               std::string(1 << 22, ' ') + "7.png a.png",
                               std::string(1 << 22, '\n'),
                               "1.png " + std::string(1 << 22, ' ') + "\r",
                               lines,
                               lines + "\r" + lines};
  const auto start = std::chrono::steady_clock::now();
  for (const std::string& text : texts) {
    const IDToFile table(text);
    EXPECT_EQ(table.Find(-5), nullptr);
  }
  EXPECT_EQ(PathOf(IDToFile(lines), 203999), "png/a@2x.png");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(15));
}

}  // namespace
