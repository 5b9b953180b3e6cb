#include "ViewHost.h"

#include "platform/Hourglass.h"

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>

namespace quillon {

ViewHost::ViewHost(QMdiArea &area, MenuLookup menuItem, QObject *parent)
    : QObject(parent), m_area(area), m_menuItem(std::move(menuItem))
{
    connect(&m_area, &QMdiArea::subWindowActivated, this, &ViewHost::activated);
}

void ViewHost::registerView(const QString &formName, const QString &checkItem, Factory factory)
{
    if (!m_views.contains(formName))
        m_order << formName;
    m_views.insert(formName, {checkItem, std::move(factory), nullptr});
}

ViewForm *ViewHost::loaded(const QString &formName) const
{
    const auto it = m_views.constFind(formName);
    if (it == m_views.constEnd() || !it->window)
        return nullptr;
    return qobject_cast<ViewForm *>(it->window->widget());
}

ViewForm &ViewHost::show(const QString &formName)
{
    Entry &e = m_views[formName];
    if (!e.window) {
        ViewForm *form = e.factory();
        form->setAttribute(Qt::WA_DeleteOnClose);
        e.window = m_area.addSubWindow(form);
        e.window->setAttribute(Qt::WA_DeleteOnClose);
        e.window->setWindowTitle(form->windowTitle());
        e.window->setWindowIcon(QIcon());
    }
    auto *form = qobject_cast<ViewForm *>(e.window->widget());
    e.window->showMaximized();
    m_area.setActiveSubWindow(e.window);
    // Every activation rebuilds the view, also when it was active already.
    m_lastActive = e.window;
    form->FormActivate();
    return *form;
}

void ViewHost::unload(const QString &formName)
{
    auto it = m_views.find(formName);
    if (it == m_views.end() || !it->window)
        return;
    QMdiSubWindow *w = it->window;
    it->window = nullptr;
    if (m_lastActive == w)
        m_lastActive = nullptr;
    w->close();
    delete w;
}

void ViewHost::unloadAllBut(const QString &formName)
{
    for (const QString &name : m_order)
        if (name != formName)
            unload(name);
}

QString ViewHost::activeFormName() const
{
    QMdiSubWindow *active = m_area.activeSubWindow();
    if (!active)
        active = m_lastActive;
    for (auto it = m_views.cbegin(); it != m_views.cend(); ++it)
        if (it->window && it->window == active)
            return it.key();
    return QString();
}

void ViewHost::switchTo(const QString &formName)
{
    const Entry &e = m_views[formName];
    QAction *item = m_menuItem(e.checkItem);
    if (item && item->isChecked())
        return;
    Hourglass hourglass;
    show(formName);
    unloadAllBut(formName);
    checkOnly(formName);
}

void ViewHost::checkOnly(const QString &formName)
{
    for (auto it = m_views.cbegin(); it != m_views.cend(); ++it) {
        if (it->checkItem.isEmpty())
            continue;
        if (QAction *item = m_menuItem(it->checkItem))
            item->setChecked(it.key() == formName);
    }
}

QString ViewHost::checkedView(const QStringList &order) const
{
    for (const QString &name : order) {
        const auto it = m_views.constFind(name);
        if (it == m_views.constEnd() || it->checkItem.isEmpty())
            continue;
        if (QAction *item = m_menuItem(it->checkItem); item && item->isChecked())
            return name;
    }
    return QString();
}

void ViewHost::activated(QMdiSubWindow *window)
{
    // The frame's own activation re-announces the active child; only a change of view rebuilds.
    if (!window || window == m_lastActive)
        return;
    m_lastActive = window;
    if (auto *form = qobject_cast<ViewForm *>(window->widget()))
        form->FormActivate();
}

} // namespace quillon
