#include "support/TestCase.h"

#include "frame/oVIXGrip.h"
#include "frame/oVIXMainWindow.h"
#include "frame/oVIXTitleBar.h"

#include <QMenuBar>
#include <QMouseEvent>
#include <QTest>

#include <cstddef>
#include <cstdlib>
#include <new>

using namespace Qt::StringLiterals;

namespace {

thread_local int allocations = 0;

} // namespace

// The forms for arrays and sizes and those that do not throw end in these two.
void *operator new(std::size_t size)
{
    ++allocations;
    if (void *memory = std::malloc(size > 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace {

/// How many allocations @p work makes in this thread.
template <class Work> int allocationsOf(Work work)
{
    const int before = allocations;
    work();
    return allocations - before;
}

constexpr QPoint way(4, 8);

QMouseEvent mouseAt(QPoint global, QEvent::Type type)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    return QMouseEvent(type, QPointF(300, 5), QPointF(global), button, Qt::LeftButton, Qt::NoModifier);
}

/// How many allocations @p handle makes in all for moves with the left button held, from @p from on by `way`. Events
/// are made one by one, since those of a device share its position.
template <class Handle> int allocationsOfMoves(QPoint from, Handle handle)
{
    int count = 0;
    for (int step = 1; step <= 4; ++step) {
        QMouseEvent move = mouseAt(from + way * step / 4, QEvent::MouseMove);
        count += allocationsOf([&] { handle(&move); });
    }
    return count;
}

} // namespace

/// What runs at every event or mouse move of the application must not allocate.
class NoAllocationTest : public TestCase
{
    Q_OBJECT

private slots:
    void seesAllocations()
    {
        QCOMPARE_GT(allocationsOf([] { delete new QObject; }), 0);
    }

    void holdsForEveryEvent()
    {
        oVIXMainWindow window;
        QObject other;
        const int count = allocationsOfMoves({300, 200}, [&](QMouseEvent *move) {
            window.eventFilter(&other, move);
            window.eventFilter(&window, move);
        });
        QCOMPARE(count, 0);
    }

    void holdsForADragByTheTitle()
    {
        oVIXMainWindow window; // not shown: what the toolkit does to move it on screen is not counted
        window.setGeometry(100, 100, 600, 300);
        oVIXTitleBar title(window.menuBar(), true, true, true);
        window.menuBar()->resize(600, 30);
        QMouseEvent press = mouseAt({400, 105}, QEvent::MouseButtonPress);
        title.eventFilter(window.menuBar(), &press);
        QCOMPARE(allocationsOfMoves({400, 105}, [&](QMouseEvent *move) { title.eventFilter(window.menuBar(), move); }),
                 0);
        QCOMPARE(window.pos(), QPoint(100, 100) + way);
    }

    void holdsForADragOfAGrip()
    {
        struct Grip : oVIXGrip
        {
            using oVIXGrip::mouseMoveEvent;
            using oVIXGrip::mousePressEvent;
            using oVIXGrip::oVIXGrip;
        };
        QWidget window;
        Grip grip(&window, oVIXGrip::Bottom, 5, 3);
        grip.setAttribute(Qt::WA_UnderMouse);
        QPoint moved;
        connect(&grip, &oVIXGrip::resizeByGrip, this, [&moved](QPoint delta) { moved += delta; });
        QMouseEvent press = mouseAt({300, 200}, QEvent::MouseButtonPress);
        grip.mousePressEvent(&press);
        QCOMPARE(allocationsOfMoves({300, 200}, [&](QMouseEvent *move) { grip.mouseMoveEvent(move); }), 0);
        QCOMPARE(moved, QPoint(0, way.y()));
    }
};

VELMO_TEST_MAIN(NoAllocationTest)
#include "NoAllocationTest.moc"
