// The product's start and end, with each of their suite calls refused and each suite withheld.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "QtManager.h"
#include "RefusalWorld.h"
#include "SuiteCatalog.h"

namespace host {
namespace {

using RVADMQtManager::QtManager;

// Whatever came up is used: menu items, tools and the palette.
void use(RefusalWorld& world) {
  world.setOptions(0, 1, 60, 0.5);
  world.open();
  std::vector<AIMenuItemHandle> items;
  for (const MenuItem& item : world.host.menus().items()) {
    if (item.plugin != nullptr) items.push_back(item.handle);
  }
  for (const AIMenuItemHandle item : items) world.note(world.session.chooseMenuItem(item));
  std::vector<AIToolHandle> tools;
  for (const ToolRecord& tool : world.host.tools().all()) tools.push_back(tool.handle);
  for (const AIToolHandle tool : tools) {
    world.tools->choose(tool);
    world.note(world.tools->mouseDown({10, 10}));
  }
  world.clickRow(0);
  world.pressPaletteButton();
  world.settle();
}

// Is this the first refusal of its kind, or none at all?
bool isNew(const std::vector<std::string>& refused) {
  static std::set<std::string> seen;
  return refused.empty() || seen.insert(refused.front().substr(0, refused.front().find(','))).second;
}

// What a life leaves behind in the host when it is over.
struct Remains {
  std::int32_t suites;
  std::size_t objects;
};

// One life from start to end. `start` and `end` arm refusals; nothing else is refused.
struct Life {
  std::string complaint;
  std::vector<std::string> refused;
  Remains remains{};

  Life(const std::function<void(Refusal&)>& start, const std::function<void(Refusal&)>& end) {
    RefusalWorld world(squareOnPage());
    const std::string before = world.saved();
    world.host.preferences().put("Corvane", "SelectedTool", std::int32_t{1});  // is shown again by the start
    world.writeCustomFile();
    Refusal& refusal = world.host.refusal();
    if (start) start(refusal);
    complaint = world.load();
    world.settle();
    refusal.clear();
    if (isNew(refusal.refused())) use(world);
    if (end) end(refusal);
    world.tools.reset();
    world.session.shutdown();
    world.settle();
    refusal.clear();
    EXPECT_EQ(world.host.contexts().depth(), 0U);
    EXPECT_TRUE(std::holds_alternative<SvgDrawing>(readSvg(world.saved(), nullptr)));
    while (world.drawing.document->undo()) continue;
    EXPECT_TRUE(world.saved() == before);
    refused = refusal.refused();
    remains = {world.heldSuites(), world.ownedObjects()};
  }
};

class RefusedLife : public testing::Test {
 protected:
  RefusedLife() { Life(nullptr, nullptr); }  // what is made once a process is there from now on
  ~RefusedLife() override { EXPECT_EQ(QtManager::DialogCount(), dialogs); }

  // The life is over as every other one, but for what the host would not take back. False if nothing was
  // refused.
  bool expectOver(const Life& life) const {
    if (life.refused.empty()) return false;
    const testing::ScopedTrace trace(__FILE__, __LINE__, life.refused.front());
    const auto count = [&life](const char* part) {
      return std::count_if(life.refused.begin(), life.refused.end(),
                           [part](const std::string& call) { return call.find(part) != std::string::npos; });
    };
    EXPECT_LE(life.remains.suites, clean.remains.suites + count(":ReleaseSuite"));
    EXPECT_LE(life.remains.objects,
              clean.remains.objects + static_cast<std::size_t>(count(":Dispose") + count(":Unlink")));
    EXPECT_EQ(QtManager::DialogCount(), dialogs);
    return true;
  }

  const int dialogs = QtManager::DialogCount();
  const Life clean{nullptr, nullptr};
};

TEST_F(RefusedLife, AStartFailsWithACodeOrGoesOnWithoutWhatWasRefused) {
  int failures = 0;
  for (std::uint64_t n = 1;; n += kStride) {
    const Life life([n](Refusal& refusal) { refusal.armNth(n); }, nullptr);
    if (!expectOver(life)) break;
    failures += life.complaint.empty() ? 0 : 1;
    if (!life.complaint.empty()) {
      EXPECT_NE(life.complaint.find("did not start: it answered '"), std::string::npos)
          << life.refused.front() << ": " << life.complaint;
    }
  }
  EXPECT_GT(failures, 70 / static_cast<int>(kStride));
}

TEST_F(RefusedLife, AnEndIsAnEnd) {
  for (std::uint64_t n = 1;; n += kStride) {
    const Life life(nullptr, [n](Refusal& refusal) { refusal.armNth(n); });
    EXPECT_EQ(life.complaint, "");
    if (!expectOver(life)) break;
  }
}

TEST_F(RefusedLife, EachSuiteThatIsWithheldKeepsTheProductOut) {
  int withheld = 0;
  for (const SuiteOffer& offer : suiteCatalog()) {
    if (std::string(offer.name) == "AS User Interaction Suite") continue;  // asked for at first use only
    const Life life([&offer](Refusal& refusal) { refusal.add(offer.name); }, nullptr);
    EXPECT_TRUE(expectOver(life));
    EXPECT_NE(life.complaint.find("did not start"), std::string::npos) << offer.name << life.complaint;
    ++withheld;
  }
  EXPECT_EQ(withheld, 76);
}

}  // namespace
}  // namespace host
