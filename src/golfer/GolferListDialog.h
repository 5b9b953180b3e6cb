#pragma once

#include <QString>

class QDialog;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace quillon {

// The controls both golfer dialogs share, by their names: instructions on top, a labelled
// column (an optional name box over the golfer list) and OK and Cancel at its right.
struct GolferListControls {
    QLabel *lblInstructions = nullptr;
    QLabel *label1 = nullptr;
    QListWidget *lstGolferList = nullptr;
    QPushButton *cmdOK = nullptr;
    QPushButton *cmdCancel = nullptr;
};

// Build and lay out the shared controls in `dialog`; OK starts disabled.  A name box, when
// given, stands between the label and the list and is what the label names.
GolferListControls BuildGolferListDialog(QDialog &dialog, const QString &title, const QString &instructions,
                                         const QString &label, const QString &cancelCaption,
                                         QLineEdit *nameBox = nullptr);

} // namespace quillon
