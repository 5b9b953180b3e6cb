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
    // Views are maximized by show(); an entry form over them keeps its own size.
    m_area.setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    // A closed form hands the activation back to the one that was active before it.
    m_area.setActivationOrder(QMdiArea::ActivationHistoryOrder);
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

ViewForm &ViewHost::load(const QString &formName)
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
    return *qobject_cast<ViewForm *>(e.window->widget());
}

ViewForm &ViewHost::show(const QString &formName)
{
    ViewForm *form = &load(formName);
    Entry &e = m_views[formName];
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

void ViewHost::openChild(ViewForm *form)
{
    if (auto *open = qobject_cast<QMdiSubWindow *>(form->parentWidget())) {
        open->showNormal();
        m_area.setActiveSubWindow(open);
        return;
    }
    form->setAttribute(Qt::WA_DeleteOnClose);
    QMdiSubWindow *window = m_area.addSubWindow(form);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(form->windowTitle());
    window->setWindowIcon(QIcon());
    connect(form, &QWidget::windowTitleChanged, window, &QWidget::setWindowTitle);
    // The title bar has no maximize or minimize: the form keeps the size of its layout.
    window->setWindowFlags(Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    window->adjustSize();
    QRect area(QPoint(0, 0), window->size());
    area.moveCenter(m_area.viewport()->rect().center());
    window->move(area.topLeft().x() < 0 ? 0 : area.left(), area.top() < 0 ? 0 : area.top());
    window->showNormal();
    m_area.setActiveSubWindow(window);
    if (m_lastActive != window) {
        m_lastActive = window;
        form->FormActivate();
    }
}

QString ViewHost::activeFormName() const
{
    QMdiSubWindow *active = m_area.activeSubWindow();
    if (!active)
        active = m_lastActive;
    if (!active || !active->widget())
        return QString();
    return active->widget()->objectName();
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
