// Answers at random whatever dialog or menu comes up.
#pragma once

#include <QObject>

class QWidget;

namespace host {

class Chance;
class Diary;

class DialogUse {
 public:
  DialogUse(Chance& chance, Diary& diary);  // which must outlive the object

  // To be called before each action of the user.
  void begin() { done_ = 0; }
  // A dialog that was left with Return, Escape and its close button, again and again, and is still there.
  bool isStuck() const { return done_ > kTooMuch; }

 private:
  static constexpr int kEnough = 30;  // from then on dialogs are only left
  static constexpr int kTooMuch = 120;

  void look();
  void use(QWidget& dialog);
  void leave(QWidget& dialog);

  Chance& chance_;
  Diary& diary_;
  QObject context_;  // ends the timers
  int done_ = 0;
};

}  // namespace host
