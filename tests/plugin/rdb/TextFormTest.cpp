// What a text file says, and what is said about a bad one.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "Listing.h"
#include "ScratchFolder.h"

namespace {

struct Case {
  std::string_view text;
  const char* listing;
  int badLine = -1;  // where a separator is missing; 0: nothing is said, -1: nothing is wrong
};

TEST(TextForm, HoldsKeysAndTextsUpToAMissingSeparator) {
  const Case cases[] = {
      {std::string_view(" \n\t\r\0", 5), ""},
      {"Date.Months.1 : \"January\" k\n=\r\n v k:w", "k=w, Date/Months/1=January"},
      {R"("Some sentence\." = "Ein Satz.")", "Some sentence.=Ein Satz."},
      {"\xC3\x9C : \"\xFF\xFE\" k :", "\xC3\x9C=\xFF\xFE"},
      // Comments stand in front of tokens and end them.
      {"# one\n; two\r/* three\n : */ k : # four\n v", "k=v"},
      {"/* a /* b *//***//*/ */k:v", "k=v"},
      {"/a : b/c//d/* e : f */g", "/a=b/c//dg"},
      {"k : v;some\nl : w /* open", "k=v, l=w"},
      // Quotes and joints.
      {R"(k : ab"c d"e"a:b=c + /* # ; d")", "k=abc dea:b=c + /* # ; d"},
      {"k : \"first \"+\n\t \"second\"+", "k=first second"},
      {"k : +a+\n:b", "=b, k=a"},
      {"k :: v", "=v, k="},
      // Escapes.
      {R"(k : "a\nb\tc\r\"\\\q")", "k=a\nb\tc\r\"\\q"},
      {R"(k : \1234567\060x\400y)", "k=w0x"},
      {"k : a\\\nb\\ c\\:d\\+e\\#f\\/*g\\", "k=a\nb c:d+e#f/*g"},
      {R"(a\.b.c*\"\nd\\\101\056 : v)", "a.b/c*\"\nd\\A.=v"},
      // Faults.
      {"a : b\n\nk v", "a=b", 3},
      {"\"two\nlines\" : a\\\nb\n/*\n*/ #\nx\n\ny", "two\nlines=a\nb", 8},
      {"k : v\nkey \n", "k=v", 0},
  };
  for (const Case& row : cases) {
    testing::internal::CaptureStderr();
    const RDB_Handle db = DatabaseOf(row.text);
    EXPECT_EQ(rdbError, row.badLine < 0 ? kRDBNoError : kRDBBadFile) << row.text;
    EXPECT_EQ(Listing(db.get()), row.listing) << row.text;
    const std::string line = std::to_string(row.badLine);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              row.badLine > 0 ? "No ':' separator detected in file some.asc at line " + line + ".\n" : "");
  }
}

// Everything that looks one byte ahead or goes one back, at every place around the edge of a buffer.
TEST(TextForm, ReadsTheSameAcrossBuffers) {
  const ScratchFolder scratch;
  for (std::size_t blanks = 64 * 1024 - 40; blanks < 64 * 1024 + 4; ++blanks) {
    const std::string text = std::string(blanks, ' ') + R"(/**/ /k : a\101/b/* */+ c=d#e)";
    const RDB_Handle db = RDB_Create();
    RDB_LoadText(db.get(), scratch.write("file.asc", text).c_str());
    EXPECT_EQ(Listing(db.get()), "=d, /k=aA/bc") << blanks;
  }
}

// The first page of a process's memory cannot be read, though its file can be opened.
TEST(TextForm, IsReadFromRegularFilesOnly) {
  const RDB_Handle db = RDB_Create();
  testing::internal::CaptureStderr();
  for (const char* const path :
       {"/", "/none.asc", "", "/dev/zero", "/proc/self/mem", static_cast<const char*>(nullptr)}) {
    RDB_LoadText(db.get(), path);
    EXPECT_EQ(rdbError, kRDBBadFile) << path;
    rdbError = kRDBNoError;
    EXPECT_EQ(RDB_LoadCompiled(path), nullptr);
    EXPECT_EQ(rdbError, kRDBBadFile) << path;
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Premature END-OF-FILE detected in file /proc/self/mem at line 1.\n");
}

}  // namespace
