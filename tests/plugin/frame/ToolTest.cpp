// What the host learns of a tool, and the pointer that goes with it.
#include <sstream>

#include "FramePlugin.h"
#include "HMX_AITool.h"
#include "IDToFile.h"
#include "ScratchFolder.h"

namespace {

// A bundle with the icons 16201 and 24001 in a light and a dark version, and half of 16203. What the toolkit
// knows of bundles it keeps for the process, so this comes before all tests.
class IconBundle : public testing::Environment {
 public:
  void SetUp() override {
    const std::string resources = "Contents/Resources/";
    std::ostringstream table;
    for (const int id : {17201, 18201, 17203, 18203}) table << id << ".PNG " << id << ".png\n";
    for (const int id : {25001, 26001}) table << id << ".SVG " << id << ".svg\n";
    scratch.write(resources + "txt/IDToFile.txt", table.str());
    for (const char* file :
         {"png/17201.png", "png/18201.png", "png/17203.png", "svg/25001.svg", "svg/26001.svg"}) {
      scratch.write(resources + file, "picture");
    }
    qRVADM::TheIDToFile(scratch.path.string());
  }

  const ScratchFolder scratch;
};

IconBundle* const icons = static_cast<IconBundle*>(testing::AddGlobalTestEnvironment(new IconBundle));

class Tool : public FrameTest {
 protected:
  Tool() {
    record.bundle = icons->scratch.path.string();
    plugin->RequestSuite("AI Data Filter Suite");
  }

  const host::ToolRecord& Registered(std::size_t index) { return host.tools().all()[index]; }
};

TEST_F(Tool, GivesTheHostBothVersionsOfAnIconThatHasThem) {
  const struct {
    int iconID;
    std::int32_t light, dark;
    std::int8_t type;
  } table[] = {
      {16201, 17201, 18201, 2}, {16203, 16203, 16203, 2}, {24001, 25001, 26001, 1},
      {23999, 23999, 23999, 2}, {24000, 24000, 24000, 1},
  };
  for (std::size_t i = 0; i < std::size(table); ++i) {
    AIAddToolData data;
    const HMX_AITool tool(plugin.get(), "tool", "Tool", 0, table[i].iconID, &data);
    ASSERT_EQ(host.tools().all().size(), i + 1);
    EXPECT_EQ(Registered(i).lightIcon, table[i].light) << table[i].iconID;
    EXPECT_EQ(Registered(i).darkIcon, table[i].dark) << table[i].iconID;
    EXPECT_EQ(data.iconType, table[i].type) << table[i].iconID;
  }
}

TEST_F(Tool, StandsWhereItsDataSays) {
  const HMX_AITool first(plugin.get(), "first", "First", kToolWantsToTrackCursorOption, 1, nullptr);
  AIAddToolData data;
  ASSERT_EQ(sAITool->GetToolNumberFromName("first", &data.sameGroupAs), kNoErr);
  data.sameToolsetAs = data.sameGroupAs;
  const HMX_AITool second(plugin.get(), "second", "Second", 0, 1, &data);
  const HMX_AITool third(plugin.get(), "third", "Third", 0, 1, nullptr);
  EXPECT_EQ(Registered(0).title, "First");
  EXPECT_TRUE(Registered(0).tracksCursor);
  EXPECT_FALSE(Registered(1).tracksCursor);
  EXPECT_EQ(Registered(1).group, Registered(0).group);
  EXPECT_EQ(Registered(1).toolset, Registered(0).toolset);
  EXPECT_NE(Registered(2).group, Registered(0).group);
  EXPECT_NE(Registered(2).toolset, Registered(0).toolset);
}

TEST_F(Tool, ThePointerIsAPictureOfThePlugin) {
  std::vector<std::int32_t> cursors;
  host.onCursor = [&](const host::PluginRecord& owner, std::int32_t id) {
    EXPECT_EQ(&owner, &record);
    cursors.push_back(id);
  };
  ASSERT_EQ(host.refusal().add("AI User Suite:CreateCursorResourceMgr:1"), "");
  EXPECT_EQ(plugin->SetCursor(16221), kSPCanceledByHostError);
  ASSERT_EQ(host.refusal().add("AI User Suite:CreateCursorResourceMgr:2"), "");
  EXPECT_EQ(plugin->SetCursor(16221), kNoErr);
  EXPECT_EQ(plugin->SetCursor(16224), kNoErr) << "the second manager would be refused";
  EXPECT_EQ(cursors, (std::vector<std::int32_t>{16221, 16224}));
  plugin->EndApplication();
  EXPECT_EQ(plugin->SetCursor(16221), kSPCanceledByHostError) << "the manager went with the application";
}

}  // namespace
