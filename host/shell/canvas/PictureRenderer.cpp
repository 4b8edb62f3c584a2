#include "PictureRenderer.h"

#include <QMetaObject>
#include <QObject>
#include <QThreadPool>
#include <algorithm>
#include <array>
#include <cmath>
#include <condition_variable>
#include <ctime>
#include <mutex>
#include <utility>

namespace host {
namespace {

using std::chrono::milliseconds;

// That this thread has worked so far.
milliseconds workSoFar() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return milliseconds(now.tv_sec * 1000 + now.tv_nsec / 1'000'000);
}

// What the thread works with and nobody else touches.
class Worker {
 public:
  void load(PictureRenderer::Source source) {
    picture_.reset();
    complaint_.clear();
    sheets_ = std::move(source.sheets);
    auto loaded = SvgPicture::load(std::move(source.svg));
    if (std::string* reason = std::get_if<std::string>(&loaded)) {
      complaint_ = std::move(*reason);
    } else {
      picture_ = std::move(std::get<SvgPicture>(loaded));
    }
  }

  DrawnPicture draw(const PictureCut& cut) {
    DrawnPicture drawn{cut, {}, complaint_, {}};
    if (!picture_) return drawn;
    const milliseconds start = workSoFar();
    const PixelRect& part = cut.part;
    QImage image(static_cast<int>(part.width), static_cast<int>(part.height),
                 QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return {cut, {}, "there is too little memory for its picture", {}};
    fillSheets(image, cut);
    drawn.complaint = picture_->drawOver({image.bits(), image.width(), image.height(), image.bytesPerLine()},
                                         {-part.x, -part.y, cut.width, cut.height});
    if (drawn.complaint.empty()) drawn.image = std::move(image);
    drawn.took = workSoFar() - start;
    return drawn;
  }

 private:
  void fillSheets(QImage& image, const PictureCut& cut) const {
    image.fill(Qt::transparent);
    for (const AIRealRect& sheet : sheets_) {
      const PixelRect place = placeInPicture(sheet, picture_->bounds(), cut.width, cut.height);
      const QRectF shown(place.x - cut.part.x, place.y - cut.part.y, place.width, place.height);
      const QRect inside = (shown & QRectF(image.rect())).toRect();
      for (int y = inside.top(); y <= inside.bottom(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::fill(row + inside.left(), row + inside.right() + 1, qRgb(255, 255, 255));
      }
    }
  }

  std::optional<SvgPicture> picture_;
  std::string complaint_;
  std::vector<AIRealRect> sheets_;
};

}  // namespace

// What the two threads hand each other; it lasts until both have left it.
struct PictureRenderer::Desk {
  struct Request {
    Kind kind;
    PictureCut cut;
    std::uint64_t number;
  };

  std::mutex mutex;  // for all but `worker`, which belongs to whoever set `isAtWork`
  std::condition_variable answered;
  QObject* receiver = nullptr;  // null: the renderer is gone
  std::function<void()> onDrawn;
  std::optional<Source> source;
  std::array<std::optional<Request>, kKinds> requests;
  std::array<std::optional<DrawnPicture>, kKinds> drawn;
  std::array<std::uint64_t, kKinds> asked{};  // numbers of the newest requests, and of the newest answers
  std::array<std::uint64_t, kKinds> given{};
  bool isAtWork = false;
  Worker worker;

  std::optional<Request> nextRequest() {
    for (std::optional<Request>& request : requests) {
      if (request) return std::exchange(request, std::nullopt);
    }
    return std::nullopt;
  }

  void give(const Request& request, DrawnPicture picture) {
    drawn[request.kind] = std::move(picture);
    given[request.kind] = std::max(given[request.kind], request.number);
    answered.notify_all();
    if (receiver != nullptr) QMetaObject::invokeMethod(receiver, onDrawn, Qt::QueuedConnection);
  }

  // Until there is nothing left to do. While it is busy the desk is open to the others.
  void work() {
    std::unique_lock<std::mutex> lock(mutex);
    while (receiver != nullptr) {
      if (std::optional<Source> fresh = std::exchange(source, std::nullopt)) {
        lock.unlock();
        worker.load(std::move(*fresh));
        lock.lock();
        continue;
      }
      const std::optional<Request> request = nextRequest();
      if (!request) break;
      lock.unlock();
      DrawnPicture picture = worker.draw(request->cut);
      lock.lock();
      give(*request, std::move(picture));
    }
    isAtWork = false;
  }
};

PictureRenderer::PictureRenderer(QObject& receiver, std::function<void()> onDrawn)
    : desk_(std::make_shared<Desk>()) {
  desk_->receiver = &receiver;
  desk_->onDrawn = std::move(onDrawn);
}

PictureRenderer::~PictureRenderer() {
  const std::lock_guard<std::mutex> lock(desk_->mutex);
  desk_->receiver = nullptr;
  desk_->requests = {};
}

void PictureRenderer::load(Source source) {
  const std::lock_guard<std::mutex> lock(desk_->mutex);
  desk_->source = std::move(source);
  desk_->requests = {};
  desk_->given = desk_->asked;
}

void PictureRenderer::draw(Kind kind, const PictureCut& cut) {
  const std::lock_guard<std::mutex> lock(desk_->mutex);
  desk_->requests[kind] = Desk::Request{kind, cut, ++desk_->asked[kind]};
  if (std::exchange(desk_->isAtWork, true)) return;
  QThreadPool::globalInstance()->start([desk = desk_] { desk->work(); });
}

bool PictureRenderer::wait(Kind kind, milliseconds longest) {
  std::unique_lock<std::mutex> lock(desk_->mutex);
  return desk_->answered.wait_for(lock, longest, [&] { return desk_->given[kind] == desk_->asked[kind]; });
}

std::optional<DrawnPicture> PictureRenderer::take(Kind kind) {
  const std::lock_guard<std::mutex> lock(desk_->mutex);
  return std::exchange(desk_->drawn[kind], std::nullopt);
}

PixelRect placeInPicture(const AIRealRect& rect, const AIRealRect& bounds, double width, double height) {
  const double perX = width / (bounds.right - bounds.left);
  const double perY = height / (bounds.top - bounds.bottom);
  const double left = std::round((rect.left - bounds.left) * perX);
  const double top = std::round((bounds.top - rect.top) * perY);
  const double right = std::round((rect.right - bounds.left) * perX);
  const double bottom = std::round((bounds.top - rect.bottom) * perY);
  return {left, top, right - left, bottom - top};
}

}  // namespace host
