#include "frame/AccessibleTitleBar.h"

#include "foundation/AccessibleWidgets.h"
#include "frame/oVIXMinMaxCloseWidget.h"
#include "frame/oVIXTitleBar.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QRegularExpression>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A menu of the bar, or an action that stands in it.
class AccessibleMenuTitle : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleMenuTitle(QMenuBar *bar, QAction *action) : m_bar(bar), m_action(action) { }

    QAction *action() const { return m_action; }

    bool isValid() const override { return m_bar && m_action; }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(m_bar); }
    QAccessibleInterface *child(int index) const override
    {
        return index == 0 && menu() ? QAccessible::queryAccessibleInterface(menu()) : nullptr;
    }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return menu() ? 1 : 0; }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return menu() && child && child->object() == menu() ? 0 : -1;
    }

    QAccessible::Role role() const override
    {
        return m_action && m_action->isSeparator() ? QAccessible::Separator : QAccessible::MenuItem;
    }
    /// Without the mark of the letter that opens it.
    QString text(QAccessible::Text kind) const override
    {
        static const QRegularExpression mark(u"&(.)"_s);
        return kind == QAccessible::Name && m_action ? m_action->text().replace(mark, u"\\1"_s) : QString();
    }
    void setText(QAccessible::Text, const QString &) override { }
    QRect rect() const override
    {
        return isValid() ? m_bar->actionGeometry(m_action).translated(m_bar->mapToGlobal(QPoint())) : QRect();
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.invisible = !m_bar->isVisible() || !m_action->isVisible();
        state.disabled = !m_bar->isEnabled() || !m_action->isEnabled();
        state.hasPopup = menu() != nullptr;
        state.expandable = menu() != nullptr;
        state.expanded = menu() && menu()->isVisible();
        state.focusable = !state.disabled;
        state.focused = m_bar->activeAction() == m_action;
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
    }
    QStringList actionNames() const override
    {
        if (!isValid() || state().disabled || m_action->isSeparator())
            return {};
        return {menu() ? showMenuAction() : pressAction()};
    }
    void doAction(const QString &action) override
    {
        if (!actionNames().contains(action))
            return;
        if (!menu())
            QMetaObject::invokeMethod(m_action, &QAction::trigger, Qt::QueuedConnection); // it may open a dialog
        else if (menu()->isVisible())
            menu()->close();
        else
            m_bar->setActiveAction(m_action);
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    QMenu *menu() const { return m_action ? m_action->menu() : nullptr; }

    QPointer<QMenuBar> m_bar;
    QPointer<QAction> m_action;
};

class AccessibleMenuBar : public QAccessibleWidget
{
public:
    explicit AccessibleMenuBar(QWidget *bar) : QAccessibleWidget(bar, QAccessible::MenuBar) { }
    ~AccessibleMenuBar() override
    {
        for (const QAccessible::Id id : std::as_const(m_titles))
            QAccessible::deleteAccessibleInterface(id);
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() ? oVIXTitleBar::tr("Menu bar") : text;
    }
    int childCount() const override { return int(actions().size()) + (buttons() ? 1 : 0); }
    QAccessibleInterface *child(int index) const override
    {
        const QList<QAction *> actions = this->actions();
        if (index == actions.size())
            return QAccessible::queryAccessibleInterface(buttons());
        if (index < 0 || index > actions.size())
            return nullptr;
        auto known = m_titles.find(actions[index]);
        if (known != m_titles.end() && titleOf(*known)->action() != actions[index]) {
            QAccessible::deleteAccessibleInterface(*known);
            m_titles.erase(known);
            known = m_titles.end();
        }
        if (known == m_titles.end()) {
            forgetDeleted();
            auto *title = new AccessibleMenuTitle(bar(), actions[index]);
            known = m_titles.insert(actions[index], QAccessible::registerAccessibleInterface(title));
        }
        return QAccessible::accessibleInterface(*known);
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        if (const auto *title = dynamic_cast<const AccessibleMenuTitle *>(child))
            return int(actions().indexOf(title->action()));
        return child && child->object() && child->object() == buttons() ? int(actions().size()) : -1;
    }
    QAccessibleInterface *childAt(int x, int y) const override
    {
        const QPoint place = bar()->mapFromGlobal(QPoint(x, y));
        if (buttons() && buttons()->geometry().contains(place))
            return child(int(actions().size()));
        return child(int(actions().indexOf(bar()->actionAt(place))));
    }

private:
    QMenuBar *bar() const { return static_cast<QMenuBar *>(widget()); }
    QList<QAction *> actions() const { return bar()->actions(); }
    QWidget *buttons() const { return bar()->cornerWidget(Qt::TopRightCorner); }
    static const AccessibleMenuTitle *titleOf(QAccessible::Id id)
    {
        return static_cast<AccessibleMenuTitle *>(QAccessible::accessibleInterface(id));
    }

    void forgetDeleted() const
    {
        for (auto i = m_titles.begin(); i != m_titles.end();) {
            if (titleOf(*i)->action()) {
                ++i;
            } else {
                QAccessible::deleteAccessibleInterface(*i);
                i = m_titles.erase(i);
            }
        }
    }

    /// By action; a later action may have the address of an earlier one.
    mutable QHash<QAction *, QAccessible::Id> m_titles;
};

/// Other menu bars of the application are left to the toolkit.
QAccessibleInterface *createMenuBar(QWidget *widget)
{
    const auto *bar = qobject_cast<QMenuBar *>(widget);
    const bool isTitleBar = bar && qobject_cast<oVIXMinMaxCloseWidget *>(bar->cornerWidget(Qt::TopRightCorner));
    return isTitleBar ? new AccessibleMenuBar(widget) : nullptr;
}

} // namespace

void AccessibleTitleBar::install()
{
    static const bool added = [] {
        AccessibleWidgets::add("QMenuBar", createMenuBar);
        return true;
    }();
    Q_UNUSED(added)
    AccessibleWidgets::install();
}
