// Lengths of the control style in logical pixels, all from the font of the control.
#pragma once

class QFontMetrics;
class QStyleOption;
class QWidget;

namespace host::look {

class Measures {
 public:
  explicit Measures(const QFontMetrics& metrics);
  // The font of the option, else of the widget, else of the application.
  Measures(const QStyleOption* option, const QWidget* widget);

  int text() const { return text_; }                     // the height of a line
  int control() const { return text_ + 2 * padding(); }  // of buttons, fields and lists that drop down
  int padding() const { return share(0.25); }            // above and below a text in a control
  int sidePadding() const { return share(0.45); }
  int buttonPadding() const { return share(0.85); }
  int modalButtonWidth() const { return share(5.6); }  // at least
  int indicator() const { return share(0.85) | 1; }    // odd, so that it has a middle
  int chevron() const { return share(0.5); }
  int arrowArea() const { return control() * 4 / 5; }
  int spinArea() const { return share(1.1); }
  int scrollBar() const { return share(0.8); }
  int sliderHandle() const { return share(0.85) | 1; }
  int row() const { return text_ + share(0.3); }
  int bar() const { return text_ + 2 * share(0.35); }  // of menus, tabs and titles
  int menuColumn() const { return share(1.5); }
  double radius() const { return text_ * 0.2; }

 private:
  int share(double of) const;

  int text_;
};

}  // namespace host::look
