// Submenus in the menus of the host.
#include "EnsureSubmenu.h"
#include "FramePlugin.h"

namespace {

class Menus : public FrameTest {
 protected:
  const host::MenuItem& Last() { return host.menus().items()[host.menus().items().size() - 1]; }
};

TEST_F(Menus, SubmenusAreSharedByExactName) {
  AIMenuItemHandle item = nullptr;
  EXPECT_EQ(EnsureSubmenu(plugin->GetPluginRef(), "Shared", nullptr, 0, item), kNoErr);
  ASSERT_NE(item, nullptr);
  EXPECT_EQ(host.menus().groups().find(Last().group)->name, "Tool Palettes");
  EXPECT_EQ(host.menus().groupByName("Shared")->opener, item);

  const std::size_t items = host.menus().items().size();
  EXPECT_EQ(EnsureSubmenu(plugin->GetPluginRef(), "Shared", "Help Menu", 0, item), kNoErr);
  EXPECT_EQ(item, nullptr);
  EXPECT_EQ(host.menus().items().size(), items);

  EXPECT_EQ(EnsureSubmenu(plugin->GetPluginRef(), "Shared ", "Shared", 0, item), kNoErr);
  EXPECT_EQ(host.menus().groups().find(Last().group)->name, "Shared") << "a blank makes another name";
}

}  // namespace
