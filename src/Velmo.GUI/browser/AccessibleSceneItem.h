#pragma once

#include "foundation/AccessiblePressable.h"

class VelmoSceneItem;

/// A scene row as assistive tools see it: a list item with the scene's name, selected or not, chosen or not. Pressing
/// selects the row as a click does; toggling turns the choice round.
class AccessibleSceneItem : public AccessiblePressable
{
public:
    static void install();

    explicit AccessibleSceneItem(QWidget *widget);

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &action) override;

protected:
    QString purpose() const override;
    void press() override;

private:
    VelmoSceneItem *row() const;
};
