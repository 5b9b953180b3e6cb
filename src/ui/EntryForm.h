#pragma once

#include "ViewHost.h"

#include <QVector>

class QBoxLayout;
class QPushButton;

namespace quillon {

// A form on which data is entered, shown over the views: Save and Cancel at its foot, F1 for its
// help, Escape as Cancel, the tab order set once in reading order, and a mark while it holds
// typed input that is not saved (the frame asks before closing then).
class EntryForm : public ViewForm {
    Q_OBJECT
public:
    using ViewForm::ViewForm;

protected:
    // The help page and place of the form as it stands.
    virtual QString helpAnchor() const = 0;
    // "&Save" (off until the form says) and "&Cancel", right-aligned at the end of `row`.
    void addSaveAndCancel(QBoxLayout *row);
    // Tab visits the widgets in this order.
    static void applyTabOrder(const QVector<QWidget *> &order);
    // Close the form, saved or not; a form never shown just goes.
    void closeForm();
    // Typed input not yet saved; texts the form sets itself while `filling` are not input.
    void markUnsaved(bool unsaved = true);
    void keyPressEvent(QKeyEvent *event) override;

    QPushButton *m_cmdSave = nullptr;
    QPushButton *m_cmdCancel = nullptr;
    bool m_filling = false;
};

} // namespace quillon
