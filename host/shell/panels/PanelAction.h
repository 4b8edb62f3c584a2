// What the user does in panels of plug-ins, in words.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace host {

class Contexts;

// As long as this lives, the steps of contexts that are pushed at a click or a key in a plug-in's panel are
// named like the button or the row that was used.
class PanelAction : public QObject {
 public:
  explicit PanelAction(Contexts& contexts);  // must outlive this
  ~PanelAction() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::string name() const;

  Contexts& contexts_;
  QPointer<QWidget> used_;  // last, in whatever window
};

}  // namespace host
