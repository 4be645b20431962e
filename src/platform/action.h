#pragma once

#include <QtCore/QMetaObject>
#include <QtCore/QPointer>

#include <functional>

/// Target and action: a call to make on an object, made only while the object lives. An empty
/// action does nothing.
template <class... Args>
class Action
{
public:
    Action() = default;

    /// The operation may be one of a base of the target's, and take less special arguments than the
    /// action gives.
    template <class Target, class Owner, class... Parameters>
    Action(Target *target, void (Owner::*call)(Parameters...))
        : m_target(target), m_call([target, call](Args... args) { (target->*call)(args...); })
    {
    }

    /// True when an action was set, whether or not its target still lives.
    explicit operator bool() const { return static_cast<bool>(m_call); }

    /// Makes the call. The call may delete whoever holds this action: callers touch nothing of
    /// their own afterwards without a guard.
    void send(Args... args) const
    {
        const Action copy = *this;
        if (copy.m_target)
            copy.m_call(args...);
    }

private:
    QPointer<QObject> m_target;
    std::function<void(Args...)> m_call;
};

/// Makes the call later, from the event loop; not at all when the target is gone by then.
template <class Target, class... Parameters, class... Args>
void performDeferred(Target *target, void (Target::*call)(Parameters...), Args... args)
{
    QMetaObject::invokeMethod(
        target, [=] { (target->*call)(args...); }, Qt::QueuedConnection);
}
