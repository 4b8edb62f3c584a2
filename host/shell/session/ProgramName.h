// How the program calls itself.
#pragma once

namespace host {

constexpr char kProgramName[] = "corvane-host";

}  // namespace host
