#include "Spinners.h"

#include "Guarded.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>

namespace quillon {

namespace {

// Up and Down in the box press its buttons.
class SpinKeys : public QObject {
public:
    SpinKeys(QLineEdit *box, QToolButton *inc, QToolButton *dec) : QObject(box), m_inc(inc), m_dec(dec) {}

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key != Qt::Key_Up && key != Qt::Key_Down)
            return false;
        (key == Qt::Key_Up ? m_inc : m_dec)->click();
        return true;
    }

private:
    QToolButton *m_inc;
    QToolButton *m_dec;
};

} // namespace

QWidget *WithSpinners(QLineEdit *box, const QString &incName, const QString &decName, SpinStep increase,
                      SpinStep decrease, std::function<void()> changed)
{
    auto *cell = new QWidget(box->parentWidget());
    auto *row = new QHBoxLayout(cell);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(1);
    box->setParent(cell);
    row->addWidget(box);
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    const struct {
        const QString &name;
        Qt::ArrowType arrow;
        SpinStep step;
    } spinners[] = {{incName, Qt::UpArrow, increase}, {decName, Qt::DownArrow, decrease}};
    QToolButton *made[2] = {};
    int i = 0;
    for (const auto &s : spinners) {
        auto *button = new QToolButton(cell);
        button->setObjectName(s.name);
        button->setArrowType(s.arrow);
        button->setFixedSize(18, 11);
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoRepeat(true);
        const SpinStep step = s.step;
        // No trap of their own: a blank or non-numeric box where a strict value is needed is a
        // failure the user sees, and the box keeps its text.
        QObject::connect(button, &QToolButton::clicked, box, [box, step, changed] {
            RunUntrapped([box, step, changed] {
                const QString next = step(box->text());
                // A step past what the box can hold leaves it as it is.
                if (next == box->text() || next.size() > box->maxLength())
                    return;
                box->setText(next);
                if (changed)
                    changed();
            });
        });
        column->addWidget(button);
        made[i++] = button;
    }
    row->addLayout(column);
    box->installEventFilter(new SpinKeys(box, made[0], made[1]));
    return cell;
}

} // namespace quillon
