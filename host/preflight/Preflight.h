// What is likely to go wrong when a document is printed and cut.
#pragma once

#include <string>
#include <vector>

#include "Document.h"

namespace host {

enum class FindingKind {
  OpenPath,      // in a line type that cuts through or part of the way, or nearly closed
  DoubledLine,   // lines of one type over each other, wholly or in part
  OutOfReach,    // art of a line type, or marks, hidden or locked
  NearMissName,  // names that differ in case or blanks only; a usual line type without its colour or layer
  WrongLayer,    // painted as a line type, but not on its layer, or the other way round
  OutsideMarks,  // lines that leave the hull of the marks, or lie on a sheet without any
  InClearZone,   // art too near to a mark for a camera
  SymmetricalMarks,  // the sheet can be turned by 180 degrees unnoticed
  TinySegment,       // lines of a line type that a tool can hardly follow
  LiveText           // text on the layer of a line type, or painted as one
};

struct Finding {
  FindingKind kind;
  std::string sentence;    // for people: what, where and why it matters, without a full stop
  std::vector<ArtId> art;  // to select; may be empty
  std::string place;       // the line type's or layer's name; may be empty
};

// A short stable name for programs, such as "open-path".
const char* keyOf(FindingKind kind);

// In the order of FindingKind, then of the stack from the top. Art of one kind, type and reason is one
// finding with all of it. Takes time in the order of n log n for n segments.
std::vector<Finding> preflight(const Document& document);

}  // namespace host
