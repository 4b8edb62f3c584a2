// The value behind a field for a number: kept in range, read from the field's text and written to it.
#pragma once

#include <QObject>
#include <boost/function.hpp>
#include <limits>

#include "Dimension.h"

#ifndef Q_MOC_RUN  // the meta-object bears the bare name of the class
namespace qRVADM {
#endif

// Knows its field through functions alone. An empty one throws boost::bad_function_call when it is called.
// They, and whoever hears Parsed, may delete the field together with its controller.
class DimensionController : public QObject {
  Q_OBJECT

 public:
  using TextReader = boost::function<QString()>;
  using TextWriter = boost::function<void(const QString&)>;
  using DefaultReader = boost::function<double(ADMUnits)>;  // what a typed percentage is of, in that unit

  // Writes the first text. `setTextAndParse` may call back to ParseImmediate.
  DimensionController(const TextReader& getText, const TextWriter& setTextAndParse, const TextWriter& setText,
                      Dimension dimension);

  Dimension GetDimension() const { return dimension; }
  // Takes over value and unit, held within the range, unless the value is a NaN. Unless `storeOnly`, the text
  // follows.
  void Set(Dimension wanted, bool storeOnly);
  void SetDimension(Dimension wanted);  // keeps the unit
  void SetUnit(ADMUnits unit);          // keeps the length

  // In points; the next Set goes by them. Until a minimum is set, it is the smallest positive number.
  void SetMinimum(double points) { minimum = points; }
  void SetMaximum(double points) { maximum = points; }
  double GetMinimum() const { return minimum; }
  double GetMaximum() const { return maximum; }

  void SetPrecision(int decimals);  // negative: what the unit has by default
  int GetPrecision() const;
  void SetGetDefault(const DefaultReader& function) { getDefault = function; }
  bool IsTextValid() const;
  // To the next multiple of `delta`, which is in the field's unit, upwards or downwards by its sign.
  void Step(double delta);

 Q_SIGNALS:
  void Parsed();
  void OutOfRange();  // never: the field shows the limit instead

 public Q_SLOTS:
  void Parse();           // a text that can't be read gives way to that of the value
  void ParseImmediate();  // the text stays as it was typed
  void FormatImmediate();

 private:
  Dimension Clamp(Dimension wanted) const;
  Dimension ReadText() const;  // the current value for a text that can't be read
  void SetFromText(bool storeOnly);
  void ShowText(const QString& text);

  Dimension dimension;
  TextReader getText;
  TextWriter setTextAndParse;
  TextWriter setText;
  DefaultReader getDefault;
  double maximum = std::numeric_limits<double>::max();
  double minimum = std::numeric_limits<double>::min();
  int precision = -1;
};

#ifndef Q_MOC_RUN
}  // namespace qRVADM
#endif
