#include "scale/LayoutFaults.h"

#include "foundation/OvixSvgLabel.h"
#include "foundation/oVIXAspectRatioLabel.h"
#include "frame/oVIXGrip.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSizeGrip>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>
#include <QStyleOptionMenuItem>
#include <QStyleOptionViewItem>
#include <QStyledItemDelegate>
#include <QTabBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString nameOf(const QWidget *widget)
{
    QString name = QString::fromLatin1(widget->metaObject()->className());
    if (!widget->objectName().isEmpty())
        name += u'#' + widget->objectName();
    return name;
}

QString describe(const QWidget *widget)
{
    QString path = nameOf(widget);
    for (const QWidget *parent = widget->parentWidget(); parent && !widget->isWindow(); parent = parent->parentWidget())
        path = nameOf(parent) + u" > "_s + path;
    const QPoint place = widget->mapTo(widget->window(), QPoint());
    return u"%1 at %2, %3, %4 x %5"_s.arg(path.right(160))
        .arg(place.x())
        .arg(place.y())
        .arg(widget->width())
        .arg(widget->height());
}

QList<const QWidget *> shownIn(const QWidget *window)
{
    QList<const QWidget *> shown{window};
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (widget->window() == window && !widget->visibleRegion().isEmpty())
            shown << widget;
    }
    return shown;
}

bool isViewport(const QWidget *widget)
{
    const auto *area = qobject_cast<const QAbstractScrollArea *>(widget->parentWidget());
    return area && area->viewport() == widget;
}

/// Room for a text and what it needs of it.
struct Fit
{
    QString text;
    QSize needed;
    QSize room;
};

/// A label says how small it can be; one that shortens its text says less than that needs. A line without long letters
/// needs less height than its font.
Fit fitOf(const QLabel *label)
{
    QSize needed = label->minimumSizeHint();
    if (label->wordWrap())
        needed.setHeight(label->heightForWidth(label->width()));
    else if (!Qt::mightBeRichText(label->text()) && !label->text().contains(u'\n'))
        needed.setHeight(std::min(needed.height(), label->fontMetrics().tightBoundingRect(label->text()).height() + 2));
    return {label->text(), needed, label->size()};
}

QSize lineOf(const QWidget *widget, const QString &text)
{
    return widget->fontMetrics().size(Qt::TextShowMnemonic, text);
}

Fit fitOf(const QAbstractButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    const QStyle::SubElement contents = qobject_cast<const QCheckBox *>(button) ? QStyle::SE_CheckBoxContents
        : qobject_cast<const QRadioButton *>(button)                            ? QStyle::SE_RadioButtonContents
                                                                                : QStyle::SE_PushButtonContents;
    return {button->text(), lineOf(button, button->text()),
            button->style()->subElementRect(contents, &option, button).size()};
}

/// What can be typed may be longer than the field; what is offered and what a number box shows may not.
Fit fitOf(const QLineEdit *edit)
{
    constexpr int marginOfToolkit = 2; // on either side
    const bool isOfNumbers = qobject_cast<QAbstractSpinBox *>(edit->parentWidget()) != nullptr;
    const QString text = isOfNumbers ? edit->displayText()
        : edit->text().isEmpty()     ? edit->placeholderText()
                                     : QString();
    QStyleOptionFrame option;
    option.initFrom(edit);
    option.lineWidth = edit->hasFrame() ? edit->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, edit) : 0;
    const QMargins margins = edit->textMargins();
    const QSize room = edit->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit).size()
        - QSize(margins.left() + margins.right() + 2 * marginOfToolkit, margins.top() + margins.bottom());
    return {text, {edit->fontMetrics().horizontalAdvance(text), edit->fontMetrics().height()}, room};
}

QList<Fit> fitsOf(const QTabBar *tabs)
{
    QList<Fit> fits;
    for (int tab = 0; tab < tabs->count(); ++tab)
        fits.append({tabs->tabText(tab), lineOf(tabs, tabs->tabText(tab)), tabs->tabRect(tab).size()});
    return fits;
}

