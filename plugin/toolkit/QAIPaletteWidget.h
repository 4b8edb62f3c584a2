// What joins a palette to the view of a panel.
#pragma once

#include <QWidget>

struct NativeView;

namespace qRVADM {

// Stands in the host's view and ends with it at the latest. The dialog in it does not end with it.
class QAIPaletteWidget : public QWidget {
 public:
  explicit QAIPaletteWidget(NativeView* hostView);
  ~QAIPaletteWidget() override;

  void SetNativeFrame(const QRect& frame);  // pixels of the host's view

 protected:
  bool focusNextPrevChild(bool next) override;  // Tab stays in the palette
};

}  // namespace qRVADM
