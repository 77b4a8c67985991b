#include "support/test.h"

namespace {

class Wrapper : public CObject_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(Wrapper)

    BOOL OnAttach() override
    {
        log += QLatin1Char('a');
        return accepts;
    }
    void OnDetach() override { log += QLatin1Char('d'); }
    bool eventFilter(QObject*, QEvent*) override
    {
        ++events;
        return false;
    }

    QString log;
    BOOL accepts = TRUE;
    int events = 0;

public Q_SLOTS:
    void apply(int value) { log += QString::number(value); }
    void clear() { log += QLatin1Char('c'); }
    void take(const QString& text) { log += text; }
};

} // namespace

IMPLEMENT_DYNAMIC_E(Wrapper, CObject_E, QTimer)

namespace {

class Source : public QObject
{
    Q_OBJECT
Q_SIGNALS:
    void sent(int value);
    void text(const QString& text);
};

class Target : public QObject
{
    Q_OBJECT
public:
    int calls = 0;
public Q_SLOTS:
    void apply(int) { ++calls; }
    void clear() { ++calls; }
    void take(int) { ++calls; }
    void unknown(int) { ++calls; }
};

TEST(Object, AttachBindsBothSides)
{
    Wrapper wrapper;
    QTimer timer;
    QObject parent;
    QEvent event(QEvent::User);
    EXPECT_EQ(CObject_E::GetOwner(&timer), nullptr);
    ASSERT_EQ(wrapper.Attach(&timer, &parent, true), TRUE);
    EXPECT_EQ(wrapper.GetImpQObject(), &timer);
    EXPECT_TRUE(wrapper.IsExternalImpObj());
    EXPECT_EQ(CObject_E::GetOwner(&timer), &wrapper);
    EXPECT_EQ(timer.property("parent").toLongLong(), reinterpret_cast<qlonglong>(&parent));
    QCoreApplication::sendEvent(&timer, &event);
    EXPECT_EQ(std::exchange(wrapper.events, 0), 1);
    wrapper.Detach();
    EXPECT_EQ(wrapper.GetImpQObject(), nullptr);
    EXPECT_FALSE(wrapper.IsExternalImpObj());
    EXPECT_FALSE(timer.property("owner").isValid() || timer.property("parent").isValid());
    wrapper.events = 0;
    QCoreApplication::sendEvent(&timer, &event);
    EXPECT_EQ(wrapper.events, 0) << "the filter is gone";
    wrapper.Detach();
    EXPECT_EQ(wrapper.log, "ad"_q) << "detaching twice does nothing";
    EXPECT_EQ(CObject_E::GetOwner(nullptr), nullptr);
}

TEST(Object, OwnershipDecidesWhoDeletes)
{
    for (const bool external : {false, true}) {
        SCOPED_TRACE(external);
        QPointer<QTimer> timer = new QTimer;
        Wrapper wrapper;
        ASSERT_EQ(wrapper.Attach(timer, nullptr, external), TRUE);
        const QPointer<QObject> wrong = new QObject;
        EXPECT_EQ(wrapper.Attach(wrong, nullptr, external), FALSE);
        EXPECT_EQ(wrong.isNull(), !external) << "taken over and deleted, unless external";
        EXPECT_EQ(wrapper.GetImpQObject(), timer);
        wrapper.Detach();
        EXPECT_FALSE(timer.isNull()) << "never at once";
        vxtest::deliverPosted();
        EXPECT_EQ(timer.isNull(), !external);
        delete timer;
        delete wrong;
    }
    EXPECT_EQ(Wrapper().Attach(nullptr, nullptr, false), FALSE);
}

TEST(Object, BindingAgainKeepsTheObjectThatIsOwned)
{
    for (const bool external : {false, true}) {
        SCOPED_TRACE(external);
        const QPointer<QTimer> timer = new QTimer;
        Wrapper wrapper;
        wrapper.Attach(timer, nullptr, false);
        ASSERT_EQ(wrapper.Attach(timer, nullptr, external), TRUE);
        vxtest::deliverPosted();
        ASSERT_FALSE(timer.isNull()) << "let go of only to be bound again";
        EXPECT_EQ(wrapper.GetImpQObject(), timer);
        EXPECT_EQ(CObject_E::GetOwner(timer), &wrapper);
        EXPECT_EQ(wrapper.IsExternalImpObj(), external);
        EXPECT_EQ(wrapper.log, "ada"_q);
        wrapper.Detach();
        vxtest::deliverPosted();
        EXPECT_EQ(timer.isNull(), !external) << "the last binding decides";
        delete timer;
    }
}

TEST(Object, WhatIsRefusedAndWhatIsReplaced)
{
    Wrapper wrapper;
    QTimer first, second;
    wrapper.accepts = FALSE;
    EXPECT_EQ(wrapper.Attach(&first, nullptr, true), FALSE);
    EXPECT_EQ(wrapper.log, "ad"_q);
    EXPECT_EQ(CObject_E::GetOwner(&first), nullptr);
    wrapper.accepts = 7;
    EXPECT_EQ(wrapper.Attach(&first, nullptr, true), 7) << "the hook's own value";
    wrapper.Attach(&second, nullptr, true);
    EXPECT_EQ(wrapper.log, "adada"_q);
    EXPECT_EQ(CObject_E::GetOwner(&first), nullptr);
    EXPECT_EQ(CObject_E::GetOwner(&second), &wrapper);
}

TEST(Object, DestroyedByAnother)
{
    Wrapper wrapper;
    auto* const timer = new QTimer;
    wrapper.Attach(timer, nullptr, true);
    delete timer;
    EXPECT_EQ(wrapper.GetImpQObject(), nullptr);
    EXPECT_FALSE(wrapper.IsExternalImpObj());
    EXPECT_EQ(wrapper.log, "a"_q) << "OnDetach is not called";
    CObject_E plain;
    EXPECT_EQ(plain.AttachDefault(&wrapper), TRUE);
    EXPECT_EQ(plain.GetImpQObject()->parent(), &wrapper);
    QObject other;
    QObject* const previous = plain.SetImpQObject(&other);
    EXPECT_EQ(CObject_E::GetOwner(previous), &plain);
    EXPECT_EQ(plain.SetImpQObject(previous), &other);
}

TEST(Object, KindAndSlots)
{
    const Wrapper wrapper;
    EXPECT_TRUE(wrapper.IsKindOf(RUNTIME_CLASS_E(CObject_E)));
    EXPECT_FALSE(wrapper.IsKindOf(RUNTIME_CLASS_E(CCmdTarget_E)));
    EXPECT_FALSE(wrapper.IsKindOf(static_cast<const CRuntimeClass_E*>(nullptr)));
    EXPECT_TRUE(wrapper.IsKindOf("CObject_E"));
    EXPECT_TRUE(wrapper.IsKindOf("QObject"));
    EXPECT_FALSE(wrapper.IsKindOf("QTimer"));
    EXPECT_FALSE(wrapper.IsKindOf(static_cast<const char*>(nullptr)));
    QMetaMethod method;
    EXPECT_EQ(wrapper.FindSlotMethod("APPLY"_q, method), FALSE);
    EXPECT_EQ(wrapper.FindSlotMethod("objectNameChanged"_q, method), FALSE) << "a signal";
    EXPECT_FALSE(method.isValid());
    EXPECT_EQ(wrapper.FindSlotMethod("apply"_q, method), TRUE);
    EXPECT_EQ(method.methodSignature(), "apply(int)");
}

/// A target that hears of a source, and a wrapper to take its slots over.
class SlotTest : public testing::Test
{
protected:
    void listen(const char* slot, Qt::ConnectionType type = Qt::AutoConnection)
    {
        QObject::connect(&source, SIGNAL(sent(int)), &target, slot, type);
    }

