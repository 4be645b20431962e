"""Asks for a window to be closed like a task bar does: the window manager passes it on."""

import ctypes

CLIENT_MESSAGE = 33
FROM_A_PAGER = 2
TO_THE_WINDOW_MANAGER = 1 << 19 | 1 << 20  # substructure notify and redirect


class ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                ("message_type", ctypes.c_ulong), ("format", ctypes.c_int),
                ("data", ctypes.c_long * 5), ("rest", ctypes.c_long * 24)]


def x_library():
    x = ctypes.CDLL("libX11.so.6")
    x.XOpenDisplay.restype = ctypes.c_void_p
    x.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
    x.XInternAtom.restype = ctypes.c_ulong
    x.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
    x.XDefaultRootWindow.restype = ctypes.c_ulong
    x.XSendEvent.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_long,
                             ctypes.c_void_p]
    x.XCloseDisplay.argtypes = [ctypes.c_void_p]
    return x


def close_window(display_name, window):
    """`window` is its id on the display."""
    x = x_library()
    display = x.XOpenDisplay(display_name.encode())
    message = ClientMessage(type=CLIENT_MESSAGE, window=window, format=32,
                            message_type=x.XInternAtom(display, b"_NET_CLOSE_WINDOW", False))
    message.data[1] = FROM_A_PAGER
    x.XSendEvent(display, x.XDefaultRootWindow(display), False, TO_THE_WINDOW_MANAGER,
                 ctypes.byref(message))
    x.XCloseDisplay(display)
