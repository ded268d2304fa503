#pragma once

#include "monkey/Senders.h"
#include "support/Assistive.h"
#include "support/Gestures.h"

#include "VelmoDropData.h"

#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QString>
#include <QTest>
#include <QWidget>

#include <memory>
#include <utility>

/// The parts of the list of senders, and what their causes are made of.
namespace Senders {

/// Of the sample application, where it is built.
QList<Sender> ofApplication();
QList<Sender> ofFoundationAndChoosers();
QList<Sender> ofFrameAndDocking();
QList<Sender> ofMessagesAndBrowser();
QList<Sender> ofTags();
QList<Sender> ofValues();

using Act = std::function<void(QObject *)>;

/// The child with this object name; the sender itself for an empty one.
inline QWidget *partOf(QObject *sender, const QString &name)
{
    return name.isEmpty() ? static_cast<QWidget *>(sender) : sender->findChild<QWidget *>(name);
}

/// An act on the sender as what it is.
template <class Class, class Function> Act with(Function function)
{
    return [function](QObject *sender) { function(static_cast<Class *>(sender)); };
}

inline Act click(const QString &part = {}, Qt::MouseButton button = Qt::LeftButton)
{
    return [=](QObject *sender) { Gestures::click(partOf(sender, part), button); };
}

/// The press may be the end of all.
inline Act doubleClick(const QString &part = {})
{
    return [=](QObject *sender) { Gestures::doubleClick(partOf(sender, part)); };
}

/// Asks for it as assistive tools do.
inline Act pressByTools(const QString &part = {})
{
    return [=](QObject *sender) { Assistive::act(partOf(sender, part)); };
}

/// With the left button, held at the end.
inline void dragBy(QWidget *widget, QPoint delta)
{
    const QPoint from = widget->rect().center();
    const QPointer<QWidget> host = widget->window();
    const QPoint origin = widget->mapTo(host, QPoint());
    Gestures::press(widget);
    if (host)
        Gestures::hover(host, origin + from + delta);
}

inline Act drag(const QString &part, QPoint delta)
{
    return [=](QObject *sender) { dragBy(partOf(sender, part), delta); };
}

inline Act dragAndDrop(const QString &part, QPoint delta)
{
    return [=](QObject *sender) {
        const QPointer<QWidget> host = partOf(sender, part)->window();
        dragBy(partOf(sender, part), delta);
        if (host)
            Gestures::release(host);
    };
}

/// Gives @p widget the keyboard and types; a key more ends it.
inline void type(QWidget *widget, const QString &text, Qt::Key last = Qt::Key_Return)
{
    const QPointer<QWidget> typed(widget);
    Gestures::focus(widget);
    if (typed && !text.isEmpty())
        QTest::keyClicks(typed.data(), text);
    if (typed)
        QTest::keyPress(typed.data(), last);
    if (typed)
        QTest::keyRelease(typed.data(), last);
}

/// A part that could not have the keyboard gets it.
inline Act pressKey(const QString &part = {}, Qt::Key key = Qt::Key_Space)
{
    return [=](QObject *sender) {
        partOf(sender, part)->setFocusPolicy(Qt::StrongFocus);
        type(partOf(sender, part), {}, key);
    };
}

/// Drags a tag of the application over @p widget and drops it there.
inline void dropTag(QWidget *widget)
{
    const QPointer<QWidget> target(widget);
    const std::unique_ptr<QMimeData> data(
        VelmoDropData({{QStringLiteral("Tree"), {}}}, VelmoDropData::Tags).getMimeData());
    QDragEnterEvent enter({5, 5}, Qt::MoveAction, data.get(), Qt::LeftButton, {});
    QDragMoveEvent move({5, 5}, Qt::MoveAction, data.get(), Qt::LeftButton, {});
    QDropEvent drop({5, 5}, Qt::MoveAction, data.get(), Qt::LeftButton, {});
    for (QDropEvent *event : {static_cast<QDropEvent *>(&enter), static_cast<QDropEvent *>(&move), &drop}) {
        if (target)
            QCoreApplication::sendEvent(target, event);
    }
}

/// Puts a widget into the host, at a place where drags have room.
template <class Class> Class *placed(Class *widget, const QSize &size)
{
    widget->setGeometry(QRect(QPoint(100, 100), size));
    return widget;
}

} // namespace Senders
