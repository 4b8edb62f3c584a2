#include "Autosave.h"

#include <algorithm>
#include <ctime>
#include <memory>
#include <utility>

#include "Complain.h"
#include "Host.h"
#include "Workspace.h"

namespace host {

Autosave::Autosave(const Workspace& workspace, const std::string& root, int seconds)
    : workspace_(workspace), isOn_(!root.empty() && seconds > 0), folder_(root) {
  if (!isOn_) return;
  QObject::connect(&timer_, &QTimer::timeout, [this] {
    removeNeedless();
    writeChanged();
    complainOnce();
  });
  timer_.start(seconds * 1000);
}

void Autosave::writeNow() {
  writeChanged();
  thread_.finish();
  complainOnce();
}

void Autosave::follow() {
  removeNeedless();
}

void Autosave::writeChanged() {
  if (!isOn_) return;
  for (const auto& drawing : workspace_.all()) {
    if (!drawing->isModified()) continue;
    const auto known = written_.find(drawing->document().serial());
    if (known == written_.end() || known->second != drawing->document().stateMark()) write(*drawing);
  }
}

void Autosave::write(const OpenDrawing& drawing) {
  const std::uint32_t number = drawing.document().serial();
  const RecoveryNote note{drawing.shown->title, drawing.shown->file, std::int64_t{std::time(nullptr)}};
  const auto svg = std::make_shared<const std::string>(writeSvg(drawing.drawing));
  written_[number] = drawing.document().stateMark();
  thread_.post([this, number, note, svg] {
    std::string reason = folder_.write(number, note, *svg);
    const std::lock_guard<std::mutex> guard(mutex_);
    if (failure_.empty()) failure_ = std::move(reason);
  });
}

void Autosave::removeNeedless() {
  for (auto copy = written_.begin(); copy != written_.end();) {
    const std::uint32_t number = copy->first;
    const auto& all = workspace_.all();
    const bool isNeeded = std::any_of(all.begin(), all.end(), [&](const auto& drawing) {
      return drawing->document().serial() == number && drawing->isModified();
    });
    if (isNeeded) {
      ++copy;
      continue;
    }
    copy = written_.erase(copy);
    thread_.post([this, number] { folder_.remove(number); });
  }
}

void Autosave::complainOnce() {
  const std::lock_guard<std::mutex> guard(mutex_);
  if (!hasComplained_ && !failure_.empty()) complain(failure_);
  hasComplained_ = !failure_.empty();
}

}  // namespace host
