#include "support/test.h"

TEST(ResourceIds, NamesIdsAndDialogItems)
{
    const Row<UINT, const char*, UINT> rows[] = {{4294967295U, "m_last", 4294967295U},
                                                 {1030, "Größe", 1030},
                                                 {1031, "left,right", 1031},
                                                 {1041, "m_twice", 1040}, // the lowest id wins
                                                 {999, "", 0}};
    forRows(rows, [](UINT id, const char* name, UINT idOfName) {
        EXPECT_EQ(ToStringId(id), QString::fromUtf8(name));
        EXPECT_EQ(ToCtrlId(QString::fromUtf8(name)), idOfName);
    });
    EXPECT_FALSE(ToCtrlId("M_EDIT"_q) || ToCtrlId("no number"_q));
    EXPECT_EQ(GetResourceIDMap().size(), 13);

    QWidget dialog;
    auto* const pInner = new QWidget(&dialog);
    auto* const pEdit = new QWidget(pInner);
    pEdit->setObjectName("m_edit"_q);
    EXPECT_EQ(GetDlgItem_E(&dialog, 1001), pEdit);
    // An unknown id has an empty name, which must not find the unnamed child.
    EXPECT_FALSE(GetDlgItem_E(&dialog, 77) || GetDlgItem_E(nullptr, 1001));
    EXPECT_TRUE(GetDlgCtrlID_E(pEdit) == 1001 && !GetDlgCtrlID_E(pInner));
}