/// What does not fit on a menu bar has no room at all.
QList<Fit> fitsOf(const QMenuBar *bar)
{
    QList<Fit> fits;
    const QList<QAction *> actions = bar->actions();
    for (QAction *action : actions)
        fits.append({action->text(), lineOf(bar, action->text()), (bar->actionGeometry(action) & bar->rect()).size()});
    return fits;
}

/// The toolkit's own answer to what it is about to draw.
struct OpenedMenu : QMenu
{
    using QMenu::initStyleOption;
};

struct OpenedView : QAbstractItemView
{
    using QAbstractItemView::initViewItemOption;
};

struct OpenedDelegate : QStyledItemDelegate
{
    using QStyledItemDelegate::initStyleOption;
};

QList<Fit> fitsOf(const QMenu *menu)
{
    QList<Fit> fits;
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (!action->isVisible() || action->isSeparator())
            continue;
        QStyleOptionMenuItem option;
        (menu->*&OpenedMenu::initStyleOption)(&option, action);
        const QString keys = action->shortcut().toString(QKeySequence::NativeText);
        const QSize text = option.fontMetrics.size(Qt::TextSingleLine | Qt::TextShowMnemonic, action->text());
        QSize needed = menu->style()->sizeFromContents(QStyle::CT_MenuItem, &option, text, menu);
        needed.rwidth() += option.fontMetrics.horizontalAdvance(keys);
        fits.append({action->text(), needed, (menu->actionGeometry(action) & menu->rect()).size()});
    }
    return fits;
}

/// Rows that are shown by widgets of their own have to be as high as these; tags may be wider than their list.
QList<Fit> fitsOf(const QAbstractItemView *view)
{
    QList<Fit> fits;
    const auto *delegate = qobject_cast<const QStyledItemDelegate *>(view->itemDelegate());
    for (int row = 0; delegate && row < view->model()->rowCount(view->rootIndex()); ++row) {
        const QModelIndex index = view->model()->index(row, 0, view->rootIndex());
        const QRect place = view->visualRect(index);
        if (!place.intersects(view->viewport()->rect()))
            continue;
        if (const QWidget *widget = view->indexWidget(index)) {
            fits.append({nameOf(widget), {0, widget->height()}, place.size()});
            continue;
        }
        QStyleOptionViewItem option;
        (view->*&OpenedView::initViewItemOption)(&option);
        option.rect = place;
        (delegate->*&OpenedDelegate::initStyleOption)(&option, index);
        const int margin = view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, view) + 1;
        QRect room = view->style()->subElementRect(QStyle::SE_ItemViewItemText, &option, view);
        if (view->horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff)
            room.setRight(std::min(room.right(), view->viewport()->rect().right()));
        fits.append({option.text, option.fontMetrics.size(Qt::TextSingleLine, option.text),
                     room.adjusted(margin, 0, -margin, 0).size()});
    }
    return fits;
}

QList<Fit> fitsOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return {fitOf(label)};
    if (qobject_cast<const QPushButton *>(widget) || qobject_cast<const QCheckBox *>(widget)
        || qobject_cast<const QRadioButton *>(widget))
        return {fitOf(static_cast<const QAbstractButton *>(widget))};
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
        return {fitOf(edit)};
    if (const auto *tabs = qobject_cast<const QTabBar *>(widget))
        return fitsOf(tabs);
    if (const auto *bar = qobject_cast<const QMenuBar *>(widget))
        return fitsOf(bar);
    if (const auto *menu = qobject_cast<const QMenu *>(widget))
        return fitsOf(menu);
    if (const auto *view = qobject_cast<const QAbstractItemView *>(widget))
        return fitsOf(view);
    return {};
}

/// The widget round this one that cuts more off it than the pixel by which the halves of a yes/no bar stand too low; or
/// null.
const QWidget *cutBy(const QWidget *widget)
{
    for (const QWidget *around = widget->parentWidget(); around && !widget->isWindow();
         around = around->parentWidget()) {
        if (isViewport(around))
            return nullptr;
        if (!around->rect().adjusted(-1, -1, 1, 1).contains(QRect(widget->mapTo(around, QPoint()), widget->size())))
            return around;
        if (around->isWindow())
            return nullptr;
    }
    return nullptr;
}

