// What a text file says, and what is said about a bad one.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "Listing.h"
#include "RDB_LoadText.h"
#include "ScratchFolder.h"

namespace {

using namespace std::string_view_literals;

struct Loaded {
  std::string listing;
  std::string message;  // on standard error
  int error;
};

Loaded Load(std::string_view text) {
  const RDB_Handle db = RDB_Create();
  RDB_Reader reader(text.data(), text.size());
  testing::internal::CaptureStderr();
  RDB_ReadText(*db, reader, "some.asc");
  const int error = rdbError;
  return {Listing(db.get()), testing::internal::GetCapturedStderr(), error};
}

struct SoundCase {
  std::string_view text;
  const char* listing;
};

void ExpectSound(const SoundCase& row) {
  const Loaded loaded = Load(row.text);
  EXPECT_EQ(loaded.listing, row.listing) << row.text;
  EXPECT_EQ(loaded.message, "") << row.text;
  EXPECT_EQ(loaded.error, kRDBNoError) << row.text;
}

TEST(TextForm, HoldsEntries) {
  const SoundCase cases[] = {
      {"", ""},
      {" \n\t\r\0"sv, ""},
      {"Date.Months.Long.1 : \"January\"", "Date/Months/Long/1=January"},
      {R"("Some sentence\." = "Ein Satz.")", "Some sentence.=Ein Satz."},
      {"k:v", "k=v"},
      {"k\n=\r\n v", "k=v"},
      {"k : v\nk : w", "k=w"},
      {"key : \"x\" y : \"z\"", "y=z, key=x"},
      {"\xC3\x9C : \"\xFF\xFE\"", "\xC3\x9C=\xFF\xFE"},
      {"k :", ""},
      {": v", "=v"},
      {"*.a : s\n..b : d", "<*>/a=s, <.>/b=d"},
  };
  for (const SoundCase& row : cases) ExpectSound(row);
}

TEST(TextForm, SkipsCommentsInFrontOfTokens) {
  const SoundCase cases[] = {
      {"# one\n; two\r/* three\n : */ k : v", "k=v"},
      {"k : # why\n v", "k=v"},
      {"k : v ; some words\nl : w", "k=v, l=w"},
      {"/* a /* b */ k : v", "k=v"},
      {"/**/k:v", "k=v"},
      {"/***/k:v", "k=v"},
      {"/*/ */k:v", "k=v"},
      {"/a : v", "/a=v"},
      {"# only", ""},
      {"/* open", ""},
  };
  for (const SoundCase& row : cases) ExpectSound(row);
}

TEST(TextForm, TokensRunToTheirEnd) {
  const SoundCase cases[] = {
      {R"(k : ab"c d"e)", "k=abc de"},
      {R"(k : "")", "k="},
      {R"(k : "a:b=c + /* # ; d")", "k=a:b=c + /* # ; d"},
      {"k : \"two\nlines\"", "k=two\nlines"},
      {"k : \"Hello", "k=Hello"},
      {"k : \"first \"+\n\t \"second\"", "k=first second"},
      {"k : a+b", "k=ab"},
      {"k : a+ b+", "k=ab"},
      {"k : +a", "k=a"},
      {"k : a+\n:b", "=b, k=a"},
      {"k : a/* b : c */d", "k=ad"},
      {"k : a/b//c", "k=a/b//c"},
      {"k : a/* open", "k=a"},
      {"k : v;some\nl : w", "k=v, l=w"},
      {"k : v#\"a\\:w", "=w, k=v"},
      {"key : a=b", "=b, key=a"},
      {"k :: v", "=v, k="},
  };
  for (const SoundCase& row : cases) ExpectSound(row);
}

TEST(TextForm, ResolvesEscapes) {
  const SoundCase cases[] = {
      {R"(k : a\nb\tc\rd)", "k=a\nb\tc\rd"},
      {R"(k : "a\n\"\\\q")", "k=a\n\"\\q"},
      {R"(k : \101\7\1234567\08)", "k=A\x07w"},
      {R"(k : \060x\400y)", "k=0x"},
      {"k : a\\\nb\\ c\\:d\\+e\\#f\\/*g", "k=a\nb c:d+e#f/*g"},
      {"k : a\\", "k=a"},
      {R"(a\.b.c\*\" : v)", "a.b/c*\"=v"},
      {R"(a\nb\\c : v)", "a\nb\\c=v"},
      {R"(\101\056b : v)", "A.b=v"},
      {R"(a\0b : v)", "a=v"},
  };
  for (const SoundCase& row : cases) ExpectSound(row);
}

struct BadCase {
  std::string_view text;
  const char* listing;
  int line;  // 0: nothing is said
};

TEST(TextForm, TellsWhereASeparatorIsMissing) {
  const BadCase cases[] = {
      {"a : b\n\nk v", "a=b", 3},
      {"k : \"ab\" + \"cd\" x", "k=ab", 1},
      {"k : v;some words\nl : w", "k=v", 2},
      {"\"two\nlines\" : a\\\nb\n/*\n*/ #\nx\n\ny", "two\nlines=a\nb", 8},
      {"k : v\nkey", "k=v", 0},
      {"k : v\nkey \n", "k=v", 0},
  };
  for (const BadCase& row : cases) {
    const Loaded loaded = Load(row.text);
    EXPECT_EQ(loaded.listing, row.listing) << row.text;
    EXPECT_EQ(loaded.error, kRDBBadFile) << row.text;
    const std::string line = std::to_string(row.line);
    EXPECT_EQ(loaded.message,
              row.line > 0 ? "No ':' separator detected in file some.asc at line " + line + ".\n" : "")
        << row.text;
  }
}

TEST(TextForm, IsReadFromFiles) {
  const ScratchFolder scratch;
  const RDB_Handle db = RDB_Create();
  RDB_LoadText(db.get(), scratch.write("base.asc", "a : 1\nb : 2").c_str());
  RDB_LoadText(db.get(), scratch.write("local.asc", "b : 3\nc : 4").c_str());
  EXPECT_EQ(Listing(db.get()), "a=1, b=3, c=4");
  EXPECT_EQ(rdbError, kRDBNoError);
}

// Everything that looks one byte ahead or goes one back, at every place around the edge of a buffer.
TEST(TextForm, ReadsTheSameAcrossBuffers) {
  constexpr std::size_t kAroundBuffer = 64 * 1024 - 40;
  const ScratchFolder scratch;
  for (std::size_t blanks = kAroundBuffer; blanks < kAroundBuffer + 44; ++blanks) {
    const std::string text = std::string(blanks, ' ') + R"(/**/ /k : a\101/b/* */+ c=d#e)";
    const RDB_Handle db = RDB_Create();
    RDB_LoadText(db.get(), scratch.write("file.asc", text).c_str());
    EXPECT_EQ(Listing(db.get()), "=d, /k=aA/bc") << blanks;
  }
}

TEST(TextForm, CountsLinesOfLongFiles) {
  const ScratchFolder scratch;
  std::string text;
  for (int line = 1; line < 50000; ++line) text += "\"k\" : v\n";
  const std::string path = scratch.write("long.asc", text + "no separator\n" + text);
  const RDB_Handle db = RDB_Create();
  testing::internal::CaptureStderr();
  RDB_LoadText(db.get(), path.c_str());
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "No ':' separator detected in file " + path + " at line 50000.\n");
}

