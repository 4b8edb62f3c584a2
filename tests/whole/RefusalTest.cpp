// A host that withholds its suites, and one that refuses any single call of a command.
#include <gtest/gtest.h>

#include "SuiteCatalog.h"
#include "World.h"

namespace host {
namespace {

TEST(Withheld, EachSuiteOfTheListKeepsThePluginOutAndTheHostUsable) {
  std::size_t withheld = 0;
  for (const SuiteOffer& offer : suiteCatalog()) {
    if (std::string(offer.name) == "AS User Interaction Suite") continue;  // asked for at first use only
    Host host;
    ASSERT_EQ(host.refusal().add(offer.name), "");
    Session session(host);
    const std::string complaint = session.loadPlugin(corvaneBundle());
    EXPECT_NE(complaint.find("did not start"), std::string::npos) << offer.name << ": " << complaint;
    session.start();
    SvgDrawing drawing = drawingOf(squareOnPage());
    session.openDocument(drawing.document, "drawing", {});
    EXPECT_FALSE(session.chooseMenuItem(kMarksKey).has_value()) << offer.name;
    ++withheld;
  }
  EXPECT_EQ(withheld, 76U);
  World world(squareOnPage());  // and the next one comes up as if nothing had been
  EXPECT_EQ(world.complaint, "");
  EXPECT_EQ(world.session.chooseMenuItem(kMarksKey), kSPNoError);
}

struct Case {
  const char* name;
  std::int32_t shape, action;
  double size;
  int scale;
};

void PrintTo(const Case& row, std::ostream* stream) {
  *stream << row.name;
}

// Few enough calls that they can be refused one by one: a large document scale makes the samples of free
// space few. Of what is still many every few ones are.
constexpr std::uint64_t kMostRuns = 400;

class RefusedCall : public testing::TestWithParam<Case> {};

TEST_P(RefusedCall, LeavesAValidDocumentThatOneUndoRestores) {
  World world(squareOnPage(GetParam().scale));
  ASSERT_EQ(world.complaint, "");
  world.setOptions(GetParam().shape, GetParam().action, GetParam().size, 0.5);
  const std::string before = writeSvg(world.drawing);

  const std::uint64_t first = world.host.refusal().callCount();
  ASSERT_EQ(world.session.chooseMenuItem(kMarksKey), kSPNoError);
  const std::uint64_t calls = world.host.refusal().callCount() - first;
  ASSERT_GT(calls, 50U);
  ASSERT_NE(writeSvg(world.drawing), before);
  ASSERT_TRUE(world.drawing.document->undo());
  ASSERT_EQ(writeSvg(world.drawing), before);

  for (std::uint64_t n = 1; n <= calls; n += calls / kMostRuns + 1) {
    SCOPED_TRACE("call " + std::to_string(n));
    const std::size_t steps = world.drawing.document->undoCount();
    world.host.refusal().armNth(n);
    EXPECT_EQ(world.session.chooseMenuItem(kMarksKey), kSPNoError);
    world.host.refusal().armNth(0);
    const std::string after = writeSvg(world.drawing);
    ASSERT_TRUE(std::holds_alternative<SvgDrawing>(readSvg(after, nullptr)));
    const std::size_t made = world.drawing.document->undoCount() - steps;
    ASSERT_LE(made, 1U);
    ASSERT_EQ(after == before, made == 0);
    ASSERT_EQ(made == 1 && world.drawing.document->undo(), made == 1);
    ASSERT_EQ(writeSvg(world.drawing), before);
    // Every row of options is as it was: a refused read leaves defaults for that run only.
    world.setOptions(GetParam().shape, GetParam().action, GetParam().size, 0.5);
  }
}

INSTANTIATE_TEST_SUITE_P(Placements, RefusedCall,
                         testing::Values(Case{"CornerRound", 0, 1, 17, 1}, Case{"CornerCross", 1, 1, 17, 1},
                                         Case{"AutoRound", 0, 2, 30, 10}, Case{"EdgeCross", 1, 3, 17, 10}),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace host
