#include <VxMFCEmu/wnd/resourceids.h>
#include <VxMFCEmu/wnd/windowtree.h>

#include "support/text.h"

#include <QtWidgets/QWidget>

#include <gtest/gtest.h>

#include <memory>

TEST(ResourceIds, NamesAndIds)
{
    const vxtest::Row<UINT, const char*, UINT> rows[] = {
        {1001, "m_edit", 1001},
        {4294967295U, "m_last", 4294967295U},
        {1030, "Größe", 1030},
        {1031, "left,right", 1031},
        {1041, "m_twice", 1040}, // the lowest id wins
        {999, "", 0},
        {0, "", 0},
    };
    for (const auto& [id, name, idOfName] : rows) {
        EXPECT_EQ(ToStringId(id), QString::fromUtf8(name)) << id;
        EXPECT_EQ(ToCtrlId(QString::fromUtf8(name)), idOfName) << id;
    }
    EXPECT_EQ(ToCtrlId(QStringLiteral("M_EDIT")), 0U);
    EXPECT_EQ(ToCtrlId(QStringLiteral("no number")), 0U);
    EXPECT_EQ(GetResourceIDMap().size(), 13);
}

TEST(ResourceIds, DialogItems)
{
    QWidget dialog;
    auto* const pInner = new QWidget(&dialog);
    auto* const pEdit = new QWidget(pInner);
    pEdit->setObjectName(QStringLiteral("m_edit"));
    auto* const pUmlaut = new QWidget(&dialog);
    pUmlaut->setObjectName(QString::fromUtf8("Größe"));

    EXPECT_EQ(GetDlgItem_E(&dialog, 1001), pEdit);
    EXPECT_EQ(GetDlgItem_E(&dialog, 1030), pUmlaut);
    EXPECT_EQ(GetDlgItem_E(&dialog, 1002), nullptr);
    // An unknown id has an empty name, which must not find the unnamed child.
    EXPECT_EQ(GetDlgItem_E(&dialog, 77), nullptr);
    EXPECT_EQ(GetDlgItem_E(nullptr, 1001), nullptr);
    EXPECT_EQ(GetDlgCtrlID_E(pEdit), 1001);
    EXPECT_EQ(GetDlgCtrlID_E(pInner), 0);
    EXPECT_EQ(GetDlgCtrlID_E(nullptr), 0);
}
