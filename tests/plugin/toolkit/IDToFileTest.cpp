#include "IDToFile.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using qRVADM::IDToFile;

std::string PathOf(const IDToFile& table, int id) {
  const std::string* path = table.Find(id);
  return path != nullptr ? *path : "none";
}

TEST(IDToFileTest, LinesMakeTwoEntriesEach) {
  const struct {
    std::string text, path, doublePath;  // of 7, and 4000 above
  } cases[] = {
      {"\r\n\n7.png a.png\n", "png/a.png", "png/a@2x.png"},
      {"  +7. png \t a.b.png and more", "png/a.b.png", "png/a.b@2x.png"},
      {"7.t " + std::string(130, 'n'), std::string(127, 'n'), std::string(127, 'n') + "@2x"},
      {std::string("7.png a\0.png", 12), "a", "a@2x"},
      {"7.png ../a.png", "png/../a.png", "png/../a@2x.png"},  // stays in the resource folder
      {"junk\r\r\n7.png a.png\r8.t c", "png/a.png", "png/a@2x.png"},
      {"8.t c\n9.t d\r10.t e\n7.png a.png", "png/a.png", "png/a@2x.png"},
      {"7.png a.png\n7.png /b.png", "png/a.png", "png/a@2x.png"},
      {"4007.png own.png\n7.png a.png", "png/a.png", "png/a@2x.png"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(PathOf(IDToFile(c.text), 7), c.path) << c.text;
    EXPECT_EQ(PathOf(IDToFile(c.text), 4007), c.doublePath) << c.text;
  }
}

// The last is all one line: as long as there is a CR ahead, the LFs before it are within the line.
TEST(IDToFileTest, OtherLinesAndNamesThatLeadOutMakeNone) {
  for (const char* text : {"", ".png a.png", "7.png", "7.png \n8.png b.png", "7 .png a.png", "7.xml a.png",
                           "+-7.png a.png", "x7.png a.png", "7.png /a.png", "7.png ../../png/a.png",
                           "7.png ..", "7.png a/../../../b", "7.png a./../../../b", "8.t c\n7.t d\r"}) {
    for (const int id : {7, 4007, -7, 0}) EXPECT_EQ(PathOf(IDToFile(text), id), "none") << text;
  }
}

}  // namespace
