// Not part of the public interface. Showing a text in a combo box, as members and the data exchange
// do it.
#pragma once

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

namespace vx::detail {

/// Changes a combo box without its signals and shows the text from its start.
template <typename Change>
void changeCombo(QComboBox& combo, Change change)
{
    {
        const QSignalBlocker quiet(&combo);
        change();
    }
    if (QLineEdit* const pEdit = combo.lineEdit())
        pEdit->setCursorPosition(0);
}

/// Shows @p strText and selects the item that has exactly this text.
inline void showComboText(QComboBox& combo, const QString& strText)
{
    changeCombo(combo, [&] {
        combo.setCurrentText(strText);
        const int i = combo.findData(strText, Qt::DisplayRole, Qt::MatchCaseSensitive);
        if (i >= 0)
            combo.setCurrentIndex(i);
    });
}

} // namespace vx::detail
