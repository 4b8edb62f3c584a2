#include "SvgPathText.h"

#include "Geometry.h"
#include "SvgNumber.h"
#include "SvgOutline.h"

namespace host {
namespace {

bool same(AIRealPoint a, AIRealPoint b) {
  return a.x == b.x && a.y == b.y;
}

class DataText {
 public:
  DataText(std::string& data, const AIRealMatrix& userFromDocument)
      : data_(data), userFromDocument_(userFromDocument) {}

  void command(char letter) {
    if (!data_.empty()) data_ += ' ';
    data_ += letter;
  }

  void point(AIRealPoint documentPoint) {
    const AIRealPoint user = apply(userFromDocument_, documentPoint);
    data_ += ' ';
    appendNumber(data_, user.x);
    data_ += ',';
    appendNumber(data_, user.y);
  }

  void side(const AIPathSegment& from, const AIPathSegment& to) {
    if (same(from.p, from.out) && same(to.in, to.p)) {
      command('L');
    } else {
      command('C');
      point(from.out);
      point(to.in);
    }
    point(to.p);
  }

 private:
  std::string& data_;
  const AIRealMatrix& userFromDocument_;
};

// Readers join a last anchor that lies on the first one, so that Z alone stands for a straight side
// between two different places only.
bool closesByItself(const AIPathSegment& last, const AIPathSegment& first,
                    const AIRealMatrix& userFromDocument) {
  return same(last.p, last.out) && same(first.in, first.p) &&
         !SvgOutline::coincide(apply(userFromDocument, last.p), apply(userFromDocument, first.p));
}

}  // namespace

void appendPathData(std::string& data, const PathGeometry& path, const AIRealMatrix& userFromDocument) {
  if (path.segments.empty()) return;
  DataText text(data, userFromDocument);
  const AIPathSegment& first = path.segments.front();
  const AIPathSegment& last = path.segments.back();
  text.command('M');
  text.point(first.p);
  for (std::size_t i = 1; i < path.segments.size(); ++i) text.side(path.segments[i - 1], path.segments[i]);
  const bool isLone = path.segments.size() == 1;  // a move alone would not be read as a path
  if (!path.closed && !isLone) return;
  if (path.closed && !closesByItself(last, first, userFromDocument)) text.side(last, first);
  text.command('Z');
}

}  // namespace host
