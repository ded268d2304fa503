#include "window/AccessibleSceneView.h"

#include "window/SceneView.h"

#include <QAccessibleWidget>

using namespace Qt::StringLiterals;

namespace {

class AccessibleCanvas : public QAccessibleWidget
{
public:
    explicit AccessibleCanvas(SceneView *view) : QAccessibleWidget(view, QAccessible::Canvas) { }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (widget()->isEnabled())
            names.prepend(pressAction());
        return names;
    }
    void doAction(const QString &action) override
    {
        if (action != pressAction())
            QAccessibleWidget::doAction(action);
        else if (widget()->isEnabled())
            static_cast<SceneView *>(widget())->pickInTheMiddle();
    }
};

QAccessibleInterface *create(const QString &className, QObject *object)
{
    auto *view = className == "SceneView"_L1 ? qobject_cast<SceneView *>(object) : nullptr;
    return view ? new AccessibleCanvas(view) : nullptr;
}

} // namespace

void AccessibleSceneView::install()
{
    QAccessible::installFactory(create); // once: one that it has already is not added again
}
