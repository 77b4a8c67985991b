// Not part of the public interface. The two kinds of widgets that an edit control has.
#pragma once

#include "ctrl/vxcontroltable_p.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTextEdit>

namespace vx::detail {

/// What @p askLine gives of a single line or @p askText of many; @p failure of any other widget.
template <typename Result, typename AskLine, typename AskText>
Result askEdit(const CWnd_E& edit, Result failure, AskLine askLine, AskText askText)
{
    if (auto* const pLine = widgetOf<QLineEdit>(edit))
        return static_cast<Result>(askLine(*pLine));
    return askWidget<QTextEdit>(edit, failure, askText);
}

/// Calls @p use with the widget, of whichever kind; false for any other one.
template <typename Use>
bool useEdit(const CWnd_E& edit, Use use)
{
    const auto done = [&use](auto& widget) { return use(widget), true; };
    return askEdit(edit, false, done, done);
}

/// Number of characters of many lines.
inline int lengthOf(const QTextEdit& text) { return text.document()->characterCount() - 1; }

/// Has a single line take only what an ES_* style allows, in the case that it asks for.
void limitCharacters(QLineEdit& line, DWORD dwStyle);

/// The number of characters that the user can enter.
void limitText(QTextEdit& text, int nMax);
int textLimit(const QTextEdit& text);

/// Joins the bars that a window has for its own scrolling to those of its text.
void joinScrollBars(QTextEdit& text);

} // namespace vx::detail
