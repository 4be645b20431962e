#pragma once

/// To be called before the application object is made: where the desktop offers several window
/// systems, asks for one in which a window can be placed at a point of the screen, as windows
/// attached to each other need.
void preferPlacedWindows();
