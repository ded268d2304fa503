#include "monkey/Monkey.h"

#include "monkey/Deleter.h"
#include "monkey/Invariants.h"
#include "monkey/LastWords.h"

#include "LinkLabel.h"
#include "VelmoMessageBox.h"

#include <QApplication>
#include <QDockWidget>
#include <QFileDialog>
#include <QScreen>
#include <QThread>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestLife = 1500;
constexpr int eventsKept = 120;
constexpr int eventsBetweenChecks = 100;
constexpr int deepest = 6; // event loops inside each other
constexpr int hopeless = 20000; // events to come to an end
constexpr int mostWindows = 30; // on screen
constexpr int mostDeletions = 8; // of one window

qsizetype shownWindows()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::count_if(windows.begin(), windows.end(), std::mem_fn(&QWidget::isVisible));
}

bool inheritsAny(const QObject *object, const QStringList &classes)
{
    return std::any_of(classes.begin(), classes.end(),
                       [object](const QString &name) { return object->inherits(qPrintable(name)); });
}

} // namespace

Monkey::Monkey(quint32 seed, Rules rules, QObject *parent)
    : QObject(parent), m_random(seed), m_rules(std::move(rules)),
      m_hands(&m_random, [this](const QString &what) { note(what); })
{
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, &Monkey::turn);
}

Monkey::~Monkey() = default;

QString Monkey::play(const Create &create, int events)
{
    const QString sheet = qApp->styleSheet();
    m_create = create;
    m_left = events;
    m_finished = false;
    m_flaw.clear();
    qApp->installEventFilter(this);
    m_turn.start(0);
    while (!m_finished) // some buttons quit the application
        QCoreApplication::exec();
    qApp->removeEventFilter(this);
    if (m_flaw.isEmpty() && qApp->styleSheet() != sheet)
        m_flaw = u"the application's sheet is another one"_s;
    return m_flaw;
}

void Monkey::stop(const QString &flaw)
{
    if (m_flaw.isEmpty())
        m_flaw = flaw;
    note(flaw);
}

QStringList Monkey::lastEvents() const
{
    return m_log.mid(std::max<qsizetype>(0, m_log.size() - eventsKept));
}

void Monkey::note(const QString &what)
{
    LastWords::alive();
    ++m_sent;
    m_log << u"%1 %2%3"_s.arg(m_sent).arg(QString(2 * m_depth, u' '), what);
    if (m_log.size() > 4 * eventsKept)
        m_log = lastEvents();
}

/// Every turn of every event loop does one thing; the loops that it leads to go on with the next one.
void Monkey::turn()
{
    if (m_depth == 0) {
        if (m_left <= 0 || !m_flaw.isEmpty()) {
            finish();
            return;
        }
        if (m_root && m_lifeLeft <= 0)
            endLife();
    }
    if (m_left < -hopeless)
        qFatal("there is no way out");
    m_turn.start(0);
    --m_left;
    --m_lifeLeft;
    ++m_depth;
    const bool isDone = m_left <= 0 || !m_flaw.isEmpty();
    if ((m_depth > 1 || guest()) && (isDone || m_depth > deepest || chance(25)))
        closeGuest();
    else
        act();
    --m_depth;

    if (m_root && m_flaw.isEmpty() && m_sent % eventsBetweenChecks == 0)
        m_flaw = shownWindows() > mostWindows ? u"too many windows"_s : Invariants::flawIn(m_root);
}

void Monkey::finish()
{
    endLife();
    m_finished = true;
    QCoreApplication::exit();
}

void Monkey::endLife()
{
    m_hands.releaseAll();
    note(u"the end of "_s + nameOf(m_root));
    delete m_root;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QWidgetList left = QApplication::topLevelWidgets();
    if (!left.isEmpty())
        stop(u"left behind: "_s + nameOf(left.first()));
    if (QApplication::overrideCursor())
        stop(u"the pointer has a cursor left"_s);
}

