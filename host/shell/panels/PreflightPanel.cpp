#include "PreflightPanel.h"

#include <QElapsedTimer>
#include <QMenu>
#include <algorithm>
#include <iterator>
#include <utility>

#include "Bounds.h"
#include "Document.h"
#include "FindingList.h"
#include "Geometry.h"
#include "ProcessingSteps.h"

namespace host {
namespace {

// Milliseconds.
constexpr int kPause = 400;        // after the last of several changes
constexpr qint64 kPatience = 300;  // a check that takes longer would be felt in the midst of work
constexpr double kRoom = 85;       // points around what is shown, about 3 cm

AIRealRect boundsOf(const Document& document, const std::vector<ArtId>& art) {
  std::vector<ArtId> alive;
  std::copy_if(art.begin(), art.end(), std::back_inserter(alive),
               [&](ArtId id) { return document.art(id) != nullptr; });
  return inflated(commonBounds(document, alive, kNoStrokeBounds), kRoom / document.scale());
}

QString allClearOf(const Document& document) {
  return typesWithSteps(document).empty() ? "No findings, as there are no line types" : "No findings";
}

}  // namespace

PreflightPanel::PreflightPanel(Host& host, Session& session, std::function<void()> onChange,
                               std::function<void(const AIRealRect&)> fit)
    : HostPanel(host, session, std::move(onChange)), fit_(std::move(fit)), list_(new FindingList(this)) {
  fillWith(*list_);
  list_->setModel(&model_);
  list_->onMenu = [this](const QPoint& place) { makeMenu()->popup(place); };
  list_->onTurned = [this](int row) { enter(row); };
  list_->onEntered = [this](int row) { enter(row); };
  list_->onStep = [this](int by) { step(by); };
  list_->onCheck = [this] { check(); };
  soon_.setSingleShot(true);
  connect(&soon_, &QTimer::timeout, this, [this] { check(); });
}

PreflightPanel::State PreflightPanel::stateOf(const Document& document) {
  return {document.serial(), document.revision(), document.stateMark()};
}

void PreflightPanel::refresh() {
  const auto current = document();
  if (current == nullptr) {
    soon_.stop();
    checked_ = {};
    return model_.showNothing();
  }
  if (!isVisible()) return;
  const State state = stateOf(*current);
  if (state == checked_) return;
  if (state.serial != checked_.serial) {
    model_.showNothing();
    return soon_.start(0);
  }
  if (isSlow_) return model_.markStale();
  if (!soon_.isActive()) soon_.start(kPause);
}

void PreflightPanel::showEvent(QShowEvent* event) {
  HostPanel::showEvent(event);
  refresh();
}

void PreflightPanel::check() {
  const auto current = document();
  if (current == nullptr || !isVisible()) return;
  QElapsedTimer timer;
  timer.start();
  checked_ = stateOf(*current);
  const int row = list_->currentIndex().row();
  model_.show(preflight(*current), allClearOf(*current));
  isSlow_ = timer.elapsed() > kPatience;
  stepped_ = -1;
  if (row >= 0) list_->standAt(std::min(row, model_.rowCount() - 1));
}

void PreflightPanel::enter(int row) {
  if (model_.isStaleRow(row)) return soon_.start(0);
  stepped_ = -1;
  const Finding* const found = model_.findingAt(row);
  if (found != nullptr) select(std::vector<ArtId>(found->art));  // a refresh may replace the rows
}

// Round and round through the art of the current finding, one by one.
void PreflightPanel::step(int by) {
  const Finding* const found = model_.findingAt(list_->currentIndex().row());
  if (found == nullptr || found->art.empty()) return;
  const int count = static_cast<int>(found->art.size());
  const int from = stepped_ < 0 && by < 0 ? 0 : stepped_;
  stepped_ = (from + by + count) % count;
  select({found->art[static_cast<std::size_t>(stepped_)]});
}

// Art that is out of reach cannot be selected: its layer becomes the current one, where it can be shown.
void PreflightPanel::select(const std::vector<ArtId>& art) {
  choose([&](Document& document) {
    document.deselectAll();
    for (const ArtId id : art) {
      if (document.art(id) != nullptr && document.isEditable(id)) document.setSelected(id, true);
    }
    const bool isReached = document.selectedCount() > 0;
    if (!isReached && !art.empty() && document.art(art.front()) != nullptr) {
      document.setCurrentLayer(document.layerOfArt(art.front()));
    }
  });
  const auto current = document();
  const AIRealRect bounds = current == nullptr ? kEmptyRect : boundsOf(*current, art);
  if (!isEmpty(bounds)) fit_(bounds);
}

void PreflightPanel::fillMenu(QMenu& menu) {
  const int row = list_->currentIndex().row();
  addCommand(menu, "&Check Again\tF5", document() != nullptr, [this] { check(); });
  const bool isFinding = model_.findingAt(row) != nullptr;
  addCommand(menu, "&Select All of Its Art\tReturn", isFinding, [this, row] { enter(row); });
  addCommand(menu, "Select &Next of Its Art\tRight", isFinding, [this] { step(1); });
  addCommand(menu, "Select &Previous of Its Art\tLeft", isFinding, [this] { step(-1); });
}

}  // namespace host
