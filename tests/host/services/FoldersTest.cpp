#include "Folders.h"

#include <gtest/gtest.h>

#include "Variable.h"

TEST(Folders, FollowTheBaseDirectoriesThatAreAbsolute) {
  const host::Variable home("HOME", "/home/maria");
  const host::Variable config("XDG_CONFIG_HOME", "settings"), data("XDG_DATA_HOME", "/srv/data"),
      state("XDG_STATE_HOME", "../state");
  const host::Folders folders = host::userFolders();
  EXPECT_EQ(folders.configuration, "/home/maria/.config/corvane-host");
  EXPECT_EQ(folders.state, "/home/maria/.local/state/corvane-host");
  EXPECT_EQ(folders.userPlugins, "/srv/data/corvane-host/plug-ins");
}
