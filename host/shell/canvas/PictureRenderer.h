// The drawing of pictures beside the program's thread.
#pragma once

#include <QImage>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "SvgPicture.h"

class QObject;

namespace host {

// A part of the picture of all artboards as it is when the whole has this size. Device pixels, whole ones;
// the part's place is counted from the upper left corner of the whole.
struct PictureCut {
  std::uint64_t revision = 0;  // of the document that is shown
  double width = 0, height = 0;
  PixelRect part{};
};

struct DrawnPicture {
  PictureCut cut;
  QImage image;                       // of the part: sheets are white, what lies between them is clear
  std::string complaint;              // a clause on why it could not be drawn; then there is no image
  std::chrono::milliseconds took{0};  // of work: not what the thread waited for a processor
};

// Draws the newest drawing it was handed, in a thread of Qt's pool. Of each kind only the newest request
// counts; sharp pictures are drawn before overviews. Nothing is shared but what is handed over by value.
class PictureRenderer {
 public:
  enum Kind : std::size_t { kSharp, kOverview };
  static constexpr std::size_t kKinds = 2;

  struct Source {
    SvgPictureSource svg;
    std::vector<AIRealRect> sheets;  // document units
  };

  // `onDrawn` is called in the thread of `receiver`, by its event loop, while this lives: there is something
  // to take, unless it was taken meanwhile.
  PictureRenderer(QObject& receiver, std::function<void()> onDrawn);
  PictureRenderer(const PictureRenderer&) = delete;
  PictureRenderer& operator=(const PictureRenderer&) = delete;
  ~PictureRenderer();  // does not wait for what is being drawn

  // To be drawn from the next request on; those before it are dropped. A picture that is being drawn is still
  // the former one.
  void load(Source source);
  void draw(Kind kind, const PictureCut& cut);
  // Until the newest request of the kind is answered, or for so long. False: it is not.
  bool wait(Kind kind, std::chrono::milliseconds longest);
  // The newest that was drawn and is not taken yet.
  std::optional<DrawnPicture> take(Kind kind);

 private:
  struct Desk;

  const std::shared_ptr<Desk> desk_;
};

// Where a rectangle of the document lies in the whole picture of a size, between whole pixels.
PixelRect placeInPicture(const AIRealRect& rect, const AIRealRect& bounds, double width, double height);

}  // namespace host
