#pragma once

#include <QLineEdit>

namespace quillon {

// A text box for a whole number: typed keys other than digits, Backspace and Enter are
// discarded, text pasted or dropped in keeps its digits only, and the text is selected
// whenever the box takes the focus, so that typing replaces it.
class NumericLineEdit : public QLineEdit {
    Q_OBJECT
public:
    explicit NumericLineEdit(QWidget *parent = nullptr);

    // The digits of a text, in order.
    static QString digitsOf(const QString &text);
    // Whether a typed key reaches the box: digits, Backspace, Enter, and the keys that move
    // or leave without typing (arrows, Home, End, Tab, Delete).
    static bool acceptsKey(int key, const QString &text, Qt::KeyboardModifiers modifiers);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void keepDigits();
};

// The text of a box selected on focus, as every entry box of the program does.
void SelectAllOnFocus(QLineEdit *box);

} // namespace quillon
