#pragma once

#include <QApplication>
#include <QComboBox>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>
#include <gtest/gtest.h>

namespace quillon::test {

// A control of a form by its objectName; a missing one fails the test loudly and gives null.
template <typename T = QWidget>
T *findControl(const QObject *root, const QString &name)
{
    T *found = root ? root->findChild<T *>(name) : nullptr;
    if (!found)
        ADD_FAILURE() << "no control \"" << name.toStdString() << "\" in \""
                      << (root ? root->objectName().toStdString() : std::string("(null)")) << "\"";
    return found;
}

// Answers the modal dialogs a test expects, in order, as they come up.  A dialog that comes
// when none is expected, or that is still up after its answer, fails the test and is closed, so
// a test never hangs on a modal loop; an expected dialog that never came fails the test when
// the script ends.
class ModalScript {
public:
    using Answer = std::function<void(QWidget *dialog)>;

    ModalScript();
    ~ModalScript();
    ModalScript(const ModalScript &) = delete;
    ModalScript &operator=(const ModalScript &) = delete;

    // The next modal dialog must be the one named (its objectName; empty: any) and is answered so.
    ModalScript &expect(const QString &name, Answer answer);
    // Dialogs expected and not yet come.
    int pending() const { return int(m_expected.size()); }
    // Names of the dialogs answered so far.
    const QStringList &answered() const { return m_answered; }

private:
    void poll();

    struct Expected {
        QString name;
        Answer answer;
    };
    std::deque<Expected> m_expected;
    QStringList m_answered;
    QPointer<QWidget> m_current;
    int m_pollsOnCurrent = 0;
    QTimer m_timer;
};

// The texts of a list's items, in order.
QStringList ListItems(const QComboBox *box);
// Choose an item of a list the way the keyboard does: each step is a choice of the user.
void PickByKeyboard(QComboBox *box, const QString &text);
// Choose an item of a list as a click does: made current, then announced as chosen.
void ChooseItem(QComboBox *box, const QString &text);

// The names of the controls the Tab key visits from `start`, in order, `steps` presses at most;
// the line edit of an editable list goes by the list's name.
QStringList TabWalk(QWidget *start, int steps);

// Type text into a named line edit or combo box as a user would, key by key.
void typeInto(const QObject *root, const QString &name, const QString &text);

} // namespace quillon::test
