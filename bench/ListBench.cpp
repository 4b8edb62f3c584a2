// Lists of 10,000 rows, against Qt's own without entries.
#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QScrollBar>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "BenchPlugin.h"
#include "GoalTable.h"
#include "Host.h"
#include "IADMDrawer.h"
#include "RVADM_DropDownList.h"
#include "RVADM_ModalDialog.h"
#include "RVADM_TabListBox.h"
#include "RVADM_TabListEntry.h"

namespace {

using namespace qRVADM;

constexpr int kRows = 10000;
constexpr int kFrames = 600;
constexpr int kPixelsAFrame = 7;
constexpr double kFrameMilliseconds = 1000.0 / 60;
constexpr QSize kListSize{250, 600};

// Rows as a palette of colours and names draws them: ground, rule, patch, name.
struct PatchEntry : RVADM_TabListEntry {
  using RVADM_TabListEntry::RVADM_TabListEntry;
  void Draw(IADMDrawer& drawer) override {
    RVADM_TabListEntry::Draw(drawer);
    ADMRect bounds, cell;
    drawer.GetBoundsRect(&bounds);
    drawer.SetColor(112);
    drawer.DrawLine({bounds.left, bounds.bottom - 1}, {bounds.right, bounds.bottom - 1});
    GetTabRect(bounds, 0, &cell);
    const ADMRect patch{cell.left + 3, cell.top + 3, cell.left + 17, cell.top + 17};
    drawer.SetColor(0);
    drawer.DrawRect(patch);
    drawer.SetRGBColor({0xffff, 0x8000, 0});
    drawer.FillRect(patch);
    GetTabRect(bounds, 1, &cell);
    drawer.SetColor(15);
    drawer.DrawTextInBox("Through Cut of a quite long name that is elided", cell);
  }
};

struct PatchList : RVADM_TabListBox {
  explicit PatchList(RVADM_ItemParent* itemParent) : RVADM_TabListBox(itemParent, true) {
    tabCount = 2;
    tabStops = {20};
    SetRowHeight(21);
    for (int row = 0; row < kRows; ++row) new PatchEntry(this, nullptr, false);
  }
};

// Processor time: all of it is work of this one thread.
double milliseconds(const std::function<void()>& work) {
  const std::clock_t start = std::clock();
  work();
  return static_cast<double>(std::clock() - start) * 1000.0 / CLOCKS_PER_SEC;
}

// The median of both, which take turns so that each meets the same machine.
std::pair<double, double> medians(const std::function<double()>& ours, const std::function<double()>& peer) {
  constexpr int kRounds = 21;
  std::vector<double> times[2];
  for (int round = 0; round < kRounds; ++round) {
    times[0].push_back(ours());
    times[1].push_back(peer());
  }
  for (auto& of : times) std::nth_element(of.begin(), of.begin() + kRounds / 2, of.end());
  return {times[0][kRounds / 2], times[1][kRounds / 2]};
}

// A visible widget, filled and laid out.
template <typename Widget>
double filled(Widget& widget, const std::function<void(int)>& addRow) {
  widget.show();
  QCoreApplication::processEvents();
  return milliseconds([&] {
    for (int row = 0; row < kRows; ++row) addRow(row);
    QCoreApplication::processEvents();
  });
}

std::string rowText(int row) {
  return "Through Cut " + std::to_string(row);
}

std::pair<double, double> fillLists(RVADM_ModalDialog& dialog) {
  return medians(
      [&] {
        RVADM_ListBox list(&dialog, true);
        list.resize(kListSize);
        return filled(list, [&](int row) { new RVADM_ListEntry(&list, rowText(row).c_str(), false); });
      },
      [&] {
        QListWidget list(&dialog);
        list.resize(kListSize);
        return filled(list, [&](int row) { list.addItem(QString::fromStdString(rowText(row))); });
      });
}

std::pair<double, double> fillDropDownLists(RVADM_ModalDialog& dialog) {
  return medians(
      [&] {
        RVADM_DropDownList list(&dialog);
        return filled(list, [&](int row) { new RVADM_ComboEntry(&list, rowText(row).c_str(), false); });
      },
      [&] {
        QComboBox list(&dialog);
        return filled(list, [&](int row) { list.addItem(QString::fromStdString(rowText(row))); });
      });
}

struct Frames {
  double median, late;  // milliseconds; `late`: one frame of a hundred takes longer
};

Frames scrolled(QListWidget& list) {
  list.resize(kListSize);
  list.show();
  QCoreApplication::processEvents();
  std::vector<double> frames;
  for (int frame = 0; frame < kFrames; ++frame) {
    frames.push_back(milliseconds([&] {
      list.verticalScrollBar()->setValue(frame * kPixelsAFrame);
      list.viewport()->repaint();
      QCoreApplication::processEvents();
    }));
  }
  if (list.verticalScrollBar()->value() < (kFrames - 1) * kPixelsAFrame)
    throw std::runtime_error("no scrolling");
  std::sort(frames.begin(), frames.end());
  return {frames[kFrames / 2], frames[kFrames * 99 / 100]};
}

int judge() {
  RVADM_ModalDialog dialog(true);
  dialog.resize(300, 640);
  dialog.show();
  const auto [list, plainList] = fillLists(dialog);
  const auto [dropDown, plainDropDown] = fillDropDownLists(dialog);
  PatchList patches(&dialog);
  const Frames frames = scrolled(patches);
  QListWidget plain(&dialog);
  plain.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  for (int row = 0; row < kRows; ++row) plain.addItem(QString::fromStdString(rowText(row)));
  const Frames plainFrames = scrolled(plain);
  std::printf("ms to fill 10,000 rows: list %.1f, QListWidget %.1f, drop-down list %.1f, QComboBox %.1f\n",
              list, plainList, dropDown, plainDropDown);
  std::printf("ms a frame of scrolling: rows that draw themselves %.2f, QListWidget %.2f\n\n", frames.median,
              plainFrames.median);
  bench::GoalTable table;
  table.atMost("10,000 rows of a list, of QListWidget's time", list / plainList, 2);
  table.atMost("10,000 rows of a drop-down list, of QComboBox's", dropDown / plainDropDown, 2);
  table.atMost("a frame of scrolling, ms, 99 of 100", frames.late, kFrameMilliseconds, "60 frames a second");
  return table.print();
}

}  // namespace

int main(int count, char** arguments) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  const QApplication application(count, arguments);
  host::Host host;
  const bench::BenchPlugin plugin(host, "/", {"AI Context Suite"});
  return judge() == 0 ? 0 : 1;
}
