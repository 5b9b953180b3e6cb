#include "GolferListDialog.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

namespace {

template <typename T>
T *named(T *widget, const char *name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

} // namespace

GolferListControls BuildGolferListDialog(QDialog &dialog, const QString &title, const QString &instructions,
                                         const QString &label, const QString &cancelCaption,
                                         QLineEdit *nameBox)
{
    dialog.setWindowTitle(title);
    dialog.setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    GolferListControls c;
    c.lblInstructions = named(new QLabel(instructions, &dialog), "lblInstructions");
    c.lblInstructions->setWordWrap(true);
    c.label1 = named(new QLabel(label, &dialog), "Label1");
    c.lstGolferList = named(new QListWidget(&dialog), "lstGolferList");
    c.cmdOK = named(new QPushButton(QStringLiteral("&OK"), &dialog), "cmdOK");
    c.cmdOK->setEnabled(false);
    c.cmdCancel = named(new QPushButton(cancelCaption, &dialog), "cmdCancel");
    c.label1->setBuddy(nameBox ? static_cast<QWidget *>(nameBox) : c.lstGolferList);

    auto *buttons = new QVBoxLayout;
    buttons->addWidget(c.cmdOK);
    buttons->addWidget(c.cmdCancel);
    buttons->addStretch();
    auto *entry = new QVBoxLayout;
    entry->addWidget(c.label1);
    if (nameBox)
        entry->addWidget(nameBox);
    entry->addWidget(c.lstGolferList, 1);
    auto *row = new QHBoxLayout;
    row->addLayout(entry, 1);
    row->addLayout(buttons);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(c.lblInstructions);
    layout->addLayout(row, 1);
    dialog.resize(420, 320);
    return c;
}

} // namespace quillon
