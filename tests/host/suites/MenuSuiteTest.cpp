#include "AIMenu.h"
#include "HostFixture.h"

namespace {

using testing::ElementsAre;

class MenuSuiteTest : public HostFixture {
 protected:
  AIMenuItemHandle addItem(const char* key, const char* group) {
    const AIPlatformAddMenuItemDataUS data{group, text(key)};
    AIMenuItemHandle item = nullptr;
    EXPECT_EQ(menus.AddMenuItem(plugin, key, &data, 0, &item), kNoErr) << key;
    return item;
  }
  AIMenuItemHandle addSubmenu(const char* name, const char* group) {
    const AIMenuItemHandle opener = addItem(name, group);
    AIMenuGroup made = nullptr;
    EXPECT_EQ(menus.AddMenuGroupAsSubMenu(name, 0, opener, &made), kNoErr) << name;
    return opener;
  }
  std::vector<std::string> namesOf(const std::vector<AIMenuGroup>& groups) {
    std::vector<std::string> names;
    names.reserve(groups.size());
    for (const AIMenuGroup group : groups) names.push_back(host.menus().groups().find(group)->name);
    return names;
  }

  const AIMenuSuite& menus = acquire<AIMenuSuite>(kAIMenuSuite, kAIMenuSuiteVersion);
};

TEST_F(MenuSuiteTest, SubmenusNest) {
  const AIMenuItemHandle outer = addSubmenu("Vandrell", "Tool Palettes");
  const AIMenuItemHandle inner = addSubmenu("corvane ", "Vandrell");
  const AIMenuItemHandle item = addItem("Create Line Type Layers", "corvane ");
  EXPECT_THAT(namesOf(host.menus().groupsOfSubmenu(outer)), ElementsAre("Vandrell"));
  EXPECT_THAT(namesOf(host.menus().groupsOfSubmenu(inner)), ElementsAre("corvane "));
  EXPECT_TRUE(host.menus().groupsOfSubmenu(item).empty());
  EXPECT_THAT(host.menus().groupByName("Vandrell")->items, ElementsAre(inner));
}

TEST_F(MenuSuiteTest, GroupNamesAreExact) {
  const AIPlatformAddMenuItemDataUS data{"Tool Palettes ", text("item")};
  AIMenuItemHandle item = nullptr;
  AIMenuGroup group = nullptr;
  EXPECT_THAT(codes(menus.AddMenuItem(plugin, "item", &data, 0, &item),
                    menus.AddMenuGroup("new", 0, "help menu", &group)),
              testing::Each(kNoSuchItemErr));
}

TEST_F(MenuSuiteTest, AGroupStandsBehindItsNeighbour) {
  AIMenuGroup group = nullptr;
  ASSERT_EQ(menus.AddMenuGroup("Marks", kMenuGroupSeparatedOption, "Edit Undo", &group), kNoErr);
  EXPECT_THAT(namesOf(host.menus().groupsOfMenu("Edit")),
              ElementsAre("Edit Undo", "Marks", "Edit Select", "Preferences"));
}

TEST_F(MenuSuiteTest, GroupsCanBeListedWhileTheyGrow) {
  std::int32_t before = 0;
  ASSERT_EQ(menus.CountMenuGroups(&before), kNoErr);
  const auto nameOf = [&](std::int32_t place) {
    AIMenuGroup group = nullptr;
    const char* name = nullptr;
    EXPECT_EQ(menus.GetNthMenuGroup(place, &group), kNoErr);
    EXPECT_EQ(menus.GetMenuGroupName(group, &name), kNoErr);
    return name;
  };
  const char* firstName = nameOf(0);
  const std::string nameBefore = firstName;
  for (int i = 0; i < 100; ++i) addSubmenu(("group " + std::to_string(i)).c_str(), "Help Menu");
  EXPECT_EQ(firstName, nameBefore);
  EXPECT_STREQ(nameOf(before + 99), "group 99");
  AIMenuGroup last = nullptr;
  EXPECT_EQ(menus.GetNthMenuGroup(before + 100, &last), kNoSuchItemErr);
  EXPECT_EQ(menus.GetNthMenuGroup(-1, &last), kNoSuchItemErr);
}

TEST_F(MenuSuiteTest, EnablesItemsWithTheDocument) {
  const AIMenuItemHandle item = addItem("Add Marks...", "Tool Palettes");
  const host::MenuItem& record = *host.menus().items().find(item);
  ASSERT_EQ(menus.UpdateMenuItemAutomatically(item, 1, -1, 0, -1, 0, 64, 0), kNoErr);
  EXPECT_TRUE(record.enabledIn(host.menuState()));
  host.documents().close(*document);
  EXPECT_FALSE(record.enabledIn(host.menuState()));
  ASSERT_EQ(menus.UpdateMenuItemAutomatically(item, 1, -1, 0, -1, 0, 0, 64), kNoErr);
  EXPECT_TRUE(record.enabledIn(host.menuState()));
}

TEST_F(MenuSuiteTest, RefusesConditionsItCanNotTest) {
  const AIMenuItemHandle item = addItem("item", "Tool Palettes");
  EXPECT_THAT(codes(menus.UpdateMenuItemAutomatically(item, 2, -1, 0, -1, 0, 64, 0),
                    menus.UpdateMenuItemAutomatically(item, 1, 2, 0, -1, 0, 64, 0),
                    menus.UpdateMenuItemAutomatically(item, 1, -1, 0, -1, 0, 65, 0),
                    menus.UpdateMenuItemAutomatically(item, 1, -1, 0, -1, 0, 64, 2)),
              testing::Each(kBadParameterErr));
  EXPECT_EQ(host.menus().items().find(item)->needsState, 0);
}

}  // namespace
