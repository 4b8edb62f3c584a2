#include <cmath>

#include "AIHitTest.h"
#include "HostFixture.h"

namespace {

class HitTestSuiteTest : public HostFixture {
 protected:
  AIHitRef test(AIRealPoint point, AIArtHandle under = nullptr) {
    AIHitRef ref = nullptr;
    EXPECT_EQ(hits.HitTest(under, &point, kAllHitRequest, &ref), kNoErr);
    return ref;
  }

  const AIHitTestSuite& hits = ACQUIRE(AIHitTestSuite);
};

TEST_F(HitTestSuiteTest, OnlyTheLatestReferenceIsGood) {
  const AIHitRef first = test({1, 1});
  const AIHitRef second = test({2, 2});
  AIHitData data{};
  AIArtHandle found = nullptr;
  EXPECT_EQ(hits.GetHitData(first, &data), kBadParameterErr);
  EXPECT_EQ(hits.GetHitArt(first, &found), kBadParameterErr);
  EXPECT_EQ(hits.GetHitData(second, &data), kNoErr);
  host.documents().close(*document);
  EXPECT_EQ(hits.GetHitData(second, &data), kBadParameterErr);
}

TEST_F(HitTestSuiteTest, ArtThatWentAfterTheTestIsNotGivenOut) {
  const AIArtHandle square = newSquare({0, 0}, 10);
  fill(square);
  const AIHitRef ref = test({5, 5});
  ASSERT_EQ(art.DisposeArt(square), kNoErr);
  AIArtHandle found = newArt(kPathArt);
  EXPECT_EQ(hits.GetHitArt(ref, &found), kNoErr);
  EXPECT_EQ(found, nullptr);
}

TEST_F(HitTestSuiteTest, TakesFinitePointsOnly) {
  AIHitRef ref = nullptr;
  for (const AIRealPoint point : {AIRealPoint{std::nan(""), 0}, AIRealPoint{0, INFINITY}}) {
    EXPECT_EQ(hits.HitTest(nullptr, &point, kAllHitRequest, &ref), kBadParameterErr);
  }
  host.documents().close(*document);
  const AIRealPoint origin{0, 0};
  EXPECT_EQ(hits.HitTest(nullptr, &origin, kAllHitRequest, &ref), kNoDocumentErr);
  EXPECT_EQ(ref, nullptr);
}

}  // namespace
