#pragma once

#include <QtCore/QObject>
#include <QtDBus/QDBusConnection>

/// Ends the program with exit code 1 when the bus goes away: without it no request could come.
class BusWatch : public QObject
{
    Q_OBJECT

public:
    explicit BusWatch(QDBusConnection bus);

private Q_SLOTS:
    void lost();
};
