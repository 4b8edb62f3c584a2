#include "AIPath.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "Entry.h"
#include "Lookup.h"
#include "PathEdit.h"
#include "Suites.h"

namespace host {
namespace {

constexpr std::size_t kMaxCount = std::numeric_limits<std::int16_t>::max();

struct PathRef : ArtRef {
  AIErr error = kNoErr;  // why there is no such path

  const PathGeometry& path() const { return *record->path; }
};

PathRef findPath(Host& host, AIArtHandle handle) {
  PathRef path{findArt(host, handle), kNoErr};
  if (!path) {
    path.error = kBadParameterErr;
  } else if (path->type != kPathArt) {
    path.error = kWrongKindErr;
  }
  return path;
}

PathRef findEditablePath(Host& host, AIArtHandle handle) {
  PathRef path = findPath(host, handle);
  if (path.error == kNoErr && !path.document->isEditable(path.id)) path.error = kLayerLockedErr;
  return path;
}

bool isFinite(const AIPathSegment& segment) {
  for (const AIRealPoint& point : {segment.p, segment.in, segment.out}) {
    if (!std::isfinite(point.x) || !std::isfinite(point.y)) return false;
  }
  return true;
}

// A path of more segments than the count can tell is out of reach: better refused than cut short.
AIErr getPathSegmentCount(Host& host, AIArtHandle handle, std::int16_t* count) {
  const PathRef path = findPath(host, handle);
  if (path.error != kNoErr) return path.error;
  const std::size_t segments = path.path().segments.size();
  if (count == nullptr || segments > kMaxCount) return kBadParameterErr;
  *count = static_cast<std::int16_t>(segments);
  return kNoErr;
}

AIErr getPathSegments(Host& host, AIArtHandle handle, std::int16_t first, std::int16_t count,
                      AIPathSegment* segments) {
  const PathRef path = findPath(host, handle);
  if (path.error != kNoErr) return path.error;
  if (first < 0 || count < 0 || segments == nullptr) return kBadParameterErr;
  const auto& all = path.path().segments;
  const auto begin = static_cast<std::size_t>(first);
  const auto length = static_cast<std::size_t>(count);
  if (begin + length > all.size()) return kNoSuchItemErr;
  std::copy_n(all.begin() + first, length, segments);
  return kNoErr;
}

AIErr setPathSegments(Host& host, AIArtHandle handle, std::int16_t first, std::int16_t count,
                      const AIPathSegment* segments) {
  const PathRef path = findEditablePath(host, handle);
  if (path.error != kNoErr) return path.error;
  if (first < 0 || count < 0 || segments == nullptr || !std::all_of(segments, segments + count, isFinite)) {
    return kBadParameterErr;
  }
  const auto begin = static_cast<std::size_t>(first);
  const auto end = begin + static_cast<std::size_t>(count);
  if (begin > path.path().segments.size()) return kNoSuchItemErr;
  const PathEdit edit(*path.document, path.id, host.objects().lastPath);
  if (end > edit->segments.size()) edit->segments.resize(end);
  std::copy_n(segments, count, edit->segments.begin() + first);
  return kNoErr;
}

AIErr getPathClosed(Host& host, AIArtHandle handle, AIBoolean* closed) {
  const PathRef path = findPath(host, handle);
  if (path.error != kNoErr) return path.error;
  if (closed == nullptr) return kBadParameterErr;
  *closed = path.path().closed ? 1 : 0;
  return kNoErr;
}

AIErr setPathClosed(Host& host, AIArtHandle handle, AIBoolean closed) {
  const PathRef path = findEditablePath(host, handle);
  if (path.error != kNoErr) return path.error;
  if (path.path().closed == (closed != 0)) return kNoErr;
  const PathEdit edit(*path.document, path.id, host.objects().lastPath);
  edit->closed = closed != 0;
  return kNoErr;
}

}  // namespace

SuiteOffer pathSuite() {
  SuiteEntries entries(kAIPathSuite);
  static const AIPathSuite table{
      entries.add<getPathSegmentCount>("GetPathSegmentCount"),
      entries.add<getPathSegments>("GetPathSegments"),
      entries.add<setPathSegments>("SetPathSegments"),
      entries.add<getPathClosed>("GetPathClosed"),
      entries.add<setPathClosed>("SetPathClosed"),
  };
  return entries.offer(kAIPathSuiteVersion, &table);
}

}  // namespace host
