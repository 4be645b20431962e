#pragma once

/// Gives the program its icon. It takes some milliseconds: what the desktop shows of the program
/// beside its windows must not hold them up.
void setIcon();
