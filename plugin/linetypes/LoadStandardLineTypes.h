// The line types that ship with the product.
#pragma once

#include <string>
#include <vector>

#include "LineTypeGroup.h"

namespace Vandrell::Corvane {

// Appends the groups of the definition file in the bundle and gives the name of the group to show first,
// which may be that of no group. Elements that are no line types are left out. False if the file is missing,
// cannot be read or lacks a key that it needs: `errorText` is then the sentence for the user, not translated,
// and the groups before the fault are in the list.
bool LoadStandardLineTypes(std::vector<LineTypeGroup>& groups, std::string& defaultGroup,
                           std::string& errorText);

}  // namespace Vandrell::Corvane
