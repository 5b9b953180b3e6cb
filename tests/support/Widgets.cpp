#include "Widgets.h"

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QTest>

namespace quillon::test {

namespace {
constexpr int kPollMs = 10;
// How long a dialog may stay up after its answer before the script closes it (2 s).
constexpr int kPollsBeforeStuck = 200;

void closeDialog(QWidget *dialog)
{
    if (auto *d = qobject_cast<QDialog *>(dialog))
        d->reject();
    else
        dialog->close();
}
} // namespace

ModalScript::ModalScript()
{
    m_timer.setInterval(kPollMs);
    QObject::connect(&m_timer, &QTimer::timeout, [this] { poll(); });
    m_timer.start();
}

ModalScript::~ModalScript()
{
    m_timer.stop();
    for (const Expected &e : m_expected)
        ADD_FAILURE() << "the modal dialog \"" << e.name.toStdString() << "\" never came up";
}

ModalScript &ModalScript::expect(const QString &name, Answer answer)
{
    m_expected.push_back({name, std::move(answer)});
    return *this;
}

void ModalScript::poll()
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (!dialog || !dialog->isVisible()) {
        // Gone: the same dialog shown again later is a new question.
        m_current = nullptr;
        return;
    }
    if (dialog == m_current) {
        if (++m_pollsOnCurrent > kPollsBeforeStuck) {
            ADD_FAILURE() << "the modal dialog \"" << dialog->objectName().toStdString()
                          << "\" stayed up after its answer";
            m_current = nullptr;
            closeDialog(dialog);
        }
        return;
    }
    m_current = dialog;
    m_pollsOnCurrent = 0;
    if (m_expected.empty()) {
        ADD_FAILURE() << "unexpected modal dialog \"" << dialog->objectName().toStdString() << "\" titled \""
                      << dialog->windowTitle().toStdString() << "\"";
        closeDialog(dialog);
        return;
    }
    Expected next = std::move(m_expected.front());
    m_expected.pop_front();
    if (!next.name.isEmpty() && dialog->objectName() != next.name) {
        ADD_FAILURE() << "expected the modal dialog \"" << next.name.toStdString() << "\", came \""
                      << dialog->objectName().toStdString() << "\"";
        closeDialog(dialog);
        return;
    }
    m_answered << dialog->objectName();
    // Answered once this poll has ended: what the answer opens runs a loop of its own, in
    // which the script must go on polling.
    QTimer::singleShot(0, dialog, [answer = std::move(next.answer), dialog] { answer(dialog); });
}

QStringList ListItems(const QComboBox *box)
{
    QStringList out;
    for (int i = 0; box && i < box->count(); ++i)
        out << box->itemText(i);
    return out;
}

void PickByKeyboard(QComboBox *box, const QString &text)
{
    const int target = box->findText(text);
    ASSERT_GE(target, 0) << text.toStdString();
    box->setFocus();
    while (box->currentIndex() < target)
        QTest::keyClick(box, Qt::Key_Down);
    while (box->currentIndex() > target)
        QTest::keyClick(box, Qt::Key_Up);
}

void ChooseItem(QComboBox *box, const QString &text)
{
    const int index = box->findText(text);
    ASSERT_GE(index, 0) << text.toStdString();
    box->setCurrentIndex(index);
    emit box->activated(index);
}

QStringList TabWalk(QWidget *start, int steps)
{
    QApplication::setActiveWindow(start->window());
    start->setFocus();
    QStringList visited;
    for (int i = 0; i < steps; ++i) {
        QWidget *focus = QApplication::focusWidget();
        if (!focus)
            break;
        QString name = focus->objectName();
        if (name.isEmpty() && focus->parentWidget())
            name = focus->parentWidget()->objectName();
        visited << name;
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    return visited;
}

void typeInto(const QObject *root, const QString &name, const QString &text)
{
    QWidget *w = findControl<QWidget>(root, name);
    if (!w)
        return;
    if (auto *combo = qobject_cast<QComboBox *>(w); combo && combo->lineEdit())
        w = combo->lineEdit();
    w->setFocus();
    QTest::keyClicks(w, text);
}

} // namespace quillon::test
