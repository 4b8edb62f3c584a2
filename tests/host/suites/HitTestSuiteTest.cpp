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
  bool isHit(AIRealPoint point, AIArtHandle under = nullptr) {
    AIHitData data{2};
    EXPECT_EQ(hits.GetHitData(test(point, under), &data), kNoErr);
    EXPECT_LT(data.hit, 2);
    return data.hit == 1;
  }
  AIArtHandle artAt(AIRealPoint point, AIArtHandle under = nullptr) {
    AIArtHandle found = under;
    EXPECT_EQ(hits.GetHitArt(test(point, under), &found), kNoErr);
    return found;
  }

  const AIHitTestSuite& hits = ACQUIRE(AIHitTestSuite);
};

TEST_F(HitTestSuiteTest, TestsTheDocumentOrOneArtWithWhatItHolds) {
  const AIArtHandle group = newArt(kGroupArt), inner = newSquare({0, 0}, 10), cover = newSquare({0, 0}, 10);
  EXPECT_FALSE(isHit({5, 5}));  // unpainted
  for (const AIArtHandle square : {inner, cover}) fill(square);
  ASSERT_EQ(art.ReorderArt(inner, kPlaceInsideOnTop, group), kNoErr);
  EXPECT_EQ(artAt({5, 5}), cover);
  EXPECT_EQ(artAt({15, 5}), nullptr);
  EXPECT_EQ(artAt({5, 5}, group), inner);
  EXPECT_FALSE(isHit({15, 5}, group));
  ASSERT_EQ(layers.SetLayerVisible(topLayer(), 0), kNoErr);
  EXPECT_FALSE(isHit({5, 5}));
}

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
