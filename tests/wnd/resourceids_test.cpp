#include <VxMFCEmu/wnd/resourceids.h>
#include <VxMFCEmu/wnd/windowtree.h>

#include <QtWidgets/QWidget>

#include <gtest/gtest.h>

#include <memory>

TEST(ResourceIds, NamesAndIds)
{
    struct
    {
        int line;
        UINT id;
        const char* name;
        UINT idOfName;
    } const rows[] = {
        {__LINE__, 1001, "m_edit", 1001},
        {__LINE__, 4294967295U, "m_last", 4294967295U},
        {__LINE__, 1030, "Größe", 1030},
        {__LINE__, 1031, "left,right", 1031},
        {__LINE__, 1041, "m_twice", 1040}, // the lowest id wins
        {__LINE__, 999, "", 0},
        {__LINE__, 0, "", 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(ToStringId(row.id), QString::fromUtf8(row.name));
        EXPECT_EQ(ToCtrlId(QString::fromUtf8(row.name)), row.idOfName);
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
