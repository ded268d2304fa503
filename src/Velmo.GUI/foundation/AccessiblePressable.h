#pragma once

#include <QAccessibleWidget>

/// A widget that can be pressed, as assistive tools see it. Its name is the accessible name, else the tool tip, else
/// what the widget says of its purpose. The press comes with the next turn of the event loop: whoever asks for it would
/// else wait for the end of a menu or a dialog that it opens.
class AccessiblePressable : public QAccessibleWidget
{
public:
    AccessiblePressable(QWidget *widget, QAccessible::Role role);

    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString &action) override;

protected:
    /// What the widget is for, where nobody has given it a name.
    virtual QString purpose() const = 0;
    /// Whether a click does anything now.
    virtual bool isPressable() const;
    /// Does what a click does.
    virtual void press() = 0;

private:
    static void pressNow(QWidget *widget);
};

/// A button that may be made checkable.
template <class Button> class AccessibleCheckable : public AccessiblePressable
{
public:
    explicit AccessibleCheckable(QWidget *widget) : AccessiblePressable(widget, QAccessible::Button) { }

    /// Asked each time: a button may be made checkable after the first question.
    QAccessible::Role role() const override
    {
        return button()->isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessiblePressable::state();
        state.checkable = button()->isCheckable();
        state.checked = button()->isChecked();
        return state;
    }

protected:
    void press() override { button()->click(); }
    Button *button() const { return static_cast<Button *>(widget()); }
};
