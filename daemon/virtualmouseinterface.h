#pragma once

#include <QtCore/QObject>

class DriverProcess;

/// The virtual mouse on the session bus, so that scripts can press its button and look at it.
class VirtualMouseInterface : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kt7r4.VirtualMouse")

public:
    /// `driver` must outlive it.
    explicit VirtualMouseInterface(DriverProcess &driver) : m_driver(driver) {}

    /// Goes to the next profile and reports it; its number, 1..10.
    Q_SCRIPTABLE Q_INVOKABLE int PressProfileButton();
    /// Makes a profile the active one and reports it; false for a number outside 1..10.
    Q_SCRIPTABLE Q_INVOKABLE bool SetActiveProfile(int number);
    /// See VirtualMouse::description().
    Q_SCRIPTABLE Q_INVOKABLE QString Describe();

private:
    DriverProcess &m_driver;
};
