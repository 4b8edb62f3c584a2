#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "AIMenu.h"
#include "HostFixture.h"

namespace {

using testing::ElementsAre;

class MenuSuiteTest : public HostFixture {
 protected:
  AIMenuItemHandle addItem(const char* key, const char* group, std::int32_t options = 0) {
    const AIPlatformAddMenuItemDataUS data{group, text(key)};
    AIMenuItemHandle item = nullptr;
    EXPECT_EQ(menus.AddMenuItem(plugin, key, &data, options, &item), kNoErr) << key;
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

TEST_F(MenuSuiteTest, HasTheGroupsThatPluginsHangThemselvesInto) {
  for (const char* name : {"Tool Palettes", "Preferences", "Help Menu"}) {
    EXPECT_NE(host.menus().groupByName(name), nullptr) << name;
  }
}

TEST_F(MenuSuiteTest, SubmenusNest) {
  const AIMenuItemHandle outer = addSubmenu("Vandrell", "Tool Palettes");
  const AIMenuItemHandle inner = addSubmenu("corvane ", "Vandrell");
  const AIMenuItemHandle item = addItem("Create Line Type Layers", "corvane ", kMenuItemWantsUpdateOption);
  EXPECT_THAT(namesOf(host.menus().groupsOfSubmenu(outer)), ElementsAre("Vandrell"));
  EXPECT_THAT(namesOf(host.menus().groupsOfSubmenu(inner)), ElementsAre("corvane "));
  EXPECT_TRUE(host.menus().groupsOfSubmenu(item).empty());
  EXPECT_THAT(host.menus().groupByName("Vandrell")->items, ElementsAre(inner));
  EXPECT_THAT(host.menus().groupByName("corvane ")->items, ElementsAre(item));
  EXPECT_TRUE(host.menus().items().find(item)->wantsUpdate);
}

TEST_F(MenuSuiteTest, GroupNamesAreExact) {
  const AIPlatformAddMenuItemDataUS data{"Tool Palettes ", text("item")};
  AIMenuItemHandle item = nullptr;
  EXPECT_EQ(menus.AddMenuItem(plugin, "item", &data, 0, &item), kNoSuchItemErr);
  EXPECT_EQ(item, nullptr);
  AIMenuGroup group = nullptr;
  EXPECT_EQ(menus.AddMenuGroup("new", 0, "help menu", &group), kNoSuchItemErr);
}

TEST_F(MenuSuiteTest, AGroupStandsBehindItsNeighbour) {
  AIMenuGroup group = nullptr;
  ASSERT_EQ(menus.AddMenuGroup("Marks", kMenuGroupSeparatedOption, "Edit Undo", &group), kNoErr);
  EXPECT_THAT(namesOf(host.menus().groupsOfMenu("Edit")),
              ElementsAre("Edit Undo", "Marks", "Edit Select", "Preferences"));
  const AIMenuItemHandle opener = addSubmenu("Vandrell  ", "Help Menu");
  ASSERT_EQ(menus.AddMenuGroup("VandrellHelpCustom", 0, "Vandrell  ", &group), kNoErr);
  EXPECT_THAT(namesOf(host.menus().groupsOfSubmenu(opener)), ElementsAre("Vandrell  ", "VandrellHelpCustom"));
}

TEST_F(MenuSuiteTest, GroupsCanBeListedWhileTheyGrow) {
  std::int32_t before = 0;
  ASSERT_EQ(menus.CountMenuGroups(&before), kNoErr);
  AIMenuGroup first = nullptr;
  const char* firstName = nullptr;
  ASSERT_EQ(menus.GetNthMenuGroup(0, &first), kNoErr);
  ASSERT_EQ(menus.GetMenuGroupName(first, &firstName), kNoErr);
  const std::string nameBefore = firstName;
  for (int i = 0; i < 100; ++i) addSubmenu(("group " + std::to_string(i)).c_str(), "Help Menu");
  EXPECT_EQ(firstName, nameBefore);
  std::int32_t after = 0;
  ASSERT_EQ(menus.CountMenuGroups(&after), kNoErr);
  EXPECT_EQ(after, before + 100);
  AIMenuGroup last = nullptr;
  const char* lastName = nullptr;
  ASSERT_EQ(menus.GetNthMenuGroup(after - 1, &last), kNoErr);
  ASSERT_EQ(menus.GetMenuGroupName(last, &lastName), kNoErr);
  EXPECT_STREQ(lastName, "group 99");
  EXPECT_EQ(menus.GetNthMenuGroup(after, &last), kNoSuchItemErr);
  EXPECT_EQ(menus.GetNthMenuGroup(-1, &last), kNoSuchItemErr);
}

TEST_F(MenuSuiteTest, EnablesItemsWithTheDocument) {
  const AIMenuItemHandle item = addItem("Add Marks...", "Tool Palettes");
  const host::MenuItem& record = *host.menus().items().find(item);
  EXPECT_TRUE(record.enabledIn(host.menuState()));
  ASSERT_EQ(menus.UpdateMenuItemAutomatically(item, 1, -1, 0, -1, 0, 64, 0), kNoErr);
  EXPECT_TRUE(record.enabledIn(host.menuState()));
  host.documents().close(*document);
  EXPECT_FALSE(record.enabledIn(host.menuState()));
  ASSERT_EQ(menus.UpdateMenuItemAutomatically(item, 1, -1, 0, -1, 0, 0, 64), kNoErr);
  EXPECT_TRUE(record.enabledIn(host.menuState()));
}

TEST_F(MenuSuiteTest, RefusesConditionsItCanNotTest) {
  const AIMenuItemHandle item = addItem("item", "Tool Palettes");
  const std::int32_t conditions[][7] = {
      {2, -1, 0, -1, 0, 64, 0}, {1, 2, 0, -1, 0, 64, 0},  {1, -1, 2, -1, 0, 64, 0}, {1, -1, 0, 2, 0, 64, 0},
      {1, -1, 0, -1, 2, 64, 0}, {1, -1, 0, -1, 0, 65, 0}, {1, -1, 0, -1, 0, 64, 2},
  };
  for (const auto& c : conditions) {
    EXPECT_EQ(menus.UpdateMenuItemAutomatically(item, c[0], c[1], c[2], c[3], c[4], c[5], c[6]),
              kBadParameterErr);
  }
  EXPECT_EQ(host.menus().items().find(item)->needsState, 0);
}

TEST_F(MenuSuiteTest, ChecksItems) {
  const AIMenuItemHandle item = addItem("item", "Tool Palettes");
  EXPECT_EQ(menus.CheckItem(item, 1), kNoErr);
  EXPECT_TRUE(host.menus().items().find(item)->checked);
  EXPECT_EQ(menus.CheckItem(item, 0), kNoErr);
  EXPECT_FALSE(host.menus().items().find(item)->checked);
}

}  // namespace
