// Words for the one who started the program.
#pragma once

#include <string>

namespace host {

// "corvane-host: " and the sentence, on a line of standard error.
void complain(const std::string& sentence);

}  // namespace host
