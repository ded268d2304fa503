#include "monkey/Monkey.h"

#include "monkey/Invariants.h"
#include "monkey/LastWords.h"

#include "LinkLabel.h"
#include "VelmoMessageBox.h"

#include <QApplication>
#include <QDrag>
#include <QFileDialog>
#include <QScrollArea>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestLife = 1500;
constexpr int eventsKept = 120;
constexpr int eventsBetweenChecks = 100;
constexpr int deepest = 6; // event loops inside each other
constexpr int hopeless = 20000; // events to come to an end

QString nameOf(const QObject *object)
{
    return object ? QLatin1String(object->metaObject()->className()) + u' ' + object->objectName() : u"nothing"_s;
}

} // namespace

Monkey::Monkey(quint32 seed, Rules rules, QObject *parent) : QObject(parent), m_random(seed), m_rules(std::move(rules))
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
        m_flaw = Invariants::flawIn(m_root);
}

void Monkey::finish()
{
    endLife();
    m_finished = true;
    QCoreApplication::exit();
}

void Monkey::endLife()
{
    releaseAll();
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
    if (!m_plan.isEmpty()) {
        doStep(m_plan.takeFirst());
        return;
    }

    struct Choice
    {
        int weight;
        void (Monkey::*act)();
    };
    static constexpr Choice choices[]{
        {400, &Monkey::planPointer},
        {120, &Monkey::pressKey},
        {40, &Monkey::turnWheel},
        {30, &Monkey::focusSomething},
        {8, &Monkey::compose},
        {12, &Monkey::dropSomething},
        {10, &Monkey::resizeWindow},
        {4, &Monkey::sendChange},
        {3, &Monkey::changeWindowState},
        {12, &Monkey::changePart},
        {3, &Monkey::deletePart},
        {3, &Monkey::deleteOnSignal},
        {3, &Monkey::wait},
    };
    int total = 0;
    for (const Choice &choice : choices)
        total += choice.weight;
    int drawn = m_random.bounded(total);
    for (const Choice &choice : choices) {
        drawn -= choice.weight;
        if (drawn < 0)
            return (this->*choice.act)();
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
    if (!front) { // a drag
        QDrag::cancel();
        releaseAll();
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

void Monkey::releaseAll()
{
    m_plan.clear();
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        if (m_held.testFlag(button))
            sendMouse(QEvent::MouseButtonRelease, button);
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
