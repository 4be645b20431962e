#pragma once

/// What setDirStyle() takes.
constexpr int kHorizontal = 1;
constexpr int kVertical = 0;
