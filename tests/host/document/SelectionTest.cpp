#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ArtPicking.h"
#include "DrawingMaker.h"
#include "SelectionCommands.h"

namespace host {
namespace {

using testing::box;
using ::testing::ElementsAre;
using testing::filled;
using ::testing::IsEmpty;
using testing::Sheet;
using testing::stroked;
using ::testing::UnorderedElementsAre;

// From the bottom up: a path, a group of two (one of them in a group of its own), a compound path.
class SelectionTest : public ::testing::Test {
 protected:
  SelectionTest() { document.startRecording(); }

  ArtId lineOf(const AIColor& color, double width = 1) {
    AIPathStyle style = stroked(width);
    style.stroke.color = color;
    return sheet.path(box(0, 0, 1, 1), style);
  }

  Sheet sheet;
  Document& document = sheet.document;
  const ArtId path = sheet.path(box(0, 0, 10, 10), filled());
  const ArtId group = sheet.group();
  const ArtId first = sheet.path(box(20, 0, 30, 10), filled(), group);
  const ArtId inner = sheet.group(group);
  const ArtId second = sheet.path(box(40, 0, 50, 10), stroked(2), inner);
  const ArtId compound = sheet.compound({box(60, 0, 90, 30), box(70, 10, 80, 20)}, filled(true));
  const ArtId part = document.art(compound)->firstChild;
};

TEST_F(SelectionTest, HoldsOnlyWhatIsAWholeOfItsOwn) {
  const struct {
    ArtId selected;
    std::vector<ArtId> members;
    std::vector<ArtId> holders;
  } table[] = {
      {path, {path}, {path, sheet.root()}},
      {group, {first, second}, {first, second, inner, group, sheet.root()}},
      {part, {compound}, {compound, part, sheet.root()}},
      {sheet.root(), {path, first, second, compound}, {path, group, compound, sheet.root()}},
      {9999, {}, {}},
  };
  for (const auto& row : table) {
    const std::uint64_t revision = document.revision(), before = document.selectionRevision();
    document.setSelected(row.selected, true);
    EXPECT_THAT(document.selection(), ::testing::UnorderedElementsAreArray(row.members));
    for (const ArtId holder : row.holders) EXPECT_TRUE(document.holdsSelected(holder)) << holder;
    EXPECT_EQ(document.holdsSelected(inner), document.isSelected(second));
    EXPECT_EQ(document.selectionRevision() == before, row.members.empty());
    document.setSelected(row.selected, false);
    EXPECT_THAT(document.selection(), IsEmpty());
    EXPECT_FALSE(document.holdsSelected(sheet.root()));
    EXPECT_EQ(document.revision(), revision);
  }
  EXPECT_FALSE(document.undo()) << "selecting is no step";
}

TEST_F(SelectionTest, ChangesOutsideAnyStepKeepWhatWasSelectedBefore) {
  document.beginStep("step");
  document.endStep();
  document.setSelected(path, true);
  document.deleteArt(path);
  document.setSelected(compound, true);
  ASSERT_TRUE(document.undo());
  EXPECT_THAT(document.selection(), ElementsAre(path));
  ASSERT_TRUE(document.redo());
  EXPECT_THAT(document.selection(), ElementsAre(compound));
  document.setSelected(path, true);
  EXPECT_FALSE(document.isSelected(path));
}

TEST_F(SelectionTest, APathThatJoinsACompoundPathIsSelectedNoMore) {
  document.setSelected(path, true);
  ASSERT_TRUE(document.moveArt(path, kPlaceInsideOnTop, compound));
  EXPECT_THAT(document.selection(), IsEmpty());
}

TEST_F(SelectionTest, CommandsLeaveOutWhatIsLockedOrHidden) {
  sheet.change(path, [](Art& art) { art.hidden = true; });
  sheet.change(inner, [](Art& art) { art.locked = true; });
  selectAll(document);
  EXPECT_THAT(document.selection(), UnorderedElementsAre(first, compound));
  EXPECT_FALSE(selectEditable(document, second));
  document.setSelected(second, true);
  deleteSelection(document);
  EXPECT_EQ(document.art(first), nullptr);
  EXPECT_NE(document.art(second), nullptr);
}

TEST_F(SelectionTest, EmptiedGroupsAreDeletedToo) {
  document.setSelected(group, true);
  deleteSelection(document);
  EXPECT_EQ(document.art(group), nullptr);
  EXPECT_EQ(document.art(inner), nullptr);
  selectAll(document);
  deleteSelection(document);
  EXPECT_NE(document.art(sheet.root()), nullptr);
  while (document.undo()) continue;
}

TEST_F(SelectionTest, TheSameStrokeHasColourSwatchAndTint) {
  const AIColor red = testing::customPaint(document, document.addCustomColor("Red", {}));
  const AIColor blue = testing::customPaint(document, document.addCustomColor("Blue", {}));
  AIColor pale = red, gray{};
  pale.c.c.tint = 0.5;
  const ArtId thin = lineOf(red), thick = lineOf(red, 3), other = lineOf(blue), tinted = lineOf(pale),
              plain = lineOf(gray);
  const struct {
    std::vector<ArtId> selected, same;
  } table[] = {
      {{thin}, {thin, thick}},
      {{thick, tinted}, {thin, thick, tinted}},
      {{other, plain}, {other, plain}},
      {{path}, {path}},
  };
  for (const auto& row : table) {
    selectOnly(document, row.selected);
    selectSameStroke(document);
    EXPECT_THAT(document.selection(), ::testing::UnorderedElementsAreArray(row.same));
  }
}

TEST_F(SelectionTest, WhatIsDrawnUnderThePointerIsPicked) {
  const ArtId locked = sheet.path(box(0, 0, 10, 10), filled());
  sheet.change(locked, [](Art& art) { art.locked = true; });
  sheet.path(box(0, 40, 10, 50), testing::unpainted());
  Body letters;
  letters.parts.push_back({{box(0, 60, 10, 70), box(20, 60, 30, 70)}, filled(), nullptr});
  const ArtId text = sheet.body(letters);
  const ArtId clipped = sheet.group(0, testing::clipTo({box(100, 0, 105, 10)}));
  const ArtId behindClip = sheet.path(box(100, 0, 120, 10), filled(), clipped);
  const struct {
    AIRealRect area;
    ArtId topmost;
  } table[] = {
      {{4, 6, 6, 4}, path},            // through what is locked above it
      {{9.5, 6, 12, 4}, path},         // within reach
      {{38.5, 6, 39.2, 4}, second},    // on the outer half of the stroke
      {{74, 16, 76, 14}, 0},           // in the hole
      {{-1, 46, 1, 44}, 0},            // unpainted
      {{4, 66, 6, 64}, text},          // a letter
      {{14, 66, 16, 64}, 0},           // between letters
      {{102, 6, 103, 4}, behindClip},  // what the clip leaves
      {{110, 6, 112, 4}, 0}            // what it cuts off
  };
  for (const auto& row : table) {
    EXPECT_EQ(topmostArtIn(document, row.area), row.topmost) << row.area.left << ", " << row.area.bottom;
  }
  EXPECT_THAT(allArtIn(document, {-100, 100, 200, -100}),
              ElementsAre(path, first, second, compound, text, behindClip));
  EXPECT_EQ(outermostOf(document, second), group);
  EXPECT_EQ(outermostOf(document, path), path);
  EXPECT_EQ(outermostOf(document, sheet.root()), 0U);
}

}  // namespace
}  // namespace host
