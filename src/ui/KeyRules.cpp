#include "KeyRules.h"

#include "NumericLineEdit.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>

namespace quillon {

namespace {

class KeyRuleFilter : public QObject {
public:
    KeyRuleFilter(KeyRule rule, QLineEdit *box) : QObject(box), m_rule(rule) {}

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto *key = static_cast<QKeyEvent *>(event);
        // Shortcuts (paste, copy, undo) and keys that type nothing are not typing.
        if (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
            return false;
        const QString text = key->text();
        if (text.size() != 1 || !text.at(0).isPrint())
            return false;
        const auto *box = static_cast<QLineEdit *>(watched);
        // What is selected is replaced by the key: the box is judged as it will be before it.
        QString current = box->text();
        if (box->hasSelectedText())
            current.remove(box->selectionStart(), box->selectedText().size());
        return !KeyRuleAccepts(m_rule, text.at(0), current);
    }

private:
    KeyRule m_rule;
};

} // namespace

bool KeyRuleAccepts(KeyRule rule, QChar typed, const QString &current)
{
    switch (rule) {
    case KeyRule::Decimal:
        return (typed >= QLatin1Char('0') && typed <= QLatin1Char('9')) || typed == QLatin1Char('.');
    case KeyRule::NoLeadingZero:
        if (typed >= QLatin1Char('1') && typed <= QLatin1Char('9'))
            return true;
        return typed == QLatin1Char('0') && !current.isEmpty();
    case KeyRule::Par: return typed >= QLatin1Char('3') && typed <= QLatin1Char('6');
    case KeyRule::Digits: return typed >= QLatin1Char('0') && typed <= QLatin1Char('9');
    }
    return false;
}

void ApplyKeyRule(QLineEdit *box, KeyRule rule)
{
    box->installEventFilter(new KeyRuleFilter(rule, box));
    SelectAllOnFocus(box);
}

} // namespace quillon
