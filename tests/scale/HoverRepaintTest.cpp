#include "support/Events.h"
#include "support/Gestures.h"
#include "support/OwnSettings.h"
#include "support/TestCase.h"

#include "scale/Views.h"

#include "frame/oVIXGrip.h"
#include "values/oVIXTimebarWidget.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QBackingStore>
#include <QCursor>
#include <QMainWindow>
#include <QPaintEvent>
#include <QTemporaryDir>
#include <QTest>

#include <numeric>

using namespace Qt::StringLiterals;

namespace {

int areaOf(const QRegion &region)
{
    return std::accumulate(region.begin(), region.end(), 0,
                           [](int sum, const QRect &rect) { return sum + rect.width() * rect.height(); });
}

/// What the pointer has done to a window and what has been painted of it, in the window's coordinates.
class Watch : public QObject
{
public:
    explicit Watch(QWidget *window) : m_window(window), m_before(screen().copy()) { qApp->installEventFilter(this); }

    /// Forgets everything but where the pointer is.
    void start()
    {
        if (!m_painted.isEmpty())
            m_before = screen().copy();
        m_touched = placeOf(below());
        m_painted = QRegion();
        m_painters.clear();
        m_leftTimebars.clear();
        m_crossedViews = QRegion();
    }

    /// Lets what has begun to come and go arrive at once; the markers of a timebar would go some time later.
    void endFades()
    {
        for (oVIXTimebarWidget *timebar : std::as_const(m_leftTimebars)) {
            if (!timebar->rect().contains(timebar->mapFromGlobal(QCursor::pos())))
                timebar->hideLabels();
        }
        Views::endAnimations(m_window);
    }

    /// What has been painted that is of no widget which the pointer has been over, has entered or has left.
    QRegion paintedElsewhere() const
    {
        QRegion elsewhere = m_painted - m_touched - placeOf(below());
        if (elsewhere.isEmpty())
            return elsewhere;
        // A header that shows its buttons has the panels laid out, after which the toolkit paints the gaps between
        // them.
        QList<QMainWindow *> mainWindows = m_window->findChildren<QMainWindow *>();
        if (auto *mainWindow = qobject_cast<QMainWindow *>(m_window))
            mainWindows << mainWindow;
        for (const QMainWindow *mainWindow : mainWindows)
            elsewhere -= gapsOf(mainWindow);
        return elsewhere;
    }

    /// What has been painted if that is far more than what looks different now.
    QRegion paintedInVain() const
    {
        constexpr int bearable = 20000; // device pixels: a row of a list
        constexpr int muchLarger = 8;
        const QRegion painted = m_painted - m_crossedViews;
        const bool isLarge = areaOf(painted) > bearable;
        return isLarge && areaOf(painted) > bearable + muchLarger * areaOf(changesIn(painted)) ? painted : QRegion();
    }

    /// The widgets that paint something of @p region.
    QStringList paintersOf(const QRegion &region) const
    {
        QStringList names;
        for (const auto &[name, painted] : m_painters) {
            if (painted.intersects(region))
                names << name;
        }
        return names;
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *widget = qobject_cast<QWidget *>(watched);
        if (!widget || widget->window() != m_window)
            return false;
        const QEvent::Type type = event->type();
        if (type == QEvent::Paint) {
            const QRegion region =
                static_cast<QPaintEvent *>(event)->region().translated(widget->mapTo(m_window, QPoint()));
            m_painted += region;
            m_painters.append(
                {QString::fromLatin1(widget->metaObject()->className()) + u'#' + widget->objectName(), region});
        } else if (widget != m_window
                   && (type == QEvent::Enter || type == QEvent::Leave || type == QEvent::HoverEnter
                       || type == QEvent::HoverLeave)) {
            m_touched += placeOf(widget);
            if (auto *timebar = qobject_cast<oVIXTimebarWidget *>(widget); timebar && type == QEvent::Leave)
                m_leftTimebars << timebar;
            // The toolkit paints all of an item view when the pointer comes and goes.
            if (qobject_cast<QAbstractItemView *>(widget) || qobject_cast<QAbstractItemView *>(widget->parentWidget()))
                m_crossedViews += placeOf(widget);
        }
        return false;
    }

private:
    /// What the platform keeps of the window at a scale of 1.
    const QImage &screen() const { return *static_cast<QImage *>(m_window->backingStore()->paintDevice()); }

