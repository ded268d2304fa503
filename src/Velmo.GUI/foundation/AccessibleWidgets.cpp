#include "foundation/AccessibleWidgets.h"

#include "foundation/AccessiblePressable.h"
#include "foundation/OvixSvgButton.h"
#include "foundation/QClickableLabel.h"
#include "foundation/QClickableWidget.h"

#include <QHash>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace {

QHash<QString, AccessibleWidgets::Creator> &creators()
{
    static QHash<QString, AccessibleWidgets::Creator> table;
    return table;
}

QAccessibleInterface *create(const QString &className, QObject *object)
{
    const AccessibleWidgets::Creator creator = creators().value(className);
    auto *widget = qobject_cast<QWidget *>(object);
    return creator && widget ? creator(widget) : nullptr;
}

/// "Clear cross" for ":/Windows/ClearCross".
QString wordsOf(const QString &filename)
{
    QString words;
    const QString name = filename.section(u'/', -1).section(u'.', 0, 0);
    for (const QChar character : name) {
        if (character.isUpper() && !words.isEmpty())
            words += u' ' + character.toLower();
        else
            words += character;
    }
    return words;
}

/// What a label says, without its markup.
QString plainTextOf(const QLabel *label)
{
    const QString text = label->text();
    const bool markedUp =
        label->textFormat() == Qt::RichText || (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(text));
    return markedUp ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

class AccessibleIcon : public QAccessibleWidget
{
public:
    explicit AccessibleIcon(QWidget *widget) : QAccessibleWidget(widget, QAccessible::Graphic) { }

    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() ? widget()->toolTip() : text;
    }
};

class AccessibleIconButton : public AccessibleCheckable<OvixSvgButton>
{
public:
    using AccessibleCheckable::AccessibleCheckable;

    /// One that leaves single clicks to its parent is looked at, not pressed.
    QAccessible::Role role() const override
    {
        return button()->ignoresSingleClick() ? QAccessible::Graphic : AccessibleCheckable::role();
    }

protected:
    QString purpose() const override { return wordsOf(button()->firstFilename()); }
    bool isPressable() const override { return button()->isEnabled() && !button()->ignoresSingleClick(); }
};

class AccessibleClickableLabel : public AccessiblePressable
{
public:
    explicit AccessibleClickableLabel(QWidget *widget) : AccessiblePressable(widget, QAccessible::Button) { }

    /// A label that leaves single clicks to its parent is read, not pressed.
    QAccessible::Role role() const override
    {
        return label()->ignoresSingleClick() ? QAccessible::StaticText : QAccessible::Button;
    }

protected:
    QString purpose() const override { return plainTextOf(label()); }
    bool isPressable() const override { return label()->isEnabled() && !label()->ignoresSingleClick(); }
    void press() override { label()->click(); }

private:
    QClickableLabel *label() const { return static_cast<QClickableLabel *>(widget()); }
};

class AccessibleClickableWidget : public AccessiblePressable
{
public:
    explicit AccessibleClickableWidget(QWidget *widget) : AccessiblePressable(widget, QAccessible::Button) { }

protected:
    /// What is written on it.
    QString purpose() const override
    {
        const QList<QLabel *> labels = widget()->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (!label->text().isEmpty())
                return plainTextOf(label);
        }
        return {};
    }
    void press() override { static_cast<QClickableWidget *>(widget())->click(); }
};

void announce(QWidget *widget, QAccessible::State changed)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleStateChangeEvent event(widget, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void AccessibleWidgets::install()
{
    static const bool filled = [] {
        add<AccessibleIcon>("OvixSvgLabel");
        add<AccessibleIconButton>("OvixSvgButton");
        add<AccessibleClickableLabel>("QClickableLabel");
        add<AccessibleClickableWidget>("QClickableWidget");
        return true;
    }();
    Q_UNUSED(filled)
    // The toolkit forgets its factories with the application object; one that it has already is not added again.
    QAccessible::installFactory(create);
}

void AccessibleWidgets::add(const char *className, Creator creator)
{
    creators().insert(QString::fromLatin1(className), creator);
}

void AccessibleWidgets::announceChecked(QWidget *widget)
{
    QAccessible::State changed;
    changed.checked = true;
    announce(widget, changed);
}

void AccessibleWidgets::announceExpanded(QWidget *widget)
{
    QAccessible::State changed;
    changed.expanded = true;
    announce(widget, changed);
}

void AccessibleWidgets::announceAlert(QWidget *widget)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent alert(widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}
