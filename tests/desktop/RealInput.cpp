#include "desktop/RealInput.h"

#include <QGuiApplication>
#include <QProcess>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr int dragSteps = 4;

void run(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(u"xdotool"_s, arguments);
    const bool ended = QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; }, 20000);
    if (!ended || process.exitCode() != 0)
        QTest::qFail(qPrintable(u"xdotool "_s + arguments.join(u' ')), __FILE__, __LINE__);
    QTest::qWait(50); // what the window system still has on its way
}

QStringList movingTo(QPoint point)
{
    const QPointF native = QPointF(point) * qGuiApp->devicePixelRatio();
    return {u"mousemove"_s, QString::number(qRound(native.x())), QString::number(qRound(native.y()))};
}

} // namespace

void RealInput::show(QWidget *window, const QRect &geometry)
{
    window->show();
    if (!QTest::qWaitForWindowActive(window))
        QTest::qFail("The window does not become the active one", __FILE__, __LINE__);
    window->setGeometry(geometry);
    if (!QTest::qWaitFor([&] { return window->geometry() == geometry; }))
        QTest::qFail("The window does not get its place", __FILE__, __LINE__);
    QTest::qWait(100); // the window manager's echoes of the placing
}

void RealInput::moveTo(QPoint point)
{
    run(movingTo(point));
}

void RealInput::press()
{
    run({u"mousedown"_s, u"1"_s});
}

void RealInput::release()
{
    run({u"mouseup"_s, u"1"_s});
}

void RealInput::click(QPoint point)
{
    moveTo(point);
    run({u"click"_s, u"1"_s});
}

void RealInput::doubleClick(QPoint point)
{
    moveTo(point);
    run({u"click"_s, u"--repeat"_s, u"2"_s, u"--delay"_s, u"60"_s, u"1"_s});
}

void RealInput::contextClick(QPoint point)
{
    moveTo(point);
    run({u"click"_s, u"3"_s});
}

void RealInput::wheel(QPoint point, int notches)
{
    moveTo(point);
    run({u"click"_s, u"--repeat"_s, QString::number(std::abs(notches)), notches > 0 ? u"4"_s : u"5"_s});
}

void RealInput::drag(QPoint from, QPoint to)
{
    // By one process: the first moves may start an event loop that ends with the release only.
    const QStringList pause{u"sleep"_s, u"0.08"_s};
    QStringList arguments = movingTo(from) + pause + QStringList{u"mousedown"_s, u"1"_s} + pause;
    for (int step = 1; step <= dragSteps; ++step)
        arguments += movingTo(from + (to - from) * step / dragSteps) + pause;
    run(arguments + QStringList{u"mouseup"_s, u"1"_s});
}

void RealInput::key(const QString &keys)
{
    run({u"key"_s, keys});
}

void RealInput::type(const QString &text)
{
    run({u"type"_s, text});
}
