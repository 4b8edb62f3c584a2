// What a user does with the selection as a whole.
#pragma once

#include <vector>

#include "Document.h"

namespace host {

// Of `top` and all it holds, what can be selected: paths that are in no compound path, compound paths and art
// of other kinds, neither locked nor hidden by themselves or by what they lie in. A path inside a compound
// path stands for the whole.
std::vector<ArtId> selectableArt(const Document& document, ArtId top);
std::vector<ArtId> selectableArt(const Document& document);  // of all layers, from the top down

// Selects what of `top` can be selected. False, and nothing changed, if `top` itself can't be.
bool selectEditable(Document& document, ArtId top);
// Selects this art, which can be selected, and nothing else.
void selectOnly(Document& document, const std::vector<ArtId>& art);

void selectAll(Document& document);  // that can be selected
void deselect(Document& document);
void selectInverse(Document& document);  // what can be selected and is not
// Adds whatever has a stroke of the colour, swatch and tint that a selected stroke has. Without a selected
// stroke nothing changes.
void selectSameStroke(Document& document);
// With the groups that hold nothing then. Locked and hidden art stays.
void deleteSelection(Document& document);

}  // namespace host
