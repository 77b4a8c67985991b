#include "support/test.h"

TEST(ResourceIds, NamesAndIds)
{
    const Row<UINT, const char*, UINT> rows[] = {
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
    EXPECT_EQ(ToCtrlId("M_EDIT"_q), 0U);
    EXPECT_EQ(ToCtrlId("no number"_q), 0U);
    EXPECT_EQ(GetResourceIDMap().size(), 13);
}

TEST(ResourceIds, DialogItems)
{
    QWidget dialog;
    auto* const pInner = new QWidget(&dialog);
    auto* const pEdit = new QWidget(pInner);
    pEdit->setObjectName("m_edit"_q);
    auto* const pUmlaut = new QWidget(&dialog);
    pUmlaut->setObjectName("Größe"_q);

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
