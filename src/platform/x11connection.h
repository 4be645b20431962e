#pragma once

struct xcb_connection_t;

/// The program's connection to the X display; null on another platform, and without a screen.
xcb_connection_t *x11Connection();
