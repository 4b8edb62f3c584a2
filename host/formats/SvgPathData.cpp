#include "SvgPathData.h"

#include "SvgScanner.h"

namespace host {
namespace {

AIRealPoint plus(AIRealPoint a, AIRealPoint b) {
  return {a.x + b.x, a.y + b.y};
}
AIRealPoint mirrored(AIRealPoint point, AIRealPoint centre) {
  return {2 * centre.x - point.x, 2 * centre.y - point.y};
}

char upper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

class PathDataReader {
 public:
  PathDataReader(std::string_view data, SvgOutline& outline) : scanner_(data), outline_(outline) {}

  std::optional<SvgFault> read() {
    scanner_.skipBlanks();
    while (!scanner_.atEnd()) {
      if (!readCommandAndItsRepeats()) return SvgFault{reason_, scanner_.offset()};
      scanner_.skipBlanks();
    }
    return std::nullopt;
  }

 private:
  bool fail(std::string reason) {
    reason_ = std::move(reason);
    return false;
  }

  bool readCommandAndItsRepeats() {
    char letter = scanner_.peek();
    const std::string_view known = "MmLlHhVvCcSsQqTtAaZz";
    if (known.find(letter) == std::string_view::npos) return fail("a path command is missing");
    if (!begun_ && upper(letter) != 'M') return fail("path data begin with a move");
    begun_ = true;
    scanner_.next();
    afterCommand_ = true;
    if (upper(letter) == 'Z') {
      outline_.close();
      last_ = 'Z';
      return true;
    }
    do {
      if (!readOne(upper(letter), letter != upper(letter))) return false;
      last_ = upper(letter);
      if (letter == 'M') letter = 'L';
      if (letter == 'm') letter = 'l';
    } while (anotherNumberFollows());
    return true;
  }

  // Takes the comma before it; one that no number follows is left for the error.
  bool anotherNumberFollows() {
    SvgScanner ahead = scanner_;
    ahead.skipCommaBlanks();
    const char c = ahead.peek();
    if (!isSvgDigit(c) && c != '.' && c != '-' && c != '+') return false;
    scanner_ = ahead;
    return true;
  }

  bool readOne(char command, bool relative) {
    const AIRealPoint base = relative ? outline_.current() : AIRealPoint{0, 0};
    switch (command) {
      case 'M':
        return readMove(base);
      case 'L':
        return readLine(base);
      case 'H':
        return readHorizontal(base);
      case 'V':
        return readVertical(base);
      case 'C':
        return readCubic(base);
      case 'S':
        return readSmoothCubic(base);
      case 'Q':
        return readQuadratic(base);
      case 'T':
        return readSmoothQuadratic(base);
      default:
        return readArc(base);
    }
  }

  bool readMove(AIRealPoint base) {
    AIRealPoint to{};
    if (!point(base, to)) return false;
    outline_.moveTo(to);
    return true;
  }

  bool readLine(AIRealPoint base) {
    AIRealPoint to{};
    if (!point(base, to)) return false;
    outline_.lineTo(to);
    return true;
  }

  bool readHorizontal(AIRealPoint base) {
    double x = 0;
    if (!number(x)) return false;
    outline_.lineTo({base.x + x, outline_.current().y});
    return true;
  }

  bool readVertical(AIRealPoint base) {
    double y = 0;
    if (!number(y)) return false;
    outline_.lineTo({outline_.current().x, base.y + y});
    return true;
  }

  bool readCubic(AIRealPoint base) {
    AIRealPoint control1{};
    AIRealPoint to{};
    if (!point(base, control1) || !point(base, control_) || !point(base, to)) return false;
    outline_.cubicTo(control1, control_, to);
    return true;
  }

  bool readSmoothCubic(AIRealPoint base) {
    const bool continues = last_ == 'C' || last_ == 'S';
    const AIRealPoint from = outline_.current();
    const AIRealPoint control1 = continues ? mirrored(control_, from) : from;
    AIRealPoint to{};
    if (!point(base, control_) || !point(base, to)) return false;
    outline_.cubicTo(control1, control_, to);
    return true;
  }

  bool readQuadratic(AIRealPoint base) {
    AIRealPoint to{};
    if (!point(base, control_) || !point(base, to)) return false;
    outline_.quadraticTo(control_, to);
    return true;
  }

  bool readSmoothQuadratic(AIRealPoint base) {
    const bool continues = last_ == 'Q' || last_ == 'T';
    const AIRealPoint from = outline_.current();
    AIRealPoint to{};
    if (!point(base, to)) return false;
    control_ = continues ? mirrored(control_, from) : from;
    outline_.quadraticTo(control_, to);
    return true;
  }

  bool readArc(AIRealPoint base) {
    AIRealPoint radii{};
    double rotation = 0;
    bool large = false;
    bool sweep = false;
    AIRealPoint to{};
    if (!point({0, 0}, radii) || !number(rotation) || !flag(large) || !flag(sweep) || !point(base, to)) {
      return false;
    }
    outline_.arcTo(radii, rotation, large, sweep, to);
    return true;
  }

  bool point(AIRealPoint base, AIRealPoint& to) {
    AIRealPoint read{};
    if (!number(read.x) || !number(read.y)) return false;
    to = plus(base, read);
    return true;
  }

  // The blanks and the comma before a number are taken with it.
  bool number(double& value) {
    skipSeparator();
    const std::optional<double> read = scanner_.number();
    if (!read) return fail("a number is missing");
    value = *read;
    afterCommand_ = false;
    return true;
  }

  // Flags need no blank behind them.
  bool flag(bool& value) {
    skipSeparator();
    if (scanner_.peek() != '0' && scanner_.peek() != '1') return fail("an arc flag is 0 or 1");
    value = scanner_.next() == '1';
    return true;
  }

  // No comma may stand between a command and its first number.
  void skipSeparator() {
    scanner_.skipBlanks();
    if (!afterCommand_ && scanner_.take(',')) scanner_.skipBlanks();
  }

  SvgScanner scanner_;
  SvgOutline& outline_;
  std::string reason_;
  AIRealPoint control_{};  // the last control point of the curve before
  char last_ = 'Z';
  bool begun_ = false;
  bool afterCommand_ = false;
};

}  // namespace

std::optional<SvgFault> readPathData(std::string_view data, SvgOutline& outline) {
  return PathDataReader(data, outline).read();
}

std::optional<SvgFault> readPoints(std::string_view points, bool close, SvgOutline& outline) {
  SvgScanner scanner(points);
  bool first = true;
  std::optional<SvgFault> fault;
  scanner.skipBlanks();
  while (!scanner.atEnd()) {
    const std::optional<double> x = scanner.number();
    scanner.skipCommaBlanks();
    const std::optional<double> y = x ? scanner.number() : std::nullopt;
    if (!y) {
      fault = SvgFault{"a number is missing", scanner.offset()};
      break;
    }
    first ? outline.moveTo({*x, *y}) : outline.lineTo({*x, *y});
    first = false;
    scanner.skipCommaBlanks();
  }
  if (close && !first) outline.close();
  return fault;
}

}  // namespace host
