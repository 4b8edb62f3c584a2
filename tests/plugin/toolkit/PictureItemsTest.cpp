// Which picture a button or label shows, and where.
#include <string>

#include "DialogWorld.h"
#include "RVADM_PictureLabel.h"
#include "RVADM_PicturePushButton.h"
#include "RVADM_TextEdit.h"

namespace qRVADM {
namespace {

constexpr int kNormal = 16830;
constexpr int kSelected = 16831;
constexpr int kWide = 16832;
constexpr int kNoPicture = 16833;

// The light version is green or yellow, the dark one blue or magenta.
class PictureItemsTest : public DialogTest {
 protected:
  PictureItemsTest() {
    Write(kNormal, Qt::green, Qt::blue);
    Write(kSelected, Qt::yellow, Qt::magenta);
    Write(kWide, Qt::green, Qt::blue, 32);
  }

  static void Write(int id, const QColor& light, const QColor& dark, int width = 16) {
    bundle.WritePicture(id + 1000, light, width);
    bundle.WritePicture(id + 2000, dark, width);
  }
  static void ChangeTheme(host::Theme theme) {
    host::setTheme(theme);
    RVADMQtManager::QtManager::UpdateUIColorScheme();
  }
  static QColor Middle(QWidget& item) { return item.grab().toImage().pixelColor(item.rect().center()); }
};

TEST_F(PictureItemsTest, ButtonsShowTheirSelectedPictureWhilePressed) {
  TestDialog dialog;
  RVADM_PicturePushButton button(&dialog, kNormal, kSelected);
  const QSize size = button.size();
  dialog.Open();
  for (const bool flat : {false, true}) {
    if (flat) button.SetFlat(true);
    EXPECT_EQ(button.size(), flat ? QSize(16, 16) : size);
    EXPECT_EQ(Middle(button), QColor(Qt::green));
    button.setDown(true);
    EXPECT_EQ(Middle(button), QColor(Qt::yellow));
    ChangeTheme(host::Theme::Dark);
    EXPECT_EQ(Middle(button), QColor(Qt::magenta));
    button.setDown(false);
    EXPECT_EQ(Middle(button), QColor(Qt::blue));
    ChangeTheme(host::Theme::Light);
  }
}

TEST_F(PictureItemsTest, LabelsTakeTheSizeOfTheirPictureAndShrinkItToFit) {
  TestDialog dialog;
  RVADM_PictureLabel label(&dialog, kNoPicture);
  dialog.Open();
  EXPECT_EQ(label.size(), QSize(0, 0));
  label.SetPicture(kWide);
  EXPECT_EQ(label.size(), QSize(32, 16));
  ChangeTheme(host::Theme::Dark);
  EXPECT_EQ(Middle(label), QColor(Qt::blue));
  const std::pair<QSize, QRect> cases[] = {
      {{8, 9}, {0, 2, 8, 4}}, {{41, 20}, {4, 2, 32, 16}}, {{32, 8}, {8, 0, 16, 8}}};
  for (const auto& [size, picture] : cases) {
    label.resize(size);
    QRegion blue;
    const QImage image = label.grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) == QColor(Qt::blue)) blue += QRect(x, y, 1, 1);
      }
    }
    EXPECT_EQ(blue, QRegion(picture)) << size.width();
  }
}

TEST_F(PictureItemsTest, PicturesInFieldsAreLightWhileTheFieldIsEdited) {
  ChangeTheme(host::Theme::Dark);
  TestDialog dialog;
  RVADM_TextEdit field(&dialog, "Text", false, false);
  RVADM_TextEdit other(&dialog, "Text", false, false);
  field.resize(200, 40);
  auto* button = new RVADM_PicturePushButton(&dialog, kNormal, kSelected);
  auto* label = new RVADM_PictureLabel(&dialog, kNormal);
  button->setParent(&field);
  label->setParent(&field);
  label->move(100, 10);
  button->SetSelectedPicture(kSelected);
  label->SetPicture(kNormal);
  dialog.Open();
  const auto expectColors = [&](const QColor& normal, const QColor& selected) {
    EXPECT_EQ(Middle(*label), normal);
    for (const bool down : {false, true}) {
      button->setDown(down);
      EXPECT_EQ(Middle(*button), down ? selected : normal);
    }
  };
  other.setFocus();
  expectColors(Qt::blue, Qt::magenta);
  field.setFocus();
  expectColors(Qt::green, Qt::yellow);
}

}  // namespace
}  // namespace qRVADM
