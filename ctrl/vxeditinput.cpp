// What the user can enter into an edit control.
#include "ctrl/vxedit_p.h"

#include <VxMFCEmu/core/object.h>

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QValidator>

#include <climits>

namespace vx::detail {
namespace {

constexpr char kLimitProperty[] = "vxLimitText";

class StyleValidator : public QValidator
{
public:
    StyleValidator(QObject* pParent, DWORD dwStyle) : QValidator(pParent), m_dwStyle(dwStyle) {}

    State validate(QString& strInput, int&) const override
    {
        // One by one, so that the length stays.
        for (QChar& ch : strInput) {
            if (m_dwStyle & ES_UPPERCASE)
                ch = ch.toUpper();
            else if (m_dwStyle & ES_LOWERCASE)
                ch = ch.toLower();
        }
        const auto isDigit = [](QChar ch) {
            return ch >= QLatin1Char('0') && ch <= QLatin1Char('9');
        };
        return (m_dwStyle & ES_NUMBER) && !std::all_of(strInput.begin(), strInput.end(), isDigit)
                   ? Invalid
                   : Acceptable;
    }

private:
    const DWORD m_dwStyle;
};

/// Holds the user's input back where a text is full.
class InputLimit : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* e) override
    {
        auto& text = static_cast<QTextEdit&>(*watched);
        if (e->type() == QEvent::KeyPress && !text.isReadOnly())
            return takesKey(text, static_cast<QKeyEvent&>(*e));
        if (e->type() == QEvent::InputMethod)
            return static_cast<QInputMethodEvent&>(*e).commitString().size() > roomIn(text);
        return false;
    }

private:
    static int roomIn(const QTextEdit& text)
    {
        const QTextCursor cursor = text.textCursor();
        return textLimit(text) - lengthOf(text) + cursor.selectionEnd() - cursor.selectionStart();
    }

    static bool takesKey(QTextEdit& text, const QKeyEvent& key)
    {
        const int nRoom = std::max(roomIn(text), 0);
        if (key.matches(QKeySequence::Paste)) {
            const QString strPasted = QGuiApplication::clipboard()->text();
            if (strPasted.size() <= nRoom)
                return false;
            text.insertPlainText(strPasted.left(nRoom));
            return true;
        }
        const bool bCommand = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
        const bool bInserts = !bCommand && !key.text().isEmpty() &&
                              (key.text().at(0).isPrint() || key.text().at(0).isSpace());
        return bInserts && nRoom == 0;
    }
};

} // namespace

void limitCharacters(QLineEdit& line, DWORD dwStyle)
{
    if (dwStyle & (ES_NUMBER | ES_UPPERCASE | ES_LOWERCASE))
        line.setValidator(new StyleValidator(&line, dwStyle));
}

void limitText(QTextEdit& text, int nMax)
{
    const bool bLimited = text.property(kLimitProperty).isValid();
    text.setProperty(kLimitProperty, nMax);
    if (bLimited)
        return;
    text.installEventFilter(new InputLimit(&text));
    // Last installed, first asked: handlers see the keys that are held back, too.
    if (CObject_E* const pWindow = CObject_E::GetOwner(&text))
        text.installEventFilter(pWindow);
}

int textLimit(const QTextEdit& text)
{
    const QVariant limit = text.property(kLimitProperty);
    return limit.isValid() ? limit.toInt() : INT_MAX;
}

} // namespace vx::detail
