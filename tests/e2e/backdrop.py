"""What is seen behind all windows."""

import ctypes

from closewindow import x_library


def fill_backdrop(display_name, colour):
    """`colour` is 0xRRGGBB."""
    x = x_library()
    x.XSetWindowBackground.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_ulong]
    x.XClearWindow.argtypes = [ctypes.c_void_p, ctypes.c_ulong]
    display = x.XOpenDisplay(display_name.encode())
    root = x.XDefaultRootWindow(display)
    x.XSetWindowBackground(display, root, colour)
    x.XClearWindow(display, root)
    x.XCloseDisplay(display)
