#include "PageTitle.h"

#include <QFont>
#include <QLabel>

namespace quillon {

QLabel *PageTitle(const QString &text, QWidget *parent)
{
    auto *title = new QLabel(text, parent);
    title->setObjectName(QStringLiteral("lblTitle"));
    QFont big = title->font();
    big.setPointSizeF(big.pointSizeF() * 1.6);
    big.setBold(true);
    title->setFont(big);
    title->setAlignment(Qt::AlignCenter);
    return title;
}

} // namespace quillon
