// What to tell of an exception that a plug-in has thrown.
#pragma once

#include <string>

namespace host {

// One sentence, UTF-8, on the exception that is being handled. To be called within a handler.
std::string failureSentence();

}  // namespace host
