#include "ModalAnswer.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>
#include <gtest/gtest.h>
#include <memory>

namespace quillon::test {

void whenModalUp(std::function<bool(QWidget &)> answer, int timeoutMs)
{
    auto *timer = new QTimer(qApp);
    auto clock = std::make_shared<QElapsedTimer>();
    auto timedOut = std::make_shared<bool>(false);
    clock->start();
    timer->setInterval(10);
    QObject::connect(timer, &QTimer::timeout, timer, [=] {
        QWidget *modal = QApplication::activeModalWidget();
        if (!*timedOut) {
            if (modal && answer(*modal)) {
                timer->stop();
                timer->deleteLater();
                return;
            }
            if (clock->elapsed() < timeoutMs)
                return;
            *timedOut = true;
            ADD_FAILURE() << "the expected modal dialog did not come within " << timeoutMs << " ms";
        }
        if (!modal) {
            timer->stop();
            timer->deleteLater();
            return;
        }
        if (auto *dialog = qobject_cast<QDialog *>(modal))
            dialog->reject();
        else
            modal->close();
    });
    timer->start();
}

} // namespace quillon::test
