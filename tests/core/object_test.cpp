#include "support/test.h"

namespace {

class Wrapper : public CObject_E
{
    Q_OBJECT
    DECLARE_DYNAMIC_E(Wrapper)

    BOOL OnAttach() override
    {
        log += u'a';
        return accepts;
    }
    void OnDetach() override { log += u'd'; }
    bool eventFilter(QObject*, QEvent* event) override { return event->type() == QEvent::Enter; }

    QString log;
    BOOL accepts = TRUE;

public Q_SLOTS:
    void apply(int value) { log += QString::number(value); }
    void last() { log += u'l'; }
    void clear() { log += u'c'; }
    void take(const QString& text) { log += text; }
};

} // namespace

IMPLEMENT_DYNAMIC_E(Wrapper, CObject_E, QTimer)

namespace {

/// Has slots of the wrapper's names.
class Target : public QObject
{
    Q_OBJECT
public:
    int calls = 0;
public Q_SLOTS:
    void apply(int) { ++calls; }
    void last() { ++calls; }
    void clear() { ++calls; }
    void take(int) { ++calls; }
    void unknown(int) { ++calls; }
};

TEST(Object, AttachBindsBothSides)
{
    Wrapper wrapper;
    CObject_E plain;
    QTimer timer;
    QObject parent;
    QEvent event(QEvent::Enter);
    EXPECT_FALSE(CObject_E::GetOwner(&timer) || CObject_E::GetOwner(nullptr));
    wrapper.Attach(&timer, &parent, true);
    EXPECT_EQ(timer.property("parent").toLongLong(), reinterpret_cast<qlonglong>(&parent));
    EXPECT_TRUE(QCoreApplication::sendEvent(&timer, &event)) << "filtered";
    wrapper.Detach();
    EXPECT_FALSE(timer.property("owner").isValid() || timer.property("parent").isValid());
    EXPECT_FALSE(QCoreApplication::sendEvent(&timer, &event)) << "the filter is gone";
    wrapper.Detach();
    EXPECT_EQ(wrapper.log, "ad"_q) << "detaching twice does nothing";
    EXPECT_EQ(plain.AttachDefault(&parent), TRUE);
    EXPECT_EQ(plain.GetImpQObject()->parent(), &parent);
}

TEST(Object, OwnershipDecidesWhoDeletes)
{
    for (const bool external : {false, true}) {
        SCOPED_TRACE(external);
        const QPointer<QTimer> timer = new QTimer;
        const QPointer<QObject> wrong = new QObject;
        Wrapper wrapper;
        wrapper.Attach(timer, nullptr, false);
        ASSERT_EQ(wrapper.Attach(timer, nullptr, external), TRUE);
        vxtest::deliverPosted();
        ASSERT_FALSE(timer.isNull()) << "let go of only to be bound again";
        EXPECT_EQ(wrapper.log, "ada"_q);
        EXPECT_EQ(wrapper.Attach(wrong, nullptr, external), FALSE);
        EXPECT_EQ(wrong.isNull(), !external) << "taken over and deleted, unless external";
        EXPECT_TRUE(wrapper.GetImpQObject() == timer && CObject_E::GetOwner(timer) == &wrapper);
        EXPECT_EQ(wrapper.IsExternalImpObj(), external);
        wrapper.Detach();
        EXPECT_FALSE(timer.isNull()) << "never at once";
        vxtest::deliverPosted();
        EXPECT_EQ(timer.isNull(), !external) << "the last binding decides";
        delete timer;
        delete wrong;
    }
    EXPECT_EQ(Wrapper().Attach(nullptr, nullptr, false), FALSE);
}

TEST(Object, WhatIsRefusedReplacedAndDestroyedByAnother)
{
    Wrapper wrapper;
    QTimer first;
    auto* const second = new QTimer;
    wrapper.accepts = FALSE;
    EXPECT_EQ(wrapper.Attach(&first, nullptr, true), FALSE);
    EXPECT_EQ(wrapper.log, "ad"_q);
    EXPECT_EQ(CObject_E::GetOwner(&first), nullptr);
    wrapper.accepts = 7;
    EXPECT_EQ(wrapper.Attach(&first, nullptr, true), 7) << "the hook's own value";
    wrapper.Attach(second, nullptr, true);
    EXPECT_TRUE(!CObject_E::GetOwner(&first) && CObject_E::GetOwner(second) == &wrapper);
    delete second;
    EXPECT_FALSE(wrapper.GetImpQObject() || wrapper.IsExternalImpObj());
    EXPECT_EQ(wrapper.log, "adada"_q) << "OnDetach is not called";
}

TEST(Object, KindAndSlots)
{
    const Wrapper wrapper;
    const auto* const base = RUNTIME_CLASS_E(CObject_E);
    const auto* const target = RUNTIME_CLASS_E(CCmdTarget_E);
    EXPECT_TRUE(target->IsDerivedFrom(base) && wrapper.IsKindOf("CObject_E"));
    EXPECT_FALSE(base->IsDerivedFrom(target) || base->IsDerivedFrom(nullptr));
    EXPECT_FALSE(wrapper.IsKindOf(target) || wrapper.IsKindOf("QTimer"));
    QMetaMethod method;
    EXPECT_FALSE(wrapper.FindSlotMethod("objectNameChanged"_q, method)) << "a signal";
    EXPECT_TRUE(wrapper.FindSlotMethod("apply"_q, method));
    EXPECT_EQ(method.methodSignature(), "apply(int)");
}

TEST(Slots, FittingOnesOfTheSameNameAreTakenOver)
{
    for (const bool keepOld : {false, true}) {
        SCOPED_TRACE(keepOld);
        QSlider source;
        Target target;
        Wrapper wrapper;
        int functorCalls = 0;
        for (const char* slot :
             {SLOT(apply(int)), SLOT(last()), SLOT(take(int)), SLOT(unknown(int))})
            QObject::connect(&source, SIGNAL(valueChanged(int)), &target, slot);
        QObject::connect(&source, SIGNAL(valueChanged(int)), &target, SLOT(clear()),
                         Qt::QueuedConnection);
        QObject::connect(&source, &QSlider::valueChanged, &target, [&] { ++functorCalls; });
        QObject::connect(&source, &QSlider::valueChanged, &target, &Target::apply);
        wrapper.ConnectSlotsFrom(nullptr, keepOld);
        wrapper.ConnectSlotsFrom(&target, keepOld);
        wrapper.ConnectSlotsFrom(&target, keepOld);
        source.setValue(4);
        EXPECT_EQ(wrapper.log, "l4"_q) << "once, the newest first, the queued one not yet";
        EXPECT_EQ(target.calls, keepOld ? 5 : 3);
        vxtest::deliverPosted();
        EXPECT_EQ(wrapper.log, "l4c"_q) << "of the old connection's type";
        EXPECT_TRUE(target.calls == (keepOld ? 6 : 3) && functorCalls == 1) << "functors stay";
    }
}

TEST(Slots, ConnectReplaces)
{
    QSlider source;
    Target target;
    const char* const changed = SIGNAL(valueChanged(int));
    QObject::connect(&source, changed, &target, SLOT(apply(int)));
    QObject::connect(&source, changed, &target, SLOT(take(int)));
    EXPECT_TRUE(CObject_E::Connect(&source, changed, &target, SLOT(clear())));
    source.setValue(1);
    EXPECT_EQ(target.calls, 1);
    EXPECT_FALSE(CObject_E::Connect(nullptr, changed, &target, SLOT(clear())));
    QWidget parent;
    QSlider child(&parent); // that an unknown id must not find
    EXPECT_FALSE(CObject_E::Connect(9999U, changed, &target, SLOT(clear()), &parent));
}

} // namespace

#include "object_test.moc"
