// Looking up and loading texts, against gettext and QTranslator with the same texts.
#include <benchmark/benchmark.h>
#include <libintl.h>
#include <malloc.h>

#include <QTranslator>
#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "GoalTable.h"
#include "Localize.h"
#include "Median.h"
#include "RDB.h"
#include "ResourceLocation.h"
#include "ScratchFolder.h"
#include "Sentences.h"
#include "TextModules.h"

namespace {

using bench::median;
using bench::medianRatio;
using bench::Sentence;

constexpr int kCount = 2000;
constexpr char kContext[] = "bench";

void run(const std::string& command) {
  if (std::system(command.c_str()) != 0)
    throw std::runtime_error("a peer's file could not be made with: " + command);
}

using Times = std::vector<std::vector<double>>;

// Of each contestant, round by round. They take turns, so that each meets the same machine.
Times timesOf(int rounds, const std::vector<std::function<void()>>& contestants) {
  Times times(contestants.size());
  for (int round = 0; round < rounds; ++round) {
    for (std::size_t i = 0; i < contestants.size(); ++i)
      times[i].push_back(1e9 * bench::seconds(contestants[i]));
  }
  return times;
}

// Each asks for every sentence once.
std::vector<std::function<void()>> contestants(const std::vector<Sentence>& asked, const QTranslator& qt) {
  return {[&asked] {
            for (const Sentence& one : asked) benchmark::DoNotOptimize(Localize(one.key.c_str()));
          },
          [&asked] {
            for (const Sentence& one : asked) benchmark::DoNotOptimize(gettext(one.key.c_str()));
          },
          [&asked, &qt] {
            for (const Sentence& one : asked) {
              benchmark::DoNotOptimize(qt.translate(kContext, one.key.c_str()));
            }
          }};
}

void checkAnswers(const std::vector<Sentence>& present, const QTranslator& qt) {
  for (const Sentence& one : present) {
    const char* silent = Localize(one.key.c_str()) != one.translation  ? "Localize"
                         : gettext(one.key.c_str()) != one.translation ? "gettext"
                         : qt.translate(kContext, one.key.c_str()).toStdString() != one.translation
                             ? "QTranslator"
                             : nullptr;
    if (silent != nullptr) throw std::runtime_error(std::string(silent) + " does not know: " + one.key);
  }
}

// Every byte of the file, looked at one by one, through a buffer as the text reader has it.
unsigned readBytes(const std::string& path) {
  constexpr std::size_t kBuffer = 65536;
  const auto buffer = std::make_unique<unsigned char[]>(kBuffer);
  std::FILE* file = std::fopen(path.c_str(), "rb");
  std::setvbuf(file, nullptr, _IONBF, 0);
  unsigned sum = 0;
  for (std::size_t got = 0; (got = std::fread(buffer.get(), 1, kBuffer, file)) > 0;) {
    for (std::size_t i = 0; i < got; ++i) {
      sum += buffer[i];
      benchmark::DoNotOptimize(sum);
    }
  }
  std::fclose(file);
  return sum;
}

double bytesPerEntry(const std::string& path) {
  const auto before = mallinfo2().uordblks;
  const RDB_Handle texts = RDB_Create();
  RDB_LoadText(texts.get(), path.c_str());
  return static_cast<double>(mallinfo2().uordblks - before) / kCount;
}

int judge() {
  const ScratchFolder scratch;
  std::vector<Sentence> present = bench::sentences(kCount, 1), missing = bench::sentences(kCount, 2);
  const std::string ours = scratch.write("B.bundle/Contents/Resources/texts.asc", bench::asTextFile(present));
  run("msgfmt -o '" + scratch.file("m.mo") + "' '" + scratch.write("m.po", bench::asPortableObject(present)) +
      "'");
  std::filesystem::create_directories(scratch.file("xx/LC_MESSAGES"));
  std::filesystem::rename(scratch.file("m.mo"), scratch.file("xx/LC_MESSAGES/bench.mo"));
  run("lrelease -silent '" + scratch.write("m.ts", bench::asTranslationSource(present, kContext)) + "'");

  SetLocaleEnvironment(scratch.file("B.bundle/Contents/Resources").c_str());
  RegisterTextModule("texts");
  setenv("LC_ALL", "C.UTF-8", 1);
  setenv("LANGUAGE", "xx", 1);
  std::setlocale(LC_ALL, "");
  bindtextdomain("bench", scratch.file("").c_str());
  textdomain("bench");
  QTranslator qt;
  if (!qt.load(QString::fromStdString(scratch.file("m.qm")))) throw std::runtime_error("no m.qm");

  checkAnswers(present, qt);
  std::mt19937 random(3);
  std::shuffle(present.begin(), present.end(), random);
  const Times hit = timesOf(301, contestants(present, qt));
  const Times miss = timesOf(101, contestants(missing, qt));
  RDB_Handle loaded;
  const auto loadTexts = [&] {
    loaded = RDB_Create();
    RDB_LoadText(loaded.get(), ours.c_str());
  };
  const auto takeDown = [&] { loaded.reset(); };
  const Times load =
      timesOf(301, {loadTexts, takeDown, [&ours] { benchmark::DoNotOptimize(readBytes(ours)); }});
  std::printf("ns a lookup: present %.0f (gettext %.0f, QTranslator %.0f), missing %.0f (%.0f, %.0f)\n",
              median(hit[0]) / kCount, median(hit[1]) / kCount, median(hit[2]) / kCount,
              median(miss[0]) / kCount, median(miss[1]) / kCount, median(miss[2]) / kCount);
  std::printf("loading %d entries: %.0f us, reading their %ju bytes: %.0f us\n", kCount,
              median(load[0]) / 1000, static_cast<std::uintmax_t>(std::filesystem::file_size(ours)),
              median(load[2]) / 1000);
  std::printf("memory an entry: %.0f bytes, of them %.0f of text\n\n", bytesPerEntry(ours),
              static_cast<double>(std::filesystem::file_size(ours)) / kCount - 8);
  bench::GoalTable table;
  table.atMost("present text, of gettext's time", medianRatio(hit[0], hit[1]), 0.5);
  table.atMost("present text, of QTranslator's time", medianRatio(hit[0], hit[2]), 0.5);
  table.atMost("missing text, of QTranslator's time", medianRatio(miss[0], miss[2]), 1);
  table.atMost(
      "loading, of reading the bytes", medianRatio(load[0], load[2]), 2,
      "an entry is a node and a shared value of its own: two allocations, a hash, a place in the index");
  return table.print();
}

}  // namespace

int main() {
  try {
    return judge() == 0 ? 0 : 1;
  } catch (const std::exception& problem) {
    std::fprintf(stderr, "bench-text: %s\n", problem.what());
    return 1;
  }
}
