#pragma once

#include <QAccessibleWidget>

class oVIXDockBar;

/// A panel's header, as assistive tools see it: a tool bar with the title of its panel. Search field and buttons may
/// wait for a pointer that such tools do not have, so the header has an action for each of them, by its name.
class AccessibleDockBar : public QAccessibleWidget
{
public:
    explicit AccessibleDockBar(QWidget *header);

    static void install();

    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString &action) override;

private:
    oVIXDockBar *header() const;
};
