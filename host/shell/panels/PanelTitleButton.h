// A button in the title of a panel.
#pragma once

#include <QToolButton>

namespace host {

// Drawn in the ink of its palette, so that it follows the theme at once.
class PanelTitleButton : public QToolButton {
 public:
  enum class Glyph { State, Menu, Collapse, Expand, Float, Dock, Close };

  explicit PanelTitleButton(Glyph glyph);

  // `text`: what a click does, for people.
  void show(Glyph glyph, const QString& text);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Glyph glyph_;
};

}  // namespace host
