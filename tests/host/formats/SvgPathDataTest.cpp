// Path data and points.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <tuple>

#include "Bounds.h"
#include "Geometry.h"
#include "SvgNumber.h"
#include "SvgPathData.h"

namespace host {
namespace {

std::string text(AIRealPoint point) {
  const auto rounded = [](double value) { return numberText(std::round(value * 1000) / 1000 + 0.0); };
  return " " + rounded(point.x) + " " + rounded(point.y);
}

bool isStraight(const AIPathSegment& from, const AIPathSegment& to) {
  return from.out.x == from.p.x && from.out.y == from.p.y && to.in.x == to.p.x && to.in.y == to.p.y;
}

std::string sideText(const AIPathSegment& from, const AIPathSegment& to) {
  if (isStraight(from, to)) return " L" + text(to.p);
  return " C" + text(from.out) + text(to.in) + text(to.p);
}

// "M 0 0 L 10 0 C 1 2 3 4 5 6 Z", with numbers to three places; a straight side to the start is left to Z.
std::string outlineText(const std::vector<PathGeometry>& paths) {
  std::string result;
  for (const PathGeometry& path : paths) {
    const auto& segments = path.segments;
    if (!result.empty()) result += " ";
    result += "M" + text(segments.front().p);
    for (std::size_t i = 1; i < segments.size(); ++i) result += sideText(segments[i - 1], segments[i]);
    const bool curvedEnd = path.closed && !isStraight(segments.back(), segments.front());
    if (curvedEnd) result += sideText(segments.back(), segments.front());
    if (path.closed) result += " Z";
  }
  return result;
}

std::string faultText(const std::optional<SvgFault>& fault) {
  return fault ? fault->reason + " @" + std::to_string(fault->offset) : "";
}

TEST(SvgPathData, DrawsEveryCommand) {
  const std::pair<const char*, const char*> cases[] = {
      {"M 1,2 3,4 5,6", "M 1 2 L 3 4 L 5 6"},
      {"m1 2 3 4zm5 5 1 0", "M 1 2 L 4 6 Z M 6 7 L 7 7"},
      {"M0 0H5V6h-1v-2", "M 0 0 L 5 0 L 5 6 L 4 6 L 4 4"},
      {"M0 0C1 2 3 4 5 6s1 1 2 2", "M 0 0 C 1 2 3 4 5 6 C 7 8 6 7 7 8"},
      {"M0 0S1 1 2 2", "M 0 0 C 0 0 1 1 2 2"},
      {"M0 0Q3 3 6 0T12 0", "M 0 0 C 2 2 4 2 6 0 C 8 -2 10 -2 12 0"},
      {"M0 0T6 0", "M 0 0 C 0 0 2 0 6 0"},
      {"M0 0C1 1 2 2 3 3T6 6", "M 0 0 C 1 1 2 2 3 3 C 3 3 4 4 6 6"},
      {"M0 0 10 0 10 10 0 0z", "M 0 0 L 10 0 L 10 10 Z"},
      {"M0 0L5 5zL9 9", "M 0 0 L 5 5 Z M 0 0 L 9 9"},
      {"M1 1M2 2L3 3M4 4", "M 2 2 L 3 3"},
      {"M10-20.5L.5.25-1e1+2 5.1e-1,3", "M 10 -20.5 L 0.5 0.25 L -10 2 L 0.51 3"},
      {"M1 1z", "M 1 1 Z"},
      {"M1 1L1 1", "M 1 1 L 1 1"},
      {"", ""},
      {"\t\n", ""}};
  for (const auto& [data, expected] : cases) {
    SvgOutline outline;
    EXPECT_EQ(faultText(readPathData(data, outline)), "") << data;
    EXPECT_EQ(outlineText(outline.paths(kIdentity)), expected) << data;
  }
}

TEST(SvgPathData, DrawsUpToTheFaultAndSaysWhere) {
  const std::array<const char*, 3> cases[] = {
      {"M0 0L5 5L6", "M 0 0 L 5 5", "a number is missing @10"},
      {"M0 0L5 5 x 1", "M 0 0 L 5 5", "a path command is missing @9"},
      {"L5 5M0 0", "", "path data begin with a move @0"},
      {"M,0 0L1 1", "", "a number is missing @1"},
      {"M0 0L1 1,", "M 0 0 L 1 1", "a path command is missing @8"},
      {"M0 0A5 5 0 2 0 9 9", "", "an arc flag is 0 or 1 @11"},
      {"M0 0L1 1Z 5 5", "M 0 0 L 1 1 Z", "a path command is missing @10"},
      {"M0 0L1 1Lnan 5", "M 0 0 L 1 1", "a number is missing @9"}};
  for (const auto& [data, drawn, fault] : cases) {
    SvgOutline outline;
    EXPECT_EQ(faultText(readPathData(data, outline)), fault) << data;
    EXPECT_EQ(outlineText(outline.paths(kIdentity)), drawn) << data;
  }
}

TEST(SvgPathData, ArcsLieOnTheirEllipse) {
  // The box with y down, the centre, and the ratio of the vertical radius to the horizontal one.
  const std::tuple<const char*, AIRealRect, AIRealPoint, double> cases[] = {
      {"M10 0A10 10 0 0 1 0 10", {0, 10, 10, 0}, {0, 0}, 1},
      {"M10 0A10 10 0 1 0 0 10", {-10, 10, 10, -10}, {0, 0}, 1},
      {"M10 0A10 10 0 0 0 0 10", {0, 10, 10, 0}, {10, 10}, 1},
      {"M-10 0A10 5 0 0 1 10 0", {-10, 0, 10, -5}, {0, 0}, 0.5},
      {"M-10 0a-10-5 0 0120 0", {-10, 0, 10, -5}, {0, 0}, 0.5},
      // Too small a radius grows until the ends fit.
      {"M-10 0A1 1 0 0 1 10 0", {-10, 0, 10, -10}, {0, 0}, 1},
      {"M0-10A5 10 90 0 1 0 10", {0, 10, 20, -10}, {0, 0}, 0.5}};
  for (const auto& [data, wanted, centre, ratio] : cases) {
    SCOPED_TRACE(data);
    SvgOutline outline;
    EXPECT_EQ(faultText(readPathData(data, outline)), "");
    const auto paths = outline.paths(kIdentity);
    ASSERT_EQ(paths.size(), 1U);
    const AIRealRect box = pathBounds(paths[0]);
    EXPECT_NEAR(box.left, wanted.left, 5e-3);
    EXPECT_NEAR(box.top, wanted.top, 5e-3);
    EXPECT_NEAR(box.right, wanted.right, 5e-3);
    EXPECT_NEAR(box.bottom, wanted.bottom, 5e-3);
    const AIRealPoint start = paths[0].segments[0].p;
    const auto radius = [at = centre, flat = ratio](AIRealPoint point) {
      return std::hypot(point.x - at.x, (point.y - at.y) / flat);
    };
    for (const AIRealPoint point : flatten(paths[0], 1e-4, false))
      EXPECT_NEAR(radius(point), radius(start), 1e-2);
  }
}

}  // namespace
}  // namespace host
