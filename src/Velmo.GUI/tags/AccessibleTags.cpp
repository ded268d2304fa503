#include "tags/AccessibleTags.h"

#include "foundation/AccessiblePressable.h"
#include "foundation/AccessibleWidgets.h"
#include "tags/oVIXDragTag.h"
#include "tags/oVIXTagListWidgetItem.h"

namespace {

class AccessibleDragTag : public AccessiblePressable
{
public:
    explicit AccessibleDragTag(QWidget *widget) : AccessiblePressable(widget, QAccessible::ListItem) { }

protected:
    QString purpose() const override { return tag()->text(); }
    bool isPressable() const override { return tag()->isEnabled(); }
    void press() override
    {
        if (tag()->isAdd())
            tag()->fnAddClicked();
        else
            emit tag()->doubleClick();
    }

private:
    oVIXDragTag *tag() const { return static_cast<oVIXDragTag *>(widget()); }
};

class AccessibleTagListItem : public QAccessibleWidget
{
public:
    explicit AccessibleTagListItem(QWidget *widget) : QAccessibleWidget(widget, QAccessible::ListItem) { }

    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() ? static_cast<QLabel *>(widget())->text() : text;
    }
};

} // namespace

void AccessibleTags::install()
{
    static const bool added = [] {
        AccessibleWidgets::add<AccessibleDragTag>("oVIXDragTag");
        AccessibleWidgets::add<AccessibleTagListItem>("oVIXTagListWidgetItem");
        return true;
    }();
    Q_UNUSED(added)
    AccessibleWidgets::install();
}
