#include "AIMenu.h"
#include "HostFixture.h"

namespace {

class MenuSuiteTest : public HostFixture {
 protected:
  AIMenuItemHandle addItem(const char* key, const char* group) {
    const AIPlatformAddMenuItemDataUS data{group, text(key)};
    AIMenuItemHandle item = nullptr;
    EXPECT_EQ(menus.AddMenuItem(plugin, key, &data, 0, &item), kNoErr) << key;
    return item;
  }

  const AIMenuSuite& menus = ACQUIRE(AIMenuSuite);
};

TEST_F(MenuSuiteTest, AGroupStandsBehindItsNeighbourOfExactlyThatName) {
  AIMenuGroup group = nullptr;
  ASSERT_EQ(menus.AddMenuGroup("Marks", kMenuGroupSeparatedOption, "Edit Undo", &group), kNoErr);
  std::vector<std::string> names;
  for (const AIMenuGroup shown : host.menus().groupsOfMenu("Edit")) {
    names.push_back(host.menus().groups().find(shown)->name);
  }
  EXPECT_THAT(names, testing::ElementsAre("Edit Undo", "Marks", "Edit Select", "Preferences"));
  const AIPlatformAddMenuItemDataUS data{"Tool Palettes ", text("item")};
  AIMenuItemHandle item = nullptr;
  EXPECT_TRUE(each(kNoSuchItemErr, menus.AddMenuItem(plugin, "item", &data, 0, &item),
                   menus.AddMenuGroup("new", 0, "help menu", &group)));
}

TEST_F(MenuSuiteTest, EnablesItemsWithTheDocumentAndOnNoOtherCondition) {
  const AIMenuItemHandle item = addItem("Add Marks...", "Tool Palettes");
  const host::MenuItem& record = *host.menus().items().find(item);
  ASSERT_EQ(menus.UpdateMenuItemAutomatically(item, 1, -1, 0, -1, 0, 64, 0), kNoErr);
  EXPECT_TRUE(record.enabledIn(host.menuState()));
  host.documents().close(*document);
  EXPECT_TRUE(each(kBadParameterErr, menus.UpdateMenuItemAutomatically(item, 2, -1, 0, -1, 0, 0, 0),
                   menus.UpdateMenuItemAutomatically(item, 1, 2, 0, -1, 0, 0, 0),
                   menus.UpdateMenuItemAutomatically(item, 1, -1, 0, -1, 0, 1, 0),
                   menus.UpdateMenuItemAutomatically(item, 1, -1, 0, -1, 0, 0, 2)));
  EXPECT_FALSE(record.enabledIn(host.menuState()));
  ASSERT_EQ(menus.UpdateMenuItemAutomatically(item, 1, -1, 0, -1, 0, 0, 64), kNoErr);
  EXPECT_TRUE(record.enabledIn(host.menuState()));
}

}  // namespace
