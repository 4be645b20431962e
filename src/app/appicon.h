#pragma once

class QWidget;

/// Gives the program its icon once `window` has been painted for the first time: what the desktop
/// shows of the program beside its windows must not hold them up.
void setIconOncePainted(QWidget &window);
