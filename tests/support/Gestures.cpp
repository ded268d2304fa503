#include "support/Gestures.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

namespace {

QWindow *windowOf(const QWidget *widget)
{
    return widget->window()->windowHandle();
}

QPoint middleInWindow(const QWidget *widget)
{
    return widget->mapTo(widget->window(), widget->rect().center());
}

} // namespace

void Gestures::show(QWidget *window)
{
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    QCoreApplication::processEvents();
}

void Gestures::focus(QWidget *widget)
{
    widget->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(widget->window()));
    widget->setFocus();
}

void Gestures::hover(QWidget *widget, QPoint point)
{
    QWindow *window = windowOf(widget);
    const QPoint place = widget->mapTo(widget->window(), point);
    QCursor::setPos(widget->mapToGlobal(point));
    // The platform tells of it too, from scaled points that it takes for unscaled ones: the last word is not its. In
    // the middle of a drag it would be a step of that.
    if (QGuiApplication::mouseButtons() == Qt::NoButton)
        QCoreApplication::processEvents();
    QTest::mouseMove(window, place);
    QCoreApplication::processEvents();
}

void Gestures::hover(QWidget *widget)
{
    hover(widget, widget->rect().center());
}

void Gestures::leave()
{
    QCursor::setPos(QPoint(-1, -1));
    QCoreApplication::processEvents();
}

void Gestures::press(QWidget *widget, Qt::MouseButton button)
{
    hover(widget);
    QTest::mousePress(windowOf(widget), button, {}, middleInWindow(widget));
}

void Gestures::release(QWidget *widget, Qt::MouseButton button)
{
    QTest::mouseRelease(windowOf(widget), button, {}, middleInWindow(widget));
}

void Gestures::click(QWidget *widget, Qt::MouseButton button)
{
    hover(widget);
    // The press may be the end of the widget.
    QTest::mouseClick(windowOf(widget), button, {}, middleInWindow(widget));
}

void Gestures::doubleClick(QWidget *widget, Qt::MouseButton button)
{
    hover(widget);
    QTest::mouseDClick(windowOf(widget), button, {}, middleInWindow(widget));
}

void Gestures::turnWheel(QWidget *widget, int delta)
{
    const QPointF point = widget->rect().center();
    QWheelEvent event(point, widget->mapToGlobal(point), {}, {0, delta}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

bool Gestures::send(QWidget *widget, QEvent::Type type, QPoint point, Qt::MouseButton button)
{
    QMouseEvent event(type, point, widget->mapToGlobal(point), type == QEvent::MouseMove ? Qt::NoButton : button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}
