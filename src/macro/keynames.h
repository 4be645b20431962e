#pragma once

#include <cstdint>

/// What a key is called in a macro, by its virtual key code; empty for a code without a name.
const char *keyName(std::uint8_t keycode);
