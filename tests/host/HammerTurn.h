#pragma once

#include "host/ProfileStore.h"

/// What the program that is killed does in a turn; the same for the same number. The store after
/// turn n is the store that made turns 1 to n, and turn 0 is the empty one.
void hammerTurn(ProfileStore &store, int turn);
