#include "Folders.h"

#include <gtest/gtest.h>

#include "Variable.h"

namespace {

using host::Variable;

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
