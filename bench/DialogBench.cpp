// A dialog of 100 items, against the same widgets in plain Qt with a layout.
#include <QApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QToolButton>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "ADMDialogMetrics.h"
#include "ADMRect.h"
#include "BenchPlugin.h"
#include "GoalTable.h"
#include "Host.h"
#include "RVADM_CustomItem.h"
#include "RVADM_Frame.h"
#include "RVADM_Group.h"
#include "RVADM_Label.h"
#include "RVADM_ModalDialog.h"
#include "RVADM_PicturePushButton.h"
#include "RVADM_Radio.h"
#include "RVADM_Slider.h"
#include "RVADM_TextEdit.h"
#include "RVADM_TextPushButton.h"

namespace {

using namespace qRVADM;
using Clock = std::chrono::steady_clock;

constexpr int kItems = 100;
constexpr int kColumns = 10;
constexpr int kRounds = 41;
constexpr int kBlankPicture = -1;
constexpr int kColumnWidth = 110;

std::string TextOf(int number) {
  return "Item " + std::to_string(number);
}

RVADM_Item* MakeItem(RVADM_ItemParent* parent, int number) {
  const std::string text = TextOf(number);
  switch (number % 10) {
    case 0:
    case 1:
      return new RVADM_TextPushButton(parent, text.c_str());
    case 2:
      return new RVADM_Radio(parent, text.c_str());
    case 3:
      return new RVADM_TextEdit(parent, text.c_str(), true, false);
    case 4:
      return new RVADM_Slider(parent, true, 0, 100, 1);
    case 5:
      return new RVADM_PicturePushButton(parent, kBlankPicture, 0);
    case 6:
      return new RVADM_Frame(parent, true);
    case 7:
      return new RVADM_Group(parent, text.c_str(), true);
    case 8:
      return new RVADM_CustomItem(parent);
    default:
      return new RVADM_Label(parent, text.c_str(), true);
  }
}

QWidget* MakeWidget(QWidget* parent, int number) {
  const QString text = QString::fromStdString(TextOf(number));
  switch (number % 10) {
    case 0:
    case 1:
      return new QPushButton(text, parent);
    case 2:
      return new QRadioButton(text, parent);
    case 3:
      return new QLineEdit(text, parent);
    case 4:
      return new QSlider(Qt::Horizontal, parent);
    case 5:
      return new QToolButton(parent);
    case 6: {
      auto* const frame = new QFrame(parent);
      frame->setFrameShape(QFrame::HLine);
      return frame;
    }
    case 7:
      return new QGroupBox(text, parent);
    case 8:
      return new QWidget(parent);
    default:
      return new QLabel(text, parent);
  }
}

// Its columns share the width.
class ItemDialog : public RVADM_ModalDialog {
 public:
  ItemDialog() : RVADM_ModalDialog(true) {}

  void CreateItems() override {
    for (int number = 0; number < kItems; ++number) items.push_back(MakeItem(this, number));
  }

  void LayoutItems() override {
    ADMRect content{};
    GetContentRect(&content);
    if (Width(content) < kColumns * kColumnWidth) {
      SetSize(kColumns * (kColumnWidth + GetMetrics().itemGap), height());
      GetContentRect(&content);
    }
    for (std::size_t i = 0; i < items.size(); ++i) {
      const int left = content.left + static_cast<int>(i % kColumns) * Width(content) / kColumns;
      if (i < kColumns) {
        AlignItem(items[i], kAlignBase | kAlignTop);
      } else {
        items[i - kColumns]->PlaceBelow(items[i], kAlignBase, kDefaultGap);
      }
      items[i]->SetLeft(left);
    }
    if (!isFitted) items[kItems - kColumns]->FitDialogToItem(kStretchBottom);
    isFitted = true;
  }

 private:
  std::vector<RVADM_Item*> items;
  bool isFitted = false;
};

double MillisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

void ShowWholly(QWidget& dialog) {
  dialog.show();
  QCoreApplication::processEvents();
}

std::unique_ptr<ItemDialog> ShowItemDialog() {
  auto dialog = std::make_unique<ItemDialog>();
  dialog->SetTitle("Bench", true);
  dialog->Init();
  ShowWholly(*dialog);
  return dialog;
}

std::unique_ptr<QDialog> ShowPlainDialog() {
  auto dialog = std::make_unique<QDialog>();
  dialog->setWindowTitle(QStringLiteral("Bench"));
  auto* const layout = new QGridLayout(dialog.get());
  for (int number = 0; number < kItems; ++number) {
    layout->addWidget(MakeWidget(dialog.get(), number), number / kColumns, number % kColumns);
  }
  ShowWholly(*dialog);
  return dialog;
}

template <typename Show>
double MillisecondsToShow(Show show) {
  const auto start = Clock::now();
  const auto dialog = show();
  return MillisecondsSince(start);
}

// A little wider or narrower: every item is placed anew. Painting is not part of it.
template <typename Dialog>
double MillisecondsToRelayout(Dialog& dialog) {
  std::vector<double> times;
  for (int round = 0; round < kRounds; ++round) {
    const int change = round % 2 == 0 ? 30 : -30;
    const auto start = Clock::now();
    dialog.resize(dialog.width() + change, dialog.height());
    QCoreApplication::sendPostedEvents(&dialog, QEvent::LayoutRequest);
    times.push_back(MillisecondsSince(start));
    QCoreApplication::processEvents();
  }
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

int Judge() {
  std::vector<double> ours, plain;
  for (int round = 0; round < kRounds; ++round) {
    ours.push_back(MillisecondsToShow(ShowItemDialog));
    plain.push_back(MillisecondsToShow(ShowPlainDialog));
  }
  std::sort(ours.begin(), ours.end());
  std::sort(plain.begin(), plain.end());
  const double ourMedian = ours[kRounds / 2];
  const double plainMedian = plain[kRounds / 2];
  const double relayout = MillisecondsToRelayout(*ShowItemDialog());
  const double plainRelayout = MillisecondsToRelayout(*ShowPlainDialog());
  std::printf(
      "ms to show, median: ours %.2f, plain Qt %.2f; ms to lay out anew: ours %.3f, plain Qt %.3f\n\n",
      ourMedian, plainMedian, relayout, plainRelayout);
  bench::GoalTable table;
  table.atMost("time to show 100 items, of plain Qt's", ourMedian / plainMedian, 2);
  table.atMost("to lay them out anew, ms", relayout, 1);
  return table.print();
}

}  // namespace

int main(int count, char** arguments) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  const QApplication application(count, arguments);
  host::Host host;
  const bench::BenchPlugin plugin(host, "/", {"AI Context Suite"});
  return Judge() == 0 ? 0 : 1;
}
