#pragma once

#include <memory>
#include <string>

struct xcb_connection_t;

/// Starts a program on the X display of the environment and tells how long it takes until its first
/// window is there.
class WindowClock
{
public:
    enum class Until {
        Mapped,  ///< the window is put on the screen
        Painted, ///< its middle, which must lie in the middle of the screen, is no longer black
    };

    /// Milliseconds from the start of `program`, and the most memory it has held by then.
    struct Result
    {
        double milliseconds;
        long residentKib;
    };

    WindowClock();

    /// False without a display.
    bool isReady() const { return m_connection != nullptr; }
    /// The program is ended once all its `windows` are managed, as far as there is a window
    /// manager: some leave the frame of a window behind that vanishes too soon.
    Result measure(const std::string &program, Until until, unsigned windows);

private:
    struct Disconnect
    {
        void operator()(xcb_connection_t *connection) const;
    };
    unsigned rootValues(const char *property) const;
    unsigned managedWindows() const;
    void waitForMapped();
    void waitForPixel(bool black);
    bool isMiddleBlack();

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    unsigned m_root = 0;
    bool m_hasWindowManager = false;
    short m_middleX = 0;
    short m_middleY = 0;
};
