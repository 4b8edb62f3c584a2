// What a user may do next.
#pragma once

namespace host {

class Stage;

// Does one thing, more often what matters more, and returns as soon as the event loop would.
void doAnything(Stage& stage);

}  // namespace host
