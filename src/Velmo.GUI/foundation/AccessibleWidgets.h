#pragma once

class QAccessibleInterface;
class QWidget;

/// What assistive tools are told about the library's own widgets. One factory for all of them.
namespace AccessibleWidgets {

using Creator = QAccessibleInterface *(*)(QWidget *widget);

/// Puts the factory in place; every class that it knows calls this when it is constructed.
void install();

/// Makes the factory use @p create for the class of this name and those derived from it.
void add(const char *className, Creator create);
/// The same with an interface that is made of the widget alone.
template <class Interface> void add(const char *className)
{
    add(className, [](QWidget *widget) -> QAccessibleInterface * { return new Interface(widget); });
}

/// Tells assistive tools that the widget's checked state has changed.
void announceChecked(QWidget *widget);
/// The same for what it expands.
void announceExpanded(QWidget *widget);
/// Makes assistive tools read the widget out at once.
void announceAlert(QWidget *widget);

} // namespace AccessibleWidgets
