#include "support/test.h"

namespace {

CObject_E* makeObject() { return new CObject_E; }
CObject_E* makeTarget() { return new CCmdTarget_E; }
CObject_E* makeNothing() { return nullptr; }

const QMetaObject* const object = &QObject::staticMetaObject;
const QMetaObject* const button = &QPushButton::staticMetaObject;
const QMetaObject* const slider = &QSlider::staticMetaObject;
const QMetaObject* const dial = &QDial::staticMetaObject;
const QMetaObject* const abstractSlider = &QAbstractSlider::staticMetaObject;

VxCreateObjectFn registered(const QMetaObject* meta)
{
    const auto it = g_mapCreateMethod.find(meta);
    return it == g_mapCreateMethod.end() ? nullptr : it->second;
}

CRuntimeClass_E record(const QMetaObject* imp, const QMetaObject* base, VxCreateObjectFn create,
                       QList<const QMetaObject*>* list = nullptr)
{
    return CRuntimeClass_E(&CObject_E::staticMetaObject, imp, base, create, list, 12);
}

TEST(RuntimeClass, RegistersWhatDiffersFromTheBase)
{
    {
        const auto same = record(button, button, makeObject);
        EXPECT_EQ(registered(button), nullptr);
        const auto none = record(button, object, nullptr);
        EXPECT_EQ(registered(button), nullptr);
        const auto one = record(button, object, makeObject);
        EXPECT_EQ(registered(button), makeObject);
        for (const auto create : {makeTarget, makeObject})
            const auto later = record(button, object, create);
        EXPECT_EQ(registered(button), makeObject) << "the first registration wins and stays";
        EXPECT_EQ(one.GetObjectSize(), 12);
        EXPECT_STREQ(one.GetImpClassName(), "QPushButton");
        EXPECT_STREQ(one.GetClassName(), "CObject_E");
        const std::unique_ptr<CObject_E> made(one.CreateObject());
        EXPECT_NE(made, nullptr);
        EXPECT_EQ(none.CreateObject(), nullptr);
    }
    EXPECT_EQ(registered(button), nullptr) << "gone with its record";
}

TEST(RuntimeClass, AListRegistersItsEntriesOnly)
{
    const auto listed =
        record(button, dial, makeObject, CRuntimeClass_E::CreateMetaList(slider, dial, nullptr));
    EXPECT_EQ(registered(slider), makeObject);
    EXPECT_EQ(registered(dial), nullptr) << "the base's";
    EXPECT_EQ(registered(button), nullptr) << "the single class does not count beside a list";
}

TEST(RuntimeClass, MetaListEndsAtTheFirstNull)
{
    const QMetaObject* const none = nullptr;
    const std::unique_ptr<QList<const QMetaObject*>> list(
        CRuntimeClass_E::CreateMetaList(slider, button, none, dial, none));
    EXPECT_EQ(*list, (QList<const QMetaObject*>{slider, button}));
    const std::unique_ptr<QList<const QMetaObject*>> empty(
        CRuntimeClass_E::CreateMetaList(none, dial, none));
    EXPECT_TRUE(empty->isEmpty());
}

TEST(RuntimeClass, WhatCanImplementIt)
{
    const QMetaObject* const none = nullptr;
    const auto single = record(abstractSlider, object, nullptr);
    const auto listed =
        record(button, object, nullptr, CRuntimeClass_E::CreateMetaList(dial, slider, none));
    const auto empty = record(button, object, nullptr, CRuntimeClass_E::CreateMetaList(none));
    const Row<const CRuntimeClass_E*, const QMetaObject*, bool> rows[] = {
        {&single, slider, true},   {&single, abstractSlider, true},  {&single, button, false},
        {&single, nullptr, false}, {&listed, slider, true},          {&listed, dial, true},
        {&listed, button, false},  {&listed, abstractSlider, false}, {&empty, button, false},
    };
    forRows(rows, [&](const CRuntimeClass_E* pRecord, const QMetaObject* meta, bool fits) {
        EXPECT_EQ(pRecord->IsMyImpMeta(meta), fits);
    });
}

TEST(RuntimeClass, ANullFactoryIsNotRegistered)
{
    EXPECT_FALSE(CRuntimeClass_E::RegisterCreateObjectMethod(button, nullptr));
    EXPECT_TRUE(CRuntimeClass_E::RegisterCreateObjectMethod(button, makeObject));
    EXPECT_FALSE(CRuntimeClass_E::RegisterCreateObjectMethod(button, makeTarget));
    EXPECT_EQ(registered(button), makeObject);
    g_mapCreateMethod.erase(button);
}

TEST(RuntimeClass, DerivationFollowsTheMetaObjects)
{
    const auto* const base = RUNTIME_CLASS_E(CObject_E);
    const auto* const target = RUNTIME_CLASS_E(CCmdTarget_E);
    EXPECT_TRUE(target->IsDerivedFrom(base));
    EXPECT_TRUE(target->IsDerivedFrom(target));
    EXPECT_FALSE(base->IsDerivedFrom(target));
    EXPECT_FALSE(base->IsDerivedFrom(nullptr));
    EXPECT_EQ(base->CreateObject(), nullptr);
    EXPECT_EQ(target->GetObjectSize(), static_cast<int>(sizeof(CCmdTarget_E)));
}

TEST(Registry, ClimbsToTheNearestRegisteredClass)
{
    const auto forSlider = record(abstractSlider, object, makeTarget);
    const std::unique_ptr<CObject_E> nearest(
        CObject_E::FromImpMetaObject(&QScrollBar::staticMetaObject));
    ASSERT_NE(nearest, nullptr);
    EXPECT_TRUE(nearest->IsKindOf("CCmdTarget_E"));
    const std::unique_ptr<CObject_E> climbed(CObject_E::FromImpMetaObject(button));
    ASSERT_NE(climbed, nullptr);
    EXPECT_STREQ(climbed->GetClassName(), "CWnd_E") << "the library's own entry for QWidget";
    EXPECT_EQ(CObject_E::FromImpMetaObject(nullptr), nullptr);
    EXPECT_EQ(CObject_E::FromImpMetaObject(object), nullptr);
    const auto yieldsNothing = record(dial, object, makeNothing);
    EXPECT_EQ(CObject_E::FromImpMetaObject(dial), nullptr) << "the first hit decides";
}

} // namespace
