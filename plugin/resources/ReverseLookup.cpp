#include "ReverseLookup.h"

#include "LookupResource.h"
#include "TextModules.h"
#include "TextState.h"

const char* ReverseLookup(const char* text) {
  EnsureTextInitialised();
  TextState& state = TheTextState();
  if (state.mainDatabase && !state.reverseDatabase) {
    state.reverseDatabase = RDB_Invert(state.mainDatabase.get());
  }
  state.reverseResult = LookupResource(state.reverseDatabase.get(), text, "");
  return state.reverseResult.get();
}
