#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace quillon {

// The title of a page form (a form that is printed, never shown): `lblTitle`, large, bold and
// centred above what the page holds.
QLabel *PageTitle(const QString &text, QWidget *parent);

} // namespace quillon
