#pragma once

#include "core/drills/KeyMistakes.h"

/// Adds a drill's misses to the English mistake records of the user who is logged in. Stored more than once
/// while the drill goes on, each miss is added once.
class KeyMistakeStore
{
public:
    void Store(const KeyMistakes &mistakes);

private:
    KeyMistakes m_stored;
};