TEST(TextForm, OpensRegularFilesOnly) {
  const ScratchFolder scratch;
  const RDB_Handle db = RDB_Create();
  const std::string paths[] = {scratch.path.string(), (scratch.path / "none.asc").string(), "", "/dev/zero"};
  testing::internal::CaptureStderr();
  for (const std::string& path : paths) {
    RDB_LoadText(db.get(), path.c_str());
    EXPECT_EQ(rdbError, kRDBBadFile) << path;
    rdbError = kRDBNoError;
    EXPECT_EQ(RDB_LoadCompiled(path.c_str()), nullptr);
    EXPECT_EQ(rdbError, kRDBBadFile) << path;
  }
  RDB_LoadText(db.get(), nullptr);
  EXPECT_EQ(rdbError, kRDBBadFile);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

// The first page of a process's memory cannot be read, though its file can be opened.
TEST(TextForm, TellsAReadError) {
  constexpr char kUnreadable[] = "/proc/self/mem";
  const RDB_Handle db = RDB_Create();
  testing::internal::CaptureStderr();
  RDB_LoadText(db.get(), kUnreadable);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Premature END-OF-FILE detected in file /proc/self/mem at line 1.\n");
  EXPECT_EQ(rdbError, kRDBBadFile);
}

}  // namespace
