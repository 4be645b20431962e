#pragma once

#include <QtCore/QObject>

#include <vector>

/// A target for the actions of a control: keeps who sent each.
template <class Sender>
class Receiver : public QObject
{
public:
    void receive(Sender *sender) { senders.push_back(sender); }
    void receiveSecond(Sender *sender) { secondSenders.push_back(sender); }

    std::size_t count() const { return senders.size(); }

    std::vector<Sender *> senders;
    std::vector<Sender *> secondSenders;
};
