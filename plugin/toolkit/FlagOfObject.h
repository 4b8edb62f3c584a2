// A flag of an object that may not outlive what it is set for.
#pragma once

#include <QPointer>

namespace qRVADM {

// Puts the flag back to what it was, however the scope is left, unless its object is gone by then.
class FlagOfObject {
 public:
  FlagOfObject(QObject* owner, bool& variable, bool value) : object(owner), flag(variable), before(variable) {
    flag = value;
  }
  FlagOfObject(const FlagOfObject&) = delete;
  FlagOfObject& operator=(const FlagOfObject&) = delete;
  ~FlagOfObject() {
    if (object) flag = before;
  }

 private:
  const QPointer<QObject> object;
  bool& flag;
  const bool before;
};

}  // namespace qRVADM
