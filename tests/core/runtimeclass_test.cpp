#include "support/test.h"

namespace {

CObject_E* makeObject() { return new CObject_E; }
CObject_E* makeTarget() { return new CCmdTarget_E; }
CObject_E* makeNothing() { return nullptr; }

const QMetaObject* const none = nullptr;
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
        const auto abstract = record(tabBar, object, nullptr);
        EXPECT_EQ(registered(tabBar), nullptr);
        const auto one = record(tabBar, object, makeObject);
        EXPECT_EQ(registered(tabBar), makeObject);
        for (const auto create : {makeTarget, makeObject})
            const auto later = record(tabBar, object, create);
        EXPECT_FALSE(CRuntimeClass_E::RegisterCreateObjectMethod(tabBar, makeTarget));
        EXPECT_EQ(registered(tabBar), makeObject) << "the first registration wins and stays";
        EXPECT_NE(std::unique_ptr<CObject_E>(one.CreateObject()), nullptr);
        EXPECT_EQ(abstract.CreateObject(), nullptr);
    }
    EXPECT_EQ(registered(tabBar), nullptr) << "gone with its record";
}

TEST(RuntimeClass, AListRegistersAndFitsItsEntriesOnly)
{
    const auto single = record(itemView, object, nullptr);
    const auto listed =
        record(tabBar, splitter, makeObject,
               CRuntimeClass_E::CreateMetaList(splitter, tableView, none, itemView, none));
    EXPECT_EQ(registered(tableView), makeObject);
    // not the base's, not what is behind the null, not the single class beside a list
    for (const QMetaObject* const meta : {splitter, itemView, tabBar})
        EXPECT_EQ(registered(meta), nullptr) << meta->className();
    const Row<const CRuntimeClass_E*, const QMetaObject*, bool> rows[] = {
        {&single, tableView, true}, {&single, tabBar, false},  {&single, nullptr, false},
        {&listed, tableView, true}, {&listed, splitter, true}, {&listed, itemView, false}};
    for (const auto& [pRecord, meta, fits] : rows)
        EXPECT_EQ(pRecord->IsMyImpMeta(meta), fits) << (meta ? meta->className() : "null");
}

TEST(Registry, ClimbsToTheNearestRegisteredClass)
{
    const auto forView = record(itemView, object, makeTarget);
    const auto yieldsNothing = record(splitter, object, makeNothing);
    const Row<const QMetaObject*, const char*> rows[] = {
        {&QTableWidget::staticMetaObject, "CCmdTarget_E"},
        {tabBar, "CWnd_E"},  // the library's own entry for QWidget
        {splitter, nullptr}, // the first hit decides
        {object, nullptr},
        {nullptr, nullptr}};
    for (const auto& [meta, name] : rows) {
        const std::unique_ptr<CObject_E> made(CObject_E::FromImpMetaObject(meta));
        EXPECT_STREQ(made ? made->GetClassName() : nullptr, name);
    }
}

} // namespace
