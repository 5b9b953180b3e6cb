#include "BoxArray.h"

#include "NumericLineEdit.h"

#include <QLineEdit>

namespace quillon {

BoxArray::BoxArray(const QString &name, int first, int count, int maxLength, KeyRule rule, QWidget *parent)
    : QObject(parent), m_first(first)
{
    for (int i = first; i < first + count; ++i) {
        QLineEdit *box = nullptr;
        if (rule == KeyRule::Digits) {
            box = new NumericLineEdit(parent);
        } else {
            box = new QLineEdit(parent);
            ApplyKeyRule(box, rule);
        }
        box->setObjectName(QStringLiteral("%1_%2").arg(name).arg(i));
        box->setMaxLength(maxLength);
        box->setAlignment(Qt::AlignCenter);
        connect(box, &QLineEdit::textChanged, this, [this, i] { emit changed(i); });
        m_boxes.append(box);
    }
}

QLineEdit *BoxArray::box(int index) const
{
    return m_boxes.at(index - m_first);
}

QString BoxArray::text(int index) const
{
    return box(index)->text();
}

void BoxArray::setText(int index, const QString &text)
{
    box(index)->setText(text);
}

QStringList BoxArray::texts(int from, int n) const
{
    QStringList out;
    for (int i = from; i < from + n; ++i)
        out << text(i);
    return out;
}

} // namespace quillon
