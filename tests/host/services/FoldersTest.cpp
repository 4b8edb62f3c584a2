#include "Folders.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

// Sets a variable and puts the former value back.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) {
    const char* former = std::getenv(name);
    had_ = former != nullptr;
    if (had_) former_ = former;
    setenv(name, value, 1);
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() {
    if (had_) {
      setenv(name_, former_.c_str(), 1);
    } else {
      unsetenv(name_);
    }
  }

 private:
  const char* name_;
  std::string former_;
  bool had_;
};

TEST(Folders, FollowTheBaseDirectories) {
  const Variable home("HOME", "/home/maria");
  const Variable config("XDG_CONFIG_HOME", "/srv/settings");
  const Variable data("XDG_DATA_HOME", "/srv/data");
  const host::Folders folders = host::userFolders();
  EXPECT_EQ(folders.configuration, "/srv/settings/corvane-host");
  EXPECT_EQ(folders.userPlugins, "/srv/data/corvane-host/plug-ins");
}

TEST(Folders, TakeRelativeValuesForUnset) {
  const Variable home("HOME", "/home/maria");
  const Variable config("XDG_CONFIG_HOME", "settings");
  const Variable data("XDG_DATA_HOME", "");
  const host::Folders folders = host::userFolders();
  EXPECT_EQ(folders.configuration, "/home/maria/.config/corvane-host");
  EXPECT_EQ(folders.userPlugins, "/home/maria/.local/share/corvane-host/plug-ins");
}

}  // namespace
