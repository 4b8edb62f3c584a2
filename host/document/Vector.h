// Arithmetic of points taken as vectors.
#pragma once

#include <cmath>

#include "AITypes.h"

namespace host {

inline AIRealPoint operator+(AIRealPoint a, AIRealPoint b) {
  return {a.x + b.x, a.y + b.y};
}
inline AIRealPoint operator-(AIRealPoint a, AIRealPoint b) {
  return {a.x - b.x, a.y - b.y};
}
inline AIRealPoint operator-(AIRealPoint a) {
  return {-a.x, -a.y};
}
inline AIRealPoint operator*(AIRealPoint a, double factor) {
  return {a.x * factor, a.y * factor};
}
inline bool operator==(AIRealPoint a, AIRealPoint b) {
  return a.x == b.x && a.y == b.y;
}
inline bool operator!=(AIRealPoint a, AIRealPoint b) {
  return !(a == b);
}

inline double dot(AIRealPoint a, AIRealPoint b) {
  return a.x * b.x + a.y * b.y;
}
inline double cross(AIRealPoint a, AIRealPoint b) {
  return a.x * b.y - a.y * b.x;
}  // > 0: b lies left of a
inline double squaredLength(AIRealPoint a) {
  return dot(a, a);
}
inline double length(AIRealPoint a) {
  return std::sqrt(squaredLength(a));
}
inline AIRealPoint leftOf(AIRealPoint a) {
  return {-a.y, a.x};
}
// The null vector stays what it is.
inline AIRealPoint unit(AIRealPoint a) {
  const double size = std::hypot(a.x, a.y);
  return size > 0 ? a * (1 / size) : a;
}

}  // namespace host
