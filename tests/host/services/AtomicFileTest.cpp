#include "AtomicFile.h"
#include "ScratchFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace host {
namespace {

namespace fs = std::filesystem;

// A folder of its own for each test.
class AtomicFile : public testing::Test {
 protected:
  fs::path at(const std::string& name) const { return scratch_.path / name; }
  static std::string content(const fs::path& path) {
    std::string reason;
    const auto bytes = readFile(path, &reason);
    return bytes ? *bytes : "error: " + reason;
  }
  static mode_t modeOf(const fs::path& path) {
    struct stat status {};
    ::stat(path.c_str(), &status);
    return status.st_mode & 07777;
  }

  const ScratchFolder scratch_;
};

TEST_F(AtomicFile, WritesAndReadsAnyBytes) {
  for (const std::string& bytes : {std::string(), std::string("a\0b\r\n", 5), std::string(300000, '\xFF')}) {
    EXPECT_EQ(replaceFile(at("f"), bytes), "");
    EXPECT_TRUE(content(at("f")) == bytes) << bytes.size();
  }
  EXPECT_EQ(scratch_.count(), 1U);
  EXPECT_NE(content("/proc/self/status").find("Umask"), std::string::npos) << "a file without a size";
}

TEST_F(AtomicFile, GivesNewFilesTheUsualModeAndLeavesOldOnesTheirs) {
  const mode_t before = ::umask(0027);
  EXPECT_EQ(replaceFile(at("new"), "1"), "");
  ::umask(before);
  EXPECT_EQ(modeOf(at("new")), 0640U);
  ::chmod(at("new").c_str(), 0604);
  EXPECT_EQ(replaceFile(at("new"), "2"), "");
  EXPECT_EQ(modeOf(at("new")), 0604U);
}

TEST_F(AtomicFile, ReplacesWhatALinkLeadsTo) {
  scratch_.write("sub/target", "1");
  fs::create_symlink("sub/target", at("link"));
  fs::create_symlink("link", at("second"));
  fs::create_symlink("sub/later", at("dangling"));
  EXPECT_EQ(replaceFile(at("second"), "2"), "");
  EXPECT_EQ(replaceFile(at("dangling"), "3"), "");
  EXPECT_TRUE(fs::is_symlink(at("second")));
  EXPECT_EQ(content(at("sub/target")), "2");
  EXPECT_EQ(content(at("sub/later")), "3");
}

TEST_F(AtomicFile, SaysWhyAFileCannotBeReplacedAndLeavesNothing) {
  fs::create_directory(at("folder"));
  fs::create_symlink("b", at("a"));
  fs::create_symlink("a", at("b"));
  EXPECT_EQ(replaceFile(at("folder"), "1"), "it is a folder");
  EXPECT_EQ(replaceFile(at("missing/f"), "1"), "its folder is not there");
  EXPECT_EQ(replaceFile(at("a"), "1"), "its links lead in a circle");
  EXPECT_EQ(replaceFile(at(std::string(300, 'n')), "1"), "its name is too long");
  EXPECT_EQ(replaceFile(at("folder/" + std::string(255, 'n')), "1"), "") << "no room for another name";
  EXPECT_EQ(replaceFile("/dev/full", "1"), "the disk is full");
  EXPECT_EQ(scratch_.count(), 3U);
}

TEST_F(AtomicFile, SaysWhyAFileCannotBeRead) {
  EXPECT_EQ(content(at("missing")), "error: there is no such file");
  EXPECT_EQ(content(scratch_.path), "error: it is a folder");
  scratch_.write("f", "12345");
  std::string reason;
  EXPECT_TRUE(readFile(at("f"), nullptr, 5));
  EXPECT_FALSE(readFile(at("f"), &reason, 4));
  EXPECT_EQ(reason, "the file is too large");
  EXPECT_FALSE(readFile("/dev/zero", nullptr, 1000000));
}

}  // namespace
}  // namespace host