void Monkey::act()
{
    if (!m_root) {
        m_root = m_create();
        m_lifeLeft = longestLife;
        m_deletions = 0;
        m_root->show();
        note(u"another "_s + nameOf(m_root));
        return;
    }
    if (!m_root->isVisible()) {
        note(u"show"_s);
        m_root->show();
        return;
    }
    if (m_root->isMinimized() && chance(10))
        m_root->showNormal();
    if (m_hands.isBusy()) {
        m_hands.goOn();
        return;
    }

    struct Choice
    {
        int weight;
        void (*act)(Monkey *);
    };
    static constexpr Choice choices[]{
        {400, [](Monkey *self) { self->m_hands.usePointer(); }},
        {120, [](Monkey *self) { self->m_hands.pressKey(); }},
        {40, [](Monkey *self) { self->m_hands.turnWheel(); }},
        {30, [](Monkey *self) { self->m_hands.focusSomething(); }},
        {8, [](Monkey *self) { self->m_hands.compose(); }},
        {12, [](Monkey *self) { self->m_hands.dropSomething(); }},
        {10, [](Monkey *self) { self->resizeWindow(); }},
        {3, [](Monkey *self) { self->changeScreen(); }},
        {4, [](Monkey *self) { self->sendChange(); }},
        {3, [](Monkey *self) { self->changeWindowState(); }},
        {12, [](Monkey *self) { self->changePart(); }},
        {3, [](Monkey *self) { self->deletePart(); }},
        {3, [](Monkey *self) { self->deleteOnSignal(); }},
        {3, [](Monkey *self) { self->wait(); }},
    };
    int total = 0;
    for (const Choice &choice : choices)
        total += choice.weight;
    int drawn = m_random.bounded(total);
    for (const Choice &choice : choices) {
        drawn -= choice.weight;
        if (drawn < 0)
            return choice.act(this);
    }
}

/// Whatever is in front of the window and takes its events.
QWidget *Monkey::guest() const
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    return QApplication::activeModalWidget();
}

/// The application and the user have many ways to close something.
void Monkey::closeGuest()
{
    QWidget *front = guest();
    note(u"close "_s + nameOf(front));
    if (!front) { // a drag, or what ends by itself
        m_hands.giveUp();
    } else if (auto *box = qobject_cast<VelmoMessageWidget *>(front)) {
        const auto answers = {&VelmoMessageWidget::fnAccept, &VelmoMessageWidget::fnReject,
                              &VelmoMessageWidget::fnOther};
        (box->*answers.begin()[m_random.bounded(int(answers.size()))])();
    } else if (auto *dialog = qobject_cast<QDialog *>(front)) {
        dialog->done(m_random.bounded(2));
    } else {
        front->close();
    }
}

bool Monkey::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ToolTip: // comes and goes by the clock, and is a window
        return true;
    case QEvent::Show:
        if (auto *files = qobject_cast<QFileDialog *>(watched)) // with the user's own files
            QMetaObject::invokeMethod(files, &QDialog::reject, Qt::QueuedConnection);
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress: {
        // One of its links starts this very program.
        const auto *link = qobject_cast<LinkLabel *>(watched);
        return link && link->window()->inherits("WelcomeDialog");
    }
    default:
        return false;
    }
}

bool Monkey::isWhole(const QWidget *widget) const
{
    if (!widget || widget->isWindow())
        return false;
    if (inheritsAny(widget, m_rules.wholes) || m_rules.wholes.contains(widget->objectName()))
        return true;
    return qstrcmp(widget->metaObject()->className(), "QWidget") == 0 && isWhole(widget->parentWidget());
}

/// The widgets that the application's own code has made, and the panels that its user can close. What those of the
/// library and of the toolkit are made of is theirs.
QList<QWidget *> Monkey::ownParts() const
{
    QWidgetList parts;
    for (QWidget *part : m_root->findChildren<QWidget *>()) {
        const auto *panel = qobject_cast<QDockWidget *>(part);
        const bool isOpen = panel && panel->parent() == m_root && panel->toggleViewAction()->isEnabled();
        if (isOpen || (!part->isWindow() && isWhole(part->parentWidget())))
            parts << part;
    }
    return parts;
}

