#pragma once

#include <host/catalogue/StepType.h>

namespace Zenvora::Lumidex::Host {

/// Of the journal's steps and of what they are made of. The numbers are stored.
enum class State : int {
  Planned = 0,
  Doing = 1,
  Done = 2,
  Undoing = 3,
  Undone = 4,
  Redoing = 5,
  GivenUp = 6
};

/// As SQL gets it.
constexpr int Stored(State state) {
  return static_cast<int>(state);
}

inline bool IsUnderWay(State state) {
  return state == State::Doing || state == State::Undoing || state == State::Redoing;
}

}  // namespace Zenvora::Lumidex::Host