/// Made to lie over others, or others over it: what leaves the pointer to them, what covers all of its parent, and the
/// strips along the edges of windows.
bool isLayer(const QWidget *widget)
{
    return widget->testAttribute(Qt::WA_TransparentForMouseEvents)
        || widget->rect().contains(widget->parentWidget()->rect()) || qobject_cast<const oVIXGrip *>(widget)
        || qobject_cast<const QSizeGrip *>(widget);
}

/// Siblings of which one is meant to lie over the other.
bool areStacked(const QWidget *one, const QWidget *other)
{
    static const QStringList stackings = {
        // The cross at the end of a search field.
        u"OvixSvgButton QMultiCompleterLineEdit"_s,
        // The part of a tag that takes the clicks on its icon.
        u"QClickableLabel OvixSvgLabel"_s,
        // What is typed in place of a tag.
        u"oVIXAutoHideLine QClickableLabel"_s,
        u"oVIXAutoHideLine OvixSvgLabel"_s,
        // The markers of a timebar may meet.
        u"OvixMovableLabel OvixMovableLabel"_s,
    };
    const QString oneClass = QString::fromLatin1(one->metaObject()->className());
    const QString otherClass = QString::fromLatin1(other->metaObject()->className());
    return stackings.contains(oneClass + u' ' + otherClass) || stackings.contains(otherClass + u' ' + oneClass);
}

} // namespace

QStringList LayoutFaults::clippedTexts(const QWidget *window)
{
    QStringList faults;
    const QList<const QWidget *> widgets = shownIn(window);
    for (const QWidget *widget : widgets) {
        const QList<Fit> fits = fitsOf(widget);
        for (const Fit &fit : fits) {
            if (fit.text.isEmpty())
                continue;
            if (fit.room.width() < fit.needed.width() || fit.room.height() < fit.needed.height())
                faults << u"\"%1\" needs %2 x %3 and has %4 x %5: %6"_s.arg(fit.text.left(60))
                              .arg(fit.needed.width())
                              .arg(fit.needed.height())
                              .arg(fit.room.width())
                              .arg(fit.room.height())
                              .arg(describe(widget));
            else if (const QWidget *around = cutBy(widget))
                faults << u"\"%1\" is cut by %2: %3"_s.arg(fit.text.left(60), describe(around), describe(widget));
        }
    }
    return faults;
}

QStringList LayoutFaults::overlaps(const QWidget *window)
{
    QStringList faults;
    const QList<const QWidget *> widgets = shownIn(window);
    for (const QWidget *one : widgets) {
        for (const QWidget *other : widgets) {
            if (one >= other || one->parentWidget() != other->parentWidget())
                continue;
            if (one->geometry().intersects(other->geometry()) && !isLayer(one) && !isLayer(other)
                && !areStacked(one, other))
                faults << describe(one) + u" and "_s + describe(other);
        }
    }
    return faults;
}

QStringList LayoutFaults::blurredPictures(const QWidget *window)
{
    QStringList faults;
    const QList<const QWidget *> widgets = shownIn(window);
    for (const QWidget *widget : widgets) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const QPixmap picture = label ? label->pixmap(Qt::ReturnByValue) : QPixmap();
        // An aspect-ratio label takes pictures as it gets them, and the gallery has some to compare.
        if (picture.isNull() || qobject_cast<const oVIXAspectRatioLabel *>(label)
            || label->objectName() == "otherDensity"_L1)
            continue;
        const qreal ratio = label->devicePixelRatio();
        if (picture.devicePixelRatio() != ratio)
            faults << u"made for a scale of %1: %2"_s.arg(picture.devicePixelRatio()).arg(describe(label));
        // A square icon leaves what cannot be halved of the longer side to its room.
        const QSize around = label->contentsRect().size();
        const int side = std::min(around.width(), around.height());
        const bool isOdd = std::max(around.width(), around.height()) == side + 1;
        const QSizeF room = QSizeF(isOdd ? QSize(side, side) : around) * ratio;
        if (label->hasScaledContents() && room == room.toSize() && room != picture.size())
            faults << u"%1 x %2 device pixels shown on %3 x %4: %5"_s.arg(picture.width())
                          .arg(picture.height())
                          .arg(room.width())
                          .arg(room.height())
                          .arg(describe(label));
    }
    return faults;
}
