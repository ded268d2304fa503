#include "docking/AccessibleDockBar.h"

#include "choosers/QMultiCompleterLineEdit.h"
#include "docking/oVIXCloseDetachWidget.h"
#include "docking/oVIXDockBar.h"
#include "foundation/AccessibleWidgets.h"
#include "foundation/OvixSvgButton.h"

AccessibleDockBar::AccessibleDockBar(QWidget *header) : QAccessibleWidget(header, QAccessible::ToolBar)
{ }

void AccessibleDockBar::install()
{
    static const bool added = [] {
        AccessibleWidgets::add<AccessibleDockBar>("oVIXDockBar");
        return true;
    }();
    Q_UNUSED(added)
    AccessibleWidgets::install();
}

QString AccessibleDockBar::text(QAccessible::Text kind) const
{
    const QString text = QAccessibleWidget::text(kind);
    const QWidget *panel = header()->parentWidget();
    return kind == QAccessible::Name && text.isEmpty() && panel ? panel->windowTitle() : text;
}

QStringList AccessibleDockBar::actionNames() const
{
    QStringList names;
    if (!header()->isEnabled())
        return names;
    if (header()->m_searchEnabled)
        names << header()->m_searchEdit->accessibleName();
    if (header()->m_closeDetach->isHidden())
        return names;
    const QList<OvixSvgButton *> buttons = header()->m_closeDetach->buttons();
    for (const OvixSvgButton *button : buttons)
        names << button->accessibleName();
    return names;
}

void AccessibleDockBar::doAction(const QString &action)
{
    if (!actionNames().contains(action))
        return;
    if (header()->m_searchEnabled && action == header()->m_searchEdit->accessibleName()) {
        header()->beginSearch();
        return;
    }
    const QList<OvixSvgButton *> buttons = header()->m_closeDetach->buttons();
    for (OvixSvgButton *button : buttons) {
        if (button->accessibleName() != action)
            continue;
        // Later: what it opens may run a loop of its own.
        QMetaObject::invokeMethod(button, &OvixSvgButton::click, Qt::QueuedConnection);
        return;
    }
}

oVIXDockBar *AccessibleDockBar::header() const
{
    return static_cast<oVIXDockBar *>(widget());
}
