// Icons by resource id, against Qt's own ways from a file to a pixmap.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmapCache>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "BenchPlugin.h"
#include "GoalTable.h"
#include "Host.h"
#include "Icons.h"
#include "LoadPixmap.h"
#include "SPBasic.h"
#include "ScratchFolder.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kIcons = 200;
constexpr int kFirst = 16100;    // these have a light version
constexpr int kMissing = 16400;  // these are in the table, without a file
constexpr int kSide = 20;        // pixels

// A bundle with a table and light icons, for as long as the object lives.
class IconBundle {
 public:
  IconBundle() {
    std::filesystem::create_directories(resources() / "txt");
    std::filesystem::create_directories(resources() / "png");
    std::ofstream table(resources() / "txt/IDToFile.txt");
    for (int i = 0; i < kIcons; ++i) {
      for (const int id : {kFirst + i, kFirst + 1000 + i, kMissing + i, kMissing + 1000 + i}) {
        table << id << ".png p" << id << ".png\n";
      }
      draw(i);
    }
  }

  std::string path() const { return root_ / "Bench.bundle"; }
  QString file(int id) const {
    return QString::fromStdString(resources() / "png" / ("p" + std::to_string(id) + ".png"));
  }

 private:
  std::filesystem::path resources() const { return root_ / "Bench.bundle/Contents/Resources"; }
  void draw(int i) const {
    QImage image(kSide, kSide, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor::fromHsv(i, 200, 200));
    painter.drawEllipse(2, 2, kSide - 4, kSide - 4);
    painter.end();
    if (!image.save(file(kFirst + 1000 + i))) throw std::runtime_error("cannot write an icon");
  }

  const ScratchFolder scratch_;
  const std::filesystem::path root_ = scratch_.path;
};

double nanosecondsEach(const std::function<void(int)>& work) {
  const auto start = Clock::now();
  for (int i = 0; i < kIcons; ++i) work(i);
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / kIcons;
}

// The median over rounds in which all contestants take turns, so that each meets the same machine.
std::vector<double> medians(const std::vector<std::function<void(int)>>& contestants,
                            const std::function<void()>& beforeEach = nullptr) {
  constexpr int kRounds = 51;
  std::vector<std::vector<double>> times(contestants.size());
  for (int round = 0; round < kRounds; ++round) {
    for (std::size_t i = 0; i < contestants.size(); ++i) {
      if (beforeEach) beforeEach();
      times[i].push_back(nanosecondsEach(contestants[i]));
    }
  }
  std::vector<double> result;
  for (auto& of : times) {
    std::sort(of.begin(), of.end());
    result.push_back(of[of.size() / 2]);
  }
  return result;
}

void checkIcons(const IconBundle& bundle) {
  for (int i = 0; i < kIcons; ++i) {
    const QImage expected = QPixmap(bundle.file(kFirst + 1000 + i)).toImage();
    if (qRVADM::GetIcon(kFirst + i).pixmap(kSide, kSide).toImage() != expected) {
      throw std::runtime_error("not the icon that was asked for");
    }
    if (!qRVADM::GetIcon(kMissing + i).isNull()) throw std::runtime_error("an icon from nowhere");
  }
}

// In nanoseconds an icon.
struct Again {
  double pixmap, icon, iconPixmap, qtCache, qtIcon;
};
struct Missing {
  double icon, qtIcon, hostCalls;
};
struct First {
  double pixmap, qtPixmap;
};

Again measureAgain(const IconBundle& bundle) {
  std::vector<QString> files, names;
  for (int i = 0; i < kIcons; ++i) {
    files.push_back(bundle.file(kFirst + 1000 + i));
    names.push_back(QStringLiteral("bench/icon-") + QString::number(i));
    QPixmapCache::insert(names.back(), QPixmap(files.back()));
  }
  const auto at = [](const std::vector<QString>& list, int i) { return list[static_cast<std::size_t>(i)]; };
  // Apart from those that read files, which push all else out of the processor's caches.
  const std::vector<double> kept = medians({
      [](int i) { benchmark::DoNotOptimize(qRVADM::LoadPixmap(kFirst + i, 0, 1)); },
      [](int i) { benchmark::DoNotOptimize(qRVADM::GetIcon(kFirst + i)); },
      [&](int i) {
        QPixmap found;
        QPixmapCache::find(at(names, i), &found);
        benchmark::DoNotOptimize(found);
      },
  });
  const std::vector<double> drawn = medians({
      [](int i) { benchmark::DoNotOptimize(qRVADM::GetIcon(kFirst + i).pixmap(kSide, kSide)); },
      [&](int i) { benchmark::DoNotOptimize(QIcon(at(files, i)).pixmap(kSide, kSide)); },
  });
  return {kept[0], kept[1], drawn[0], kept[2], drawn[1]};
}

Missing measureMissing(const IconBundle& bundle, host::Host& host) {
  const std::uint64_t callsBefore = host.refusal().callCount();
  const std::vector<double> times = medians({
      [](int i) { benchmark::DoNotOptimize(qRVADM::GetIcon(kMissing + i)); },
      [&](int i) { benchmark::DoNotOptimize(QIcon(bundle.file(kMissing + i)).pixmap(kSide, kSide)); },
  });
  return {times[0], times[1], static_cast<double>(host.refusal().callCount() - callsBefore)};
}

First measureFirst(const IconBundle& bundle) {
  const std::vector<double> times =
      medians({[](int i) { benchmark::DoNotOptimize(qRVADM::LoadPixmap(kFirst + i, 0, 1)); },
               [&](int i) { benchmark::DoNotOptimize(QPixmap(bundle.file(kFirst + 1000 + i))); }},
              &QPixmapCache::clear);
  return {times[0], times[1]};
}

int judge(const IconBundle& bundle, host::Host& host) {
  checkIcons(bundle);
  const Again again = measureAgain(bundle);
  const Missing missing = measureMissing(bundle, host);
  const First first = measureFirst(bundle);
  std::printf("ns again: LoadPixmap %.0f, GetIcon %.0f, GetIcon and its pixmap %.0f\n", again.pixmap,
              again.icon, again.iconPixmap);
  std::printf("          QPixmapCache by name %.0f, QIcon from its file and its pixmap %.0f\n", again.qtCache,
              again.qtIcon);
  std::printf("ns missing: GetIcon %.0f, QIcon from no file %.0f\n", missing.icon, missing.qtIcon);
  std::printf("us from the file: LoadPixmap %.1f, QPixmap %.1f\n\n", first.pixmap / 1000,
              first.qtPixmap / 1000);
  bench::GoalTable table;
  table.atMost("an icon again, ns", again.icon, 1000);
  table.atMost("a missing icon again, ns", missing.icon, 1000);
  table.atMost("a missing icon again, calls of the host", missing.hostCalls, 0,
               "all file access goes through it");
  table.atMost("a pixmap again, of QPixmapCache's time", again.pixmap / again.qtCache, 1.5);
  table.atMost("an icon's pixmap again, of QIcon's time", again.iconPixmap / again.qtIcon, 0.5);
  table.atMost("a pixmap from its file, of QPixmap's time", first.pixmap / first.qtPixmap, 2);
  return table.print();
}

}  // namespace

int main(int count, char** arguments) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  const QApplication application(count, arguments);
  const IconBundle bundle;
  host::Host host;
  const bench::BenchPlugin plugin(host, bundle.path().c_str(), {"AI Data Filter Suite"});
  return judge(bundle, host) == 0 ? 0 : 1;
}