    /// The tiles of @p region that look different now.
    QRegion changesIn(const QRegion &region) const
    {
        constexpr int tile = 16;
        const QImage &now = screen();
        QRegion changed;
        for (const QRect rect : region.intersected(now.rect())) {
            for (int y = rect.top(); y <= rect.bottom(); y += tile) {
                for (int x = rect.left(); x <= rect.right(); x += tile) {
                    const QRect part = QRect(x, y, tile, tile) & rect;
                    if (now.copy(part) != m_before.copy(part))
                        changed += part;
                }
            }
        }
        return changed;
    }

    QRect placeOf(const QWidget *widget) const
    {
        constexpr int frame = 2; // round a widget that its parent draws for it
        return QRect(widget->mapTo(m_window, QPoint()), widget->size()).adjusted(-frame, -frame, frame, frame);
    }

    const QWidget *below() const
    {
        const QWidget *child = m_window->childAt(m_window->mapFromGlobal(QCursor::pos()));
        return child ? child : m_window;
    }

    QRegion gapsOf(const QMainWindow *mainWindow) const
    {
        QRegion gaps = placeOf(mainWindow);
        const QList<QWidget *> parts = mainWindow->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (const QWidget *part : parts) {
            if (part->isVisible() && !part->isWindow() && !qobject_cast<const oVIXGrip *>(part))
                gaps -= QRect(part->mapTo(m_window, QPoint()), part->size());
        }
        return gaps;
    }

    QWidget *m_window;
    QImage m_before;
    QRegion m_touched;
    QRegion m_painted;
    QList<std::pair<QString, QRegion>> m_painters;
    QList<oVIXTimebarWidget *> m_leftTimebars;
    QRegion m_crossedViews;
};

/// A coarse grid, and the middle of everything that is no bigger than a row.
QList<QPoint> placesIn(const QWidget *window)
{
    constexpr int step = 48;
    constexpr int highest = 64;
    QList<QPoint> places;
    for (int y = step / 2; y < window->height(); y += step)
        for (int x = step / 2; x < window->width(); x += step)
            places << QPoint(x, y);
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QPoint middle = widget->mapTo(window, widget->rect().center());
        if (widget->window() == window && widget->height() <= highest && !widget->visibleRegion().isEmpty())
            places << middle;
    }
    return places;
}

} // namespace

class HoverRepaintTest : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        keepSettingsIn(m_settings.path());
        Views::installLook();
    }

    void thePointerRepaintsOnlyWhatItChanges_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : Views::names())
            QTest::newRow(qPrintable(name)) << name;
    }

    void thePointerRepaintsOnlyWhatItChanges()
    {
        QFETCH(QString, name);
        Views::with(name, [](QWidget *window) {
            Gestures::hover(window, QPoint(0, 0));
            QVERIFY(Events::untilIdle());
            Watch watch(window);
            QStringList faults;
            const QList<QPoint> places = placesIn(window);
            for (const QPoint place : places) {
                watch.start();
                Gestures::hover(window, place);
                QVERIFY(Events::untilIdle());
                watch.endFades();
                QVERIFY(Events::untilIdle());
                for (const QRegion &region : {watch.paintedElsewhere(), watch.paintedInVain()}) {
                    const QRect box = region.boundingRect();
                    if (!box.isEmpty())
                        faults << u"At %1, %2 also %3, %4, %5 x %6 has been painted: %7"_s.arg(place.x())
                                      .arg(place.y())
                                      .arg(box.x())
                                      .arg(box.y())
                                      .arg(box.width())
                                      .arg(box.height())
                                      .arg(watch.paintersOf(region).join(u", "_s));
                }
            }
            Gestures::leave();
            for (const QString &fault : std::as_const(faults))
                qInfo().noquote() << fault;
            QCOMPARE(faults.size(), 0);
        });
    }

private:
    QTemporaryDir m_settings;
};

VELMO_TEST_MAIN(HoverRepaintTest)
#include "HoverRepaintTest.moc"
