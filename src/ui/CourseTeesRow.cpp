#include "CourseTeesRow.h"

#include "platform/Platform.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>

namespace quillon {

CourseTeesLists AddCourseTeesRow(QWidget *owner, QBoxLayout *into)
{
    CourseTeesLists lists;
    auto *row = new QHBoxLayout;
    auto *courseCaption = new QLabel(QStringLiteral("Course:"), owner);
    lists.courses = new QComboBox(owner);
    lists.courses->setObjectName(QStringLiteral("dbcboCourses"));
    lists.courses->setMinimumWidth(260);
    courseCaption->setBuddy(lists.courses);
    auto *teesCaption = new QLabel(QStringLiteral("Tees:"), owner);
    lists.tees = new QComboBox(owner);
    lists.tees->setObjectName(QStringLiteral("cboTees"));
    lists.tees->setMinimumWidth(160);
    teesCaption->setBuddy(lists.tees);
    row->addWidget(courseCaption);
    row->addWidget(lists.courses, 1);
    row->addSpacing(16);
    row->addWidget(teesCaption);
    row->addWidget(lists.tees);
    row->addStretch(1);
    into->addLayout(row);
    return lists;
}

bool OfferTees(QComboBox &list, const QStringList &tees, const QString &title)
{
    list.clear();
    if (tees.isEmpty()) {
        platform().messageBox(QStringLiteral("Course data is not available."), MsgIcon::Critical, title);
        return false;
    }
    list.addItems(tees);
    list.setCurrentIndex(0);
    return true;
}

} // namespace quillon
