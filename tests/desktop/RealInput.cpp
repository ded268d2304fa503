#include "desktop/RealInput.h"

#include <QGuiApplication>
#include <QProcess>
#include <QTest>
#include <QWidget>
#include <QWindow>

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
    const QPointF native = QPointF(point) * qGuiApp->devicePixelRatio();
    run({u"mousemove"_s, QString::number(qRound(native.x())), QString::number(qRound(native.y()))});
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

void RealInput::drag(QPoint from, QPoint to)
{
    moveTo(from);
    press();
    for (int step = 1; step <= dragSteps; ++step)
        moveTo(from + (to - from) * step / dragSteps);
    release();
}

void RealInput::key(const QString &keys)
{
    run({u"key"_s, keys});
}

void RealInput::type(const QString &text)
{
    run({u"type"_s, text});
}
