// What goes into the tables of wrappers, what comes out, and who destroys it.
#include <memory>

#include "FramePlugin.h"
#include "HMX_AIMenu.h"
#include "HMX_AINotifier.h"
#include "HMX_AITool.h"

namespace {

class Tables : public FrameTest {
 protected:
  ~Tables() override { plugin.reset(); }

  int alive = 0;
};

template <typename Base>
struct Counted : Base {
  template <typename... Arguments>
  explicit Counted(int& counter, Arguments&&... arguments)
      : Base(std::forward<Arguments>(arguments)...), alive(counter) {
    ++alive;
  }
  ~Counted() override { --alive; }
  int& alive;
};

struct PlainTool : HMX_AITool {
  explicit PlainTool(HMX_AIPlugin* owner) : HMX_AITool(owner, "name", "title", 0, 1, nullptr) {}
};

struct CountedMenu : Counted<HMX_AIMenu> {
  CountedMenu(HMX_AIPlugin* owner, int& counter) : Counted(counter, owner, "Help Menu", "title", 0) {}
  AIErr OnAdded() override { return ++added; }
  int added = 0;
};

TEST_F(Tables, ShutdownDestroysEverythingThatIsStillThere) {
  for (int i = 0; i < 5; ++i) {
    plugin->AddMenu(new CountedMenu(plugin.get(), alive));
    plugin->AddNotifier(new Counted<HMX_AINotifier>(alive, plugin.get(), "name", "type"));
    plugin->AddTool(new Counted<PlainTool>(alive, plugin.get()));
  }
  auto* tool = new Counted<PlainTool>(alive, plugin.get());
  plugin->AddTool(tool);
  delete tool;
  delete plugin->MakeMenu<CountedMenu>(plugin.get(), alive);
  delete plugin->MakeNotifier<Counted<HMX_AINotifier>>(alive, plugin.get(), "name", "type");
  EXPECT_EQ(alive, 15);
  SPMessageData head = Head();
  EXPECT_EQ(plugin->Dispatch("SP Interface", "Shutdown", &head), kNoErr);
  EXPECT_EQ(alive, 0);
}

TEST_F(Tables, TenToolsAndNoMore) {
  HMX_AITool* tools[10];
  for (HMX_AITool*& tool : tools) {
    tool = new PlainTool(plugin.get());
    EXPECT_EQ(plugin->AddTool(tool), kNoErr);
  }
  EXPECT_EQ(plugin->AddTool(tools[3]), kNoErr) << "it is there already";
  auto spare = std::make_unique<PlainTool>(plugin.get());
  EXPECT_EQ(plugin->AddTool(spare.get()), 0x45724154);
  EXPECT_EQ(plugin->RemoveTool(tools[3]), kNoErr);
  EXPECT_EQ(plugin->AddTool(spare.get()), kNoErr) << "the freed slot is used again";
  EXPECT_EQ(plugin->AddTool(tools[3]), ErrorCode("ErAT"));
  (void)spare.release();
  delete tools[3];
}

}  // namespace
