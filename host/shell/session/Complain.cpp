#include "Complain.h"

#include <iostream>

#include "ProgramName.h"

namespace host {

void complain(const std::string& sentence) {
  std::cerr << kProgramName << ": " << sentence << '\n';
}

}  // namespace host
