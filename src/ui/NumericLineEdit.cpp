#include "NumericLineEdit.h"

#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QTimer>

namespace quillon {

namespace {

// Selects the text of a line edit when it takes the focus.  The selection is made once the
// focus change has settled, since a mouse press that gave the focus would clear it again.
class SelectOnFocusFilter : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn)
            if (auto *box = qobject_cast<QLineEdit *>(watched))
                QTimer::singleShot(0, box, [box] {
                    if (box->hasFocus())
                        box->selectAll();
                });
        return false;
    }
};

} // namespace

NumericLineEdit::NumericLineEdit(QWidget *parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textEdited, this, &NumericLineEdit::keepDigits);
}

QString NumericLineEdit::digitsOf(const QString &text)
{
    QString out;
    for (const QChar c : text)
        if (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
            out.append(c);
    return out;
}

bool NumericLineEdit::acceptsKey(int key, const QString &text, Qt::KeyboardModifiers modifiers)
{
    switch (key) {
    case Qt::Key_Backspace:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Delete:
    case Qt::Key_Escape: return true;
    default: break;
    }
    // Shortcuts (copy, paste, select all) are not typing; pasted text is filtered after.
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return true;
    if (text.isEmpty())
        return true; // a modifier alone, or a key that types nothing
    return text.size() == 1 && text.at(0) >= QLatin1Char('0') && text.at(0) <= QLatin1Char('9');
}

void NumericLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (!acceptsKey(event->key(), event->text(), event->modifiers())) {
        event->accept(); // discarded: nothing typed, nothing passed on
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void NumericLineEdit::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    QTimer::singleShot(0, this, [this] {
        if (hasFocus())
            selectAll();
    });
}

void NumericLineEdit::keepDigits()
{
    const QString digits = digitsOf(text());
    if (digits == text())
        return;
    // Keep the cursor behind the same digits it stood behind.
    const int digitsBeforeCursor = digitsOf(text().left(cursorPosition())).size();
    setText(digits);
    setCursorPosition(digitsBeforeCursor);
}

void SelectAllOnFocus(QLineEdit *box)
{
    box->installEventFilter(new SelectOnFocusFilter(box));
}

} // namespace quillon
