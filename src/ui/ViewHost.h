#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>

class QAction;
class QMdiArea;
class QMdiSubWindow;

namespace quillon {

// A view of the frame: a child window that rebuilds what it shows each time it becomes active.
class ViewForm : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;
    // Rebuild from the database and hand the form's name to the menu rules.
    virtual void FormActivate() = 0;
    // The course and tees the view has in front, for the commands that act on a course;
    // false when it has none.
    virtual bool selectedCourse(QString &course, QString &tees) const
    {
        Q_UNUSED(course);
        Q_UNUSED(tees);
        return false;
    }
};

// The views of the frame, each a maximized child window, one open at a time, with the View
// menu's check marks kept in step.  Written once for every view.
class ViewHost : public QObject {
    Q_OBJECT
public:
    using MenuLookup = std::function<QAction *(const QString &)>;
    using Factory = std::function<ViewForm *()>;

    ViewHost(QMdiArea &area, MenuLookup menuItem, QObject *parent = nullptr);

    // A view by form name, with its View menu item (empty for a view reached otherwise).
    void registerView(const QString &formName, const QString &checkItem, Factory factory);
    bool isRegistered(const QString &formName) const { return m_views.contains(formName); }

    // The view if it is loaded, else null.
    ViewForm *loaded(const QString &formName) const;
    // Load (once) the view without showing it, so that it can be told what to show.
    ViewForm &load(const QString &formName);
    // Load (once) and show the view maximized, and let it rebuild.
    ViewForm &show(const QString &formName);
    void unload(const QString &formName);
    // Show a child form that is not a view (an entry form) in its own size, centred over the
    // views and active; it goes when it closes, and the view behind becomes active again.
    void openChild(ViewForm *form);
    // Unload every view but the one named (none: all).
    void unloadAllBut(const QString &formName = QString());
    // The form name of the active child window, view or not; empty when none is open.
    QString activeFormName() const;

    // The handler of a View item: nothing if it is checked already; else the view is shown,
    // the others unloaded, its item checked and the other View items unchecked.
    void switchTo(const QString &formName);
    // Check the item of a view and uncheck the items of the others, opening nothing.
    void checkOnly(const QString &formName);
    // The form name whose View item is checked, in the order given; empty when none.
    QString checkedView(const QStringList &order) const;

private:
    struct Entry {
        QString checkItem;
        Factory factory;
        QPointer<QMdiSubWindow> window;
    };
    void activated(QMdiSubWindow *window);

    QMdiArea &m_area;
    MenuLookup m_menuItem;
    QHash<QString, Entry> m_views;
    QStringList m_order;
    QPointer<QMdiSubWindow> m_lastActive;
};

} // namespace quillon
