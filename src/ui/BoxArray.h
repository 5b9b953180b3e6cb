#pragma once

#include "KeyRules.h"

#include <QObject>
#include <QStringList>
#include <QVector>

class QLineEdit;
class QWidget;

namespace quillon {

// A control array of text boxes named "<name>_<index>", built in a loop and watched as one:
// every change of any box comes out as changed(index).
class BoxArray : public QObject {
    Q_OBJECT
public:
    // Boxes for indices first .. first + count - 1, each holding at most maxLength characters
    // and taking the keys of `rule`.
    BoxArray(const QString &name, int first, int count, int maxLength, KeyRule rule, QWidget *parent);

    QLineEdit *box(int index) const;
    QString text(int index) const;
    void setText(int index, const QString &text);
    int first() const { return m_first; }
    int count() const { return m_boxes.size(); }
    // The texts of boxes from .. from + n - 1.
    QStringList texts(int from, int n) const;
    QStringList texts() const { return texts(m_first, count()); }

signals:
    void changed(int index);

private:
    int m_first;
    QVector<QLineEdit *> m_boxes;
};

} // namespace quillon
