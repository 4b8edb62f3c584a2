// Drawing by whole pixels, on screens of one and of two pixels a point.
#include <QPainter>
#include <QPointer>

#include "DialogWorld.h"
#include "IADMDrawer.h"
#include "Pixels.h"
#include "RVADM_CustomItem.h"

namespace qRVADM {
namespace {

constexpr std::uint32_t kBlue = 0x0000ffff;
constexpr std::uint32_t kWhite = 0xffffffff;

class Picture : public RVADM_CustomItem {
 public:
  explicit Picture(TestDialog& dialog) : RVADM_CustomItem(&dialog) { SetSize(40, 20); }
  void Draw(IADMDrawer& drawer) override { draw(drawer); }
  void DefaultPaint(QPaintEvent* event) override {
    QPainter painter(this);
    EXPECT_TRUE(painter.isActive());
    RVADM_CustomItem::DefaultPaint(event);
  }
  void paintEvent(QPaintEvent* event) override {
    try {
      RVADM_CustomItem::paintEvent(event);
    } catch (const std::runtime_error&) {
      EXPECT_TRUE(QPainter(this).isActive()) << "another painter is still at work";
      ++thrown;
    }
  }

  std::function<void(IADMDrawer&)> draw;
  int thrown = 0;
};

class DrawerTest : public DialogTest {
 protected:
  TestDialog dialog;
  Picture& item = *new Picture(dialog);
};

TEST_F(DrawerTest, DrawsCrisply) {
  item.draw = [](IADMDrawer& drawer) {
    ADMRect bounds{};
    drawer.GetBoundsRect(&bounds);
    drawer.SetColor(kWhite);
    drawer.FillRect(bounds);
    drawer.SetRGBColor({0xff00, 0x12ff, 0});
    drawer.DrawRect({2, 2, 10, 8});
    drawer.FillRect({20, 2, 24, 6});
    drawer.SetColor(kBlue);
    drawer.DrawLine({4, 5}, {7, 5});
    drawer.SetColor(254);
    drawer.DrawLine({30, 3}, {30, 6});
    IADMDrawer copy(drawer);  // with a colour of its own
    EXPECT_EQ(bounds.right - bounds.left, 40);
  };
  const char* const expected[] = {
      "........................................", "........................................",
      "..rrrrrrrr..........rrrr................", "..r......r..........rrrr......b.........",
      "..r......r..........rrrr......b.........", "..r.bbbb.r..........rrrr......b.........",
      "..r......r....................b.........", "..rrrrrrrr..............................",
      "........................................"};
  const Legend legend{{'.', Qt::white}, {'r', QColor(255, 0x12, 0)}, {'b', Qt::blue}};
  for (const int ratio : {1, 2}) {
    int y = 0;
    for (const char* row : expected) EXPECT_EQ(RowOf(Grab(item, ratio), y++, legend), row) << ratio;
  }
}

TEST_F(DrawerTest, LeavesNoPainterBehindWhenDrawingThrows) {
  item.draw = [](IADMDrawer& drawer) {
    drawer.DrawDefault();
    const IADMDrawer copy(drawer);
    throw std::runtime_error("drawing failed");
  };
  Grab(item, 1);
  EXPECT_EQ(item.thrown, 1);
  EXPECT_EQ(host.contexts().depth(), 0U);
}

}  // namespace
}  // namespace qRVADM
