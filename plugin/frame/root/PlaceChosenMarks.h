// The command for register marks: the user chooses, and the marks are placed.
#pragma once

#include "AITypes.h"

namespace Vandrell::Corvane {

class CutPlugin;

// What becomes of the table head that the tool of the chosen shape shows.
enum class TableHead { kStays, kIsRefreshed };

// Shows the stored options in their dialog. When they are accepted they are stored, the tool of the chosen
// shape gets the paints and is selected, and the marks are placed. The user is told of marks that found no
// room. Their number also stands in the integer preference "Corvane"/"LastNotPlaced" afterwards, for whoever
// drives a host without a window. The code of PlaceRegmarks; kNoErr, with nothing changed, if the user
// cancels or must not be asked.
AIErr PlaceChosenMarks(const CutPlugin& plugin, TableHead tableHead);

}  // namespace Vandrell::Corvane
