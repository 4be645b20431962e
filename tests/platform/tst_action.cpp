#include "platform/action.h"
#include "support/suite.h"

#include <memory>

/// Target and action.
class tst_action : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anActionCallsItsTargetWithItsArgument();
    void anEmptyActionDoesNothing();
    void theTargetMayTakeALessSpecialArgument();
    void aDeletedTargetIsNotCalled();
    void theCallMayDeleteWhoeverHoldsTheAction();
    void theCallMayReplaceTheAction();
    void theCallMayDeleteTheTarget();
    void aDeferredCallComesFromTheEventLoop();
    void aDeferredCallOnADeletedTargetIsNotMade();
};

namespace {

class Target : public QObject
{
public:
    void take(int number) { taken.push_back(number); }
    void takeObject(QObject *object) { objects.push_back(object); }

    std::vector<int> taken;
    std::vector<QObject *> objects;
};

/// A control that holds an action, for targets that interfere with it.
struct Holder
{
    Action<> action;
};

class HolderDeleter : public QObject
{
public:
    void run()
    {
        holder.reset();
        ++runs; // still alive, and so is the call
    }
    std::unique_ptr<Holder> holder = std::make_unique<Holder>();
    int runs = 0;
};

class ActionReplacer : public QObject
{
public:
    void run()
    {
        holder.action = {};
        ++runs;
    }
    Holder holder;
    int runs = 0;
};

class SelfDeleter : public QObject
{
public:
    explicit SelfDeleter(int &count) : runs(count) {}
    void run()
    {
        ++runs;
        delete this;
    }
    int &runs;
};

} // namespace

void tst_action::anActionCallsItsTargetWithItsArgument()
{
    Target target;
    const Action<int> action(&target, &Target::take);
    QVERIFY(action);
    action.send(3);
    action.send(4);
    QCOMPARE(target.taken, (std::vector<int>{3, 4}));
}

void tst_action::anEmptyActionDoesNothing()
{
    const Action<int> action;
    QVERIFY(!action);
    action.send(3);
}

void tst_action::theTargetMayTakeALessSpecialArgument()
{
    Target target;
    const Action<Target *> action(&target, &Target::takeObject);
    action.send(&target);
    QCOMPARE(target.objects, std::vector<QObject *>{&target});
}

void tst_action::aDeletedTargetIsNotCalled()
{
    auto target = std::make_unique<Target>();
    const Action<int> action(target.get(), &Target::take);
    target.reset();
    action.send(3); // would write into freed memory
    QVERIFY(action);
}

void tst_action::theCallMayDeleteWhoeverHoldsTheAction()
{
    HolderDeleter target;
    target.holder->action = {&target, &HolderDeleter::run};
    target.holder->action.send();
    QCOMPARE(target.runs, 1);
    QVERIFY(!target.holder);
}

void tst_action::theCallMayReplaceTheAction()
{
    ActionReplacer target;
    target.holder.action = {&target, &ActionReplacer::run};
    target.holder.action.send();
    target.holder.action.send();
    QCOMPARE(target.runs, 1);
}

void tst_action::theCallMayDeleteTheTarget()
{
    int runs = 0;
    const Action<> action(new SelfDeleter(runs), &SelfDeleter::run);
    action.send();
    action.send();
    QCOMPARE(runs, 1);
}

void tst_action::aDeferredCallComesFromTheEventLoop()
{
    Target target;
    performDeferred(&target, &Target::take, 5);
    QVERIFY(target.taken.empty());
    QTRY_COMPARE(target.taken, std::vector<int>{5});
}

void tst_action::aDeferredCallOnADeletedTargetIsNotMade()
{
    Target witness;
    auto target = std::make_unique<Target>();
    performDeferred(target.get(), &Target::take, 5);
    performDeferred(&witness, &Target::take, 6);
    target.reset();
    QTRY_COMPARE(witness.taken, std::vector<int>{6});
}

KYR_CORE_TEST(tst_action)
#include "tst_action.moc"
