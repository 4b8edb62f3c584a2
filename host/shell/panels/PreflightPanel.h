// The panel of what may go wrong on the table.
#pragma once

#include <QTimer>

#include "AITypes.h"
#include "HostPanel.h"
#include "PreflightModel.h"

namespace host {

class FindingList;

// Checks the document a moment after it has changed, while the panel is seen. A document that took long is
// checked only when the user asks for it.
class PreflightPanel : public HostPanel {
 public:
  // `fit` shows a part of the current document, in its units.
  PreflightPanel(Host& host, Session& session, std::function<void()> onChange,
                 std::function<void(const AIRealRect&)> fit);

  void refresh() override;

 protected:
  void fillMenu(QMenu& menu) override;
  void showEvent(QShowEvent* event) override;

 private:
  // A document as it is.
  struct State {
    std::uint32_t serial = 0;
    std::uint64_t revision = 0, mark = 0;

    bool operator==(const State& other) const {
      return serial == other.serial && revision == other.revision && mark == other.mark;
    }
  };
  static State stateOf(const Document& document);

  void check();
  void enter(int row);
  void step(int by);
  void select(const std::vector<ArtId>& art);

  std::function<void(const AIRealRect&)> fit_;
  PreflightModel model_;
  FindingList* list_;
  QTimer soon_;
  State checked_;
  bool isSlow_ = false;
  int stepped_ = -1;  // to which of the art of the current finding; -1: to all of it
};

}  // namespace host
