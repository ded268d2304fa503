#include "support/Events.h"
#include "support/Gestures.h"
#include "support/OwnSettings.h"
#include "support/TestCase.h"

#include "scale/Views.h"

#include "frame/oVIXGrip.h"
#include "values/oVIXTimebarWidget.h"

#include <QApplication>
#include <QCursor>
#include <QMainWindow>
#include <QPaintEvent>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// What the pointer has done to a window and what has been painted of it, in the window's coordinates.
class Watch : public QObject
{
public:
    explicit Watch(QWidget *window) : m_window(window) { qApp->installEventFilter(this); }

    /// Forgets everything but where the pointer is.
    void start()
    {
        m_touched = placeOf(below());
        m_painted = QRegion();
        m_painters.clear();
    }

    /// What has been painted that is of no widget which the pointer has been over, has entered or has left.
    QRegion paintedElsewhere() const
    {
        QRegion elsewhere = m_painted - m_touched - placeOf(below());
        if (elsewhere.isEmpty())
            return elsewhere;
        // The markers of a timebar fade some time after the pointer has left.
        const QList<oVIXTimebarWidget *> timebars = m_window->findChildren<oVIXTimebarWidget *>();
        for (const oVIXTimebarWidget *timebar : timebars)
            elsewhere -= placeOf(timebar);
        // A header that shows its buttons has the panels laid out, after which the toolkit paints the gaps between
        // them.
        QList<QMainWindow *> mainWindows = m_window->findChildren<QMainWindow *>();
        if (auto *mainWindow = qobject_cast<QMainWindow *>(m_window))
            mainWindows << mainWindow;
        for (const QMainWindow *mainWindow : mainWindows)
            elsewhere -= gapsOf(mainWindow);
        return elsewhere;
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
        }
        return false;
    }

private:
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
    QRegion m_touched;
    QRegion m_painted;
    QList<std::pair<QString, QRegion>> m_painters;
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
        const std::unique_ptr<QWidget> view = Views::show(name);
        QVERIFY(view);
        QWidget *window = QApplication::activeModalWidget() ? QApplication::activeModalWidget() : view.get();
        Gestures::hover(window, QPoint(0, 0));
        QVERIFY(Events::untilIdle());
        Watch watch(window);
        QStringList faults;
        const QList<QPoint> places = placesIn(window);
        for (const QPoint place : places) {
            watch.start();
            Gestures::hover(window, place);
            QVERIFY(Events::untilIdle());
            const QRegion elsewhere = watch.paintedElsewhere();
            if (!elsewhere.isEmpty())
                faults << u"At %1, %2 also %3, %4, %5 x %6 has been painted: %7"_s.arg(place.x())
                              .arg(place.y())
                              .arg(elsewhere.boundingRect().x())
                              .arg(elsewhere.boundingRect().y())
                              .arg(elsewhere.boundingRect().width())
                              .arg(elsewhere.boundingRect().height())
                              .arg(watch.paintersOf(elsewhere).join(u", "_s));
        }
        Gestures::leave();
        for (const QString &fault : std::as_const(faults))
            qInfo().noquote() << fault;
        QCOMPARE(faults.size(), 0);
    }

private:
    QTemporaryDir m_settings;
};

VELMO_TEST_MAIN(HoverRepaintTest)
#include "HoverRepaintTest.moc"
