#include "app/barframe.h"

#include <algorithm>
#include <cmath>

UpRect barFrame(BarSide side, UpRect main, UpRect bar, double openShare)
{
    const double way = std::clamp(openShare, 0.0, 1.0) * (barReach(side) - kBarHandle);
    const int reach = kBarHandle + static_cast<int>(std::lround(way));
    const int middleX = main.x + (main.width - bar.width) / 2;
    const int middleY = main.y + (main.height - bar.height) / 2;
    switch (side) {
    case BarSide::Left:
        return {main.x - reach, middleY, reach, bar.height};
    case BarSide::Right:
        return {main.x + main.width, middleY, reach, bar.height};
    case BarSide::Bottom:
        break;
    }
    return {middleX, main.y - reach, bar.width, reach};
}