QList<QWidget *> Monkey::mortals() const
{
    if (m_rules.deletesParts)
        return ownParts();
    QWidgetList found;
    for (QWidget *widget : m_root->findChildren<QWidget *>()) {
        if (inheritsAny(widget, m_rules.mortals) && widget->isVisible())
            found << widget;
    }
    return found;
}

QWidget *Monkey::pickFrom(const QList<QWidget *> &widgets)
{
    return widgets.isEmpty() ? nullptr : widgets[m_random.bounded(int(widgets.size()))];
}

void Monkey::resizeWindow()
{
    const QSize size(m_random.bounded(1800), m_random.bounded(1400));
    note(u"resize to %1 x %2"_s.arg(size.width()).arg(size.height()));
    m_root->resize(size);
}

void Monkey::changeWindowState()
{
    note(u"window state"_s);
    if (chance(3))
        m_root->showMinimized();
    else if (chance(2))
        m_root->showMaximized();
    else
        m_root->showNormal();
}

/// As a user who has screens of several densities.
void Monkey::changeScreen()
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    QWidget *window = m_hands.pickWindow();
    if (!window || screens.size() < 2)
        return;
    const QScreen *screen = screens[m_random.bounded(int(screens.size()))];
    note(u"%1 to the screen %2"_s.arg(nameOf(window), screen->name()));
    window->move(screen->geometry().topLeft() + QPoint(m_random.bounded(300), m_random.bounded(300)));
}

/// Hides, disables or resizes a part, or makes up for it.
void Monkey::changePart()
{
    QWidget *part = pickFrom(ownParts());
    if (!part)
        return;
    const int what = m_random.bounded(5);
    note(u"change %1: %2"_s.arg(nameOf(part)).arg(what));
    switch (what) {
    case 0:
        part->setVisible(part->isHidden());
        break;
    case 1:
        part->setEnabled(!part->isEnabled());
        break;
    case 2:
        part->resize(0, 0);
        break;
    case 3: // parts that paint all of themselves at once would take gigabytes for more
        part->resize(m_random.bounded(1, 4000), m_random.bounded(1, 4000));
        break;
    default:
        part->setEnabled(true);
        part->show();
        break;
    }
}

/// What the system tells when the user changes its settings.
void Monkey::sendChange()
{
    QWidget *window = m_hands.pickWindow();
    if (!window)
        return;
    QWidget *widget = m_hands.pickWidget(window);
    static constexpr QEvent::Type types[]{
        QEvent::LanguageChange,        QEvent::FontChange,       QEvent::PaletteChange, QEvent::StyleChange,
        QEvent::LayoutDirectionChange, QEvent::WindowDeactivate, QEvent::WindowActivate};
    const QEvent::Type type = types[m_random.bounded(int(std::size(types)))];
    note(u"%1 for %2"_s.arg(QVariant::fromValue(type).toString(), nameOf(widget)));
    QEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}

void Monkey::deletePart()
{
    QWidget *part = ++m_deletions < mostDeletions ? pickFrom(mortals()) : nullptr;
    if (chance(m_rules.deletesParts ? 20 : 5))
        part = m_root;
    if (!part)
        return;
    const bool atOnce = chance(2);
    note(u"delete %1 %2"_s.arg(nameOf(part), atOnce ? u"at once"_s : u"later"_s));
    if (atOnce)
        delete part;
    else
        part->deleteLater();
}

void Monkey::deleteOnSignal()
{
    QWidget *part = m_rules.deletesParts ? pickFrom(ownParts()) : nullptr;
    if (!part)
        return;
    const QString name = QLatin1String(part->metaObject()->className());
    if (!m_rules.diesOfSignals.contains(name))
        return;
    note(u"delete %1 when it tells something"_s.arg(nameOf(part)));
    new Deleter(part, Deleter::ownSignals(*part->metaObject()), m_rules.diesOfSignals[name], part);
}

/// Lets timers and animations come to their end.
void Monkey::wait()
{
    note(u"wait"_s);
    QThread::msleep(20);
}
