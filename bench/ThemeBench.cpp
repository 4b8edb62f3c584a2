// Changing the theme under 500 live widgets, against Qt's own style with a change of palette.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPalette>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QStyle>
#include <QToolButton>
#include <cstdio>
#include <ctime>
#include <functional>
#include <memory>
#include <vector>

#include "GoalTable.h"
#include "Median.h"
#include "QtManager.h"
#include "Theme.h"
#include "ThemePalette.h"

namespace {

using bench::median;
using host::Theme;
using RVADMQtManager::QtManager;

constexpr int kItems = 500;
constexpr int kTopLevels = 3;
constexpr int kColumns = 13;
constexpr int kRounds = 21;

QWidget* makeItem(int number, QWidget* parent) {
  const QString text = QStringLiteral("Item %1").arg(number);
  switch (number % 10) {
    case 0:
      return new QPushButton(text, parent);
    case 1:
      return new QCheckBox(text, parent);
    case 2:
      return new QRadioButton(text, parent);
    case 3:
      return new QLineEdit(text, parent);
    case 4:
      return new QSpinBox(parent);
    case 5:
      return new QComboBox(parent);
    case 6:
      return new QSlider(Qt::Horizontal, parent);
    case 7:
      return new QToolButton(parent);
    case 8:
      return new QLabel(text, parent);
    default:
      auto* list = new QListWidget(parent);
      list->addItem(text);
      list->setFixedHeight(40);
      return list;
  }
}

std::vector<std::unique_ptr<QWidget>> makeTopLevels() {
  std::vector<std::unique_ptr<QWidget>> made;
  for (int top = 0; top < kTopLevels; ++top) {
    made.push_back(std::make_unique<QWidget>());
    QtManager::MakeDVAStyleAware(made.back().get(), true);
    new QGridLayout(made.back().get());
  }
  for (int item = 0; item < kItems; ++item) {
    QWidget* parent = made[static_cast<std::size_t>(item % kTopLevels)].get();
    const int cell = item / kTopLevels;
    static_cast<QGridLayout*>(parent->layout())
        ->addWidget(makeItem(item, parent), cell / kColumns, cell % kColumns);
  }
  for (const auto& top : made) top->show();
  QCoreApplication::processEvents();
  return made;
}

// Processor time until everything is painted: all of it is work of this one thread.
double milliseconds(const std::function<void()>& change) {
  const std::clock_t start = std::clock();
  change();
  QCoreApplication::processEvents();
  return static_cast<double>(std::clock() - start) * 1000.0 / CLOCKS_PER_SEC;
}

void changeOurs(Theme theme) {
  host::setTheme(theme);
  QtManager::UpdateUIColorScheme();
}

void changePalette(Theme theme) {
  QApplication::setPalette(host::themePalette(theme));
}

void changePaletteAndStyle(Theme theme) {
  changePalette(theme);
  QApplication::setStyle(QStringLiteral("Fusion"));
}

struct Contestant {
  void (*prepare)(Theme);  // brings its look, not measured
  void (*change)(Theme);
};

// The times of each contestant, round by round. They take turns, so that each meets the same machine.
std::vector<std::vector<double>> measured(const std::vector<Contestant>& contestants) {
  std::vector<std::vector<double>> times(contestants.size());
  for (int round = 0; round < kRounds; ++round) {
    const Theme from = round % 2 == 0 ? Theme::Light : Theme::Dark;
    const Theme to = round % 2 == 0 ? Theme::Dark : Theme::Light;
    for (std::size_t i = 0; i < contestants.size(); ++i) {
      contestants[i].prepare(from);
      QCoreApplication::processEvents();
      times[i].push_back(milliseconds([&] { contestants[i].change(to); }));
    }
  }
  return times;
}

int judge() {
  const auto topLevels = makeTopLevels();
  const auto times = measured({{changeOurs, changeOurs},
                               {changePaletteAndStyle, changePalette},
                               {changePaletteAndStyle, changePaletteAndStyle}});
  std::printf("ms a change, median: ours %.1f, palette of Fusion %.1f, palette and style of Fusion %.1f\n\n",
              median(times[0]), median(times[1]), median(times[2]));
  bench::GoalTable table;
  table.atMost("change under 500 items, ms", median(times[0]), 100);
  table.atMost("of the time of Fusion's palette and style", bench::medianRatio(times[0], times[2]), 1.2);
  return table.print();
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return judge() == 0 ? 0 : 1;
}