    Source source;
    Target target;
    Wrapper wrapper;
};

TEST_F(SlotTest, FittingSlotsOfTheSameNameAreTakenOver)
{
    for (const bool keepOld : {false, true}) {
        SCOPED_TRACE(keepOld);
        Wrapper taker;
        int functorCalls = 0;
        source.disconnect();
        target.calls = 0;
        listen(SLOT(apply(int)));
        listen(SLOT(clear()), Qt::QueuedConnection);
        listen(SLOT(take(int)));
        listen(SLOT(unknown(int)));
        QObject::connect(&source, &Source::sent, &target, [&] { ++functorCalls; });
        QObject::connect(&source, &Source::sent, &target, &Target::apply);
        taker.ConnectSlotsFrom(&target, keepOld);
        taker.ConnectSlotsFrom(&target, keepOld);
        Q_EMIT source.sent(4);
        EXPECT_EQ(taker.log, "4"_q) << "once, and the queued one not yet";
        EXPECT_EQ(target.calls, keepOld ? 4 : 3);
        vxtest::deliverPosted();
        EXPECT_EQ(taker.log, "4c"_q) << "of the old connection's type";
        EXPECT_EQ(target.calls, keepOld ? 5 : 3);
        EXPECT_EQ(functorCalls, 1) << "functors stay";
    }
}

TEST_F(SlotTest, AreTakenInTheOrderOfTheSenderList)
{
    listen(SLOT(apply(int)));
    listen(SLOT(clear()));
    wrapper.ConnectSlotsFrom(&target, false);
    wrapper.ConnectSlotsFrom(nullptr, false);
    Q_EMIT source.sent(1);
    EXPECT_EQ(wrapper.log, "c1"_q) << "the list begins with the newest connection";
    EXPECT_EQ(target.calls, 0);
}

TEST_F(SlotTest, ConnectReplaces)
{
    listen(SLOT(apply(int)));
    listen(SLOT(take(int)));
    EXPECT_TRUE(CObject_E::Connect(&source, SIGNAL(sent(int)), &target, SLOT(clear())));
    Q_EMIT source.sent(1);
    EXPECT_EQ(target.calls, 1);
    EXPECT_FALSE(CObject_E::Connect(nullptr, SIGNAL(sent(int)), &target, SLOT(clear())));
    EXPECT_FALSE(CObject_E::Connect(1U, SIGNAL(sent(int)), &target, SLOT(clear()), nullptr));
    QObject parent;
    new QObject(&parent);
    EXPECT_FALSE(CObject_E::Connect(9999U, SIGNAL(destroyed()), &target, SLOT(clear()), &parent))
        << "an unknown id finds no child, not any child";
}

} // namespace

#include "object_test.moc"
