#include "support/test.h"

namespace {

CObject_E* makeObject() { return new CObject_E; }
CObject_E* makeTarget() { return new CCmdTarget_E; }
CObject_E* makeNothing() { return nullptr; }

const QMetaObject* const object = &QObject::staticMetaObject;
const QMetaObject* const tabBar = &QTabBar::staticMetaObject;
const QMetaObject* const tableView = &QTableView::staticMetaObject;
const QMetaObject* const splitter = &QSplitter::staticMetaObject;
const QMetaObject* const itemView = &QAbstractItemView::staticMetaObject;

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
        const auto same = record(tabBar, tabBar, makeObject);
        EXPECT_EQ(registered(tabBar), nullptr);
        const auto none = record(tabBar, object, nullptr);
        EXPECT_EQ(registered(tabBar), nullptr);
        const auto one = record(tabBar, object, makeObject);
        EXPECT_EQ(registered(tabBar), makeObject);
        for (const auto create : {makeTarget, makeObject})
            const auto later = record(tabBar, object, create);
        EXPECT_EQ(registered(tabBar), makeObject) << "the first registration wins and stays";
        EXPECT_EQ(one.GetObjectSize(), 12);
        EXPECT_STREQ(one.GetImpClassName(), "QTabBar");
        EXPECT_STREQ(one.GetClassName(), "CObject_E");
        const std::unique_ptr<CObject_E> made(one.CreateObject());
        EXPECT_NE(made, nullptr);
        EXPECT_EQ(none.CreateObject(), nullptr);
    }
    EXPECT_EQ(registered(tabBar), nullptr) << "gone with its record";
}

TEST(RuntimeClass, AListRegistersItsEntriesOnly)
{
    const auto listed = record(tabBar, splitter, makeObject,
                               CRuntimeClass_E::CreateMetaList(tableView, splitter, nullptr));
    EXPECT_EQ(registered(tableView), makeObject);
    EXPECT_EQ(registered(splitter), nullptr) << "the base's";
    EXPECT_EQ(registered(tabBar), nullptr) << "the single class does not count beside a list";
}

TEST(RuntimeClass, MetaListEndsAtTheFirstNull)
{
    const QMetaObject* const none = nullptr;
    const std::unique_ptr<QList<const QMetaObject*>> list(
        CRuntimeClass_E::CreateMetaList(tableView, tabBar, none, splitter, none));
    EXPECT_EQ(*list, (QList<const QMetaObject*>{tableView, tabBar}));
    const std::unique_ptr<QList<const QMetaObject*>> empty(
        CRuntimeClass_E::CreateMetaList(none, splitter, none));
    EXPECT_TRUE(empty->isEmpty());
}

TEST(RuntimeClass, WhatCanImplementIt)
{
    const QMetaObject* const none = nullptr;
    const auto single = record(itemView, object, nullptr);
    const auto listed =
        record(tabBar, object, nullptr, CRuntimeClass_E::CreateMetaList(splitter, tableView, none));
    const auto empty = record(tabBar, object, nullptr, CRuntimeClass_E::CreateMetaList(none));
    const Row<const CRuntimeClass_E*, const QMetaObject*, bool> rows[] = {
        {&single, tableView, true}, {&single, itemView, true},  {&single, tabBar, false},
        {&single, nullptr, false},  {&listed, tableView, true}, {&listed, splitter, true},
        {&listed, tabBar, false},   {&listed, itemView, false}, {&empty, tabBar, false},
    };
    forRows(rows, [&](const CRuntimeClass_E* pRecord, const QMetaObject* meta, bool fits) {
        EXPECT_EQ(pRecord->IsMyImpMeta(meta), fits);
    });
}

TEST(RuntimeClass, ANullFactoryIsNotRegistered)
{
    EXPECT_FALSE(CRuntimeClass_E::RegisterCreateObjectMethod(tabBar, nullptr));
    EXPECT_TRUE(CRuntimeClass_E::RegisterCreateObjectMethod(tabBar, makeObject));
    EXPECT_FALSE(CRuntimeClass_E::RegisterCreateObjectMethod(tabBar, makeTarget));
    EXPECT_EQ(registered(tabBar), makeObject);
    g_mapCreateMethod.erase(tabBar);
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
    const auto forView = record(itemView, object, makeTarget);
    const std::unique_ptr<CObject_E> nearest(
        CObject_E::FromImpMetaObject(&QTableWidget::staticMetaObject));
    ASSERT_NE(nearest, nullptr);
    EXPECT_TRUE(nearest->IsKindOf("CCmdTarget_E"));
    const std::unique_ptr<CObject_E> climbed(CObject_E::FromImpMetaObject(tabBar));
    ASSERT_NE(climbed, nullptr);
    EXPECT_STREQ(climbed->GetClassName(), "CWnd_E") << "the library's own entry for QWidget";
    EXPECT_EQ(CObject_E::FromImpMetaObject(nullptr), nullptr);
    EXPECT_EQ(CObject_E::FromImpMetaObject(object), nullptr);
    const auto yieldsNothing = record(splitter, object, makeNothing);
    EXPECT_EQ(CObject_E::FromImpMetaObject(splitter), nullptr) << "the first hit decides";
}

} // namespace
