#include "monkey/Monkey.h"

#include "monkey/Deleter.h"

#include "VelmoDropData.h"

#include <QApplication>
#include <QCursor>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QScrollArea>
#include <QTest>
#include <QThread>
#include <QWheelEvent>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestClick = 120; // milliseconds
constexpr int mostWindows = 30; // on screen
constexpr int mostDeletions = 8; // of one window

QString describe(const QWidget *widget)
{
    return QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName();
}

bool isBlocked(const QWidget *window)
{
    const QWidget *modal = QApplication::activeModalWidget();
    return modal && modal != window && !modal->isAncestorOf(window);
}

struct KeyStroke
{
    Qt::Key key;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    QString text = {};
};

QList<KeyStroke> keyStrokes()
{
    QList<KeyStroke> strokes;
    for (const Qt::Key key :
         {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp,
          Qt::Key_PageDown, Qt::Key_Escape, Qt::Key_Delete, Qt::Key_F2, Qt::Key_F10, Qt::Key_Menu}) {
        strokes << KeyStroke{key};
    }
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Enter})
        strokes << KeyStroke{key} << KeyStroke{key, Qt::NoModifier, u"\r"_s};
    strokes << KeyStroke{Qt::Key_Backtab, Qt::ShiftModifier} << KeyStroke{Qt::Key_Backspace, Qt::NoModifier, u"\b"_s}
            << KeyStroke{Qt::Key_Space, Qt::NoModifier, u" "_s} << KeyStroke{Qt::Key_Space, Qt::NoModifier, u" "_s};
    for (const QChar letter : u"Aae019-.,%<"_s)
        strokes << KeyStroke{Qt::Key(letter.toUpper().unicode()), Qt::NoModifier, letter};
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Z, Qt::Key_O, Qt::Key_I, Qt::Key_D,
                              Qt::Key_W, Qt::Key_Q, Qt::Key_F1})
        strokes << KeyStroke{key, Qt::ControlModifier};
    strokes << KeyStroke{Qt::Key_F1} << KeyStroke{Qt::Key_Down, Qt::AltModifier}
            << KeyStroke{Qt::Key_Right, Qt::ShiftModifier} << KeyStroke{Qt::Key_S, Qt::AltModifier};
    return strokes;
}

} // namespace

QWidget *Monkey::pickWindow()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    QWidgetList windows;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowHandle() && !isBlocked(window))
            windows << window;
    }
    if (windows.size() > mostWindows)
        stop(u"too many windows"_s);
    // Their order is that of addresses.
    std::sort(windows.begin(), windows.end(),
              [](const QWidget *left, const QWidget *right) { return describe(left) < describe(right); });
    return windows.isEmpty() ? nullptr : windows[m_random.bounded(int(windows.size()))];
}

/// A widget that is seen, large or small alike.
QWidget *Monkey::pickWidget(QWidget *window)
{
    QWidget *found = window;
    while (m_random.bounded(10) > 0) {
        QWidgetList parts;
        for (QObject *child : found->children()) {
            auto *part = qobject_cast<QWidget *>(child);
            if (part && part->isVisible() && !part->isWindow())
                parts << part;
        }
        if (parts.isEmpty())
            break;
        found = parts[m_random.bounded(int(parts.size()))];
    }
    if (auto *area = qobject_cast<QScrollArea *>(window); area && found->visibleRegion().isEmpty())
        area->ensureWidgetVisible(found);
    return found;
}

/// The widgets that the page's own code has made. What those of the library and of the toolkit are made of is theirs.
QList<QWidget *> Monkey::ownParts() const
{
    QWidgetList parts;
    const auto *area = qobject_cast<QScrollArea *>(m_root.data());
    QWidgetList open{area ? area->widget() : nullptr};
    while (!open.isEmpty()) {
        const QWidget *whole = open.takeLast();
        for (QObject *child : whole ? whole->children() : QObjectList()) {
            auto *part = qobject_cast<QWidget *>(child);
            if (!part || part->isWindow())
                continue;
            parts << part;
            const QByteArray name = part->metaObject()->className();
            if (name == "QWidget" || name == "SampleSection")
                open << part;
        }
    }
    return parts;
}

QWidget *Monkey::pickPart()
{
    const QWidgetList parts = ownParts();
    return parts.isEmpty() ? nullptr : parts[m_random.bounded(int(parts.size()))];
}

/// Chooses where the pointer goes next. While a button is held it stays with its window, as on a desktop.
bool Monkey::aim()
{
    if (m_held && m_window && m_window->isVisible()) {
        m_place += QPointF(m_random.bounded(-80, 81), m_random.bounded(-30, 31));
        return true;
    }
    QWidget *window = pickWindow();
    if (!window)
        return false;
    QWidget *widget = pickWidget(window);
    const QPoint point(m_random.bounded(std::max(1, widget->width())), m_random.bounded(std::max(1, widget->height())));
    m_window = window->windowHandle();
    m_place = widget->mapTo(window, point);
    note(u"aim at %1 (%2, %3)"_s.arg(describe(widget)).arg(point.x()).arg(point.y()));
    return true;
}

void Monkey::planPointer()
{
    m_planned = chance(8) ? Qt::RightButton : chance(20) ? Qt::MiddleButton : Qt::LeftButton;
    switch (m_random.bounded(6)) {
    case 0:
        m_plan = {Step::Move};
        break;
    case 1:
    case 2:
        m_plan = {Step::Move, Step::Press, Step::Release};
        break;
    case 3:
        m_plan = {Step::Move, Step::Press, Step::Release, Step::Press, Step::Release};
        break;
    case 4:
        m_plan = {Step::Move, Step::Press, Step::Move, Step::Move, Step::Move, Step::Release};
        break;
    default:
        m_plan = {Step::Move, Step::Press};
        break;
    }
    doStep(m_plan.takeFirst());
}

void Monkey::doStep(Step step)
{
    switch (step) {
    case Step::Move:
        if (aim())
            sendMouse(QEvent::MouseMove, Qt::NoButton);
        break;
    case Step::Press:
        if (!m_held.testFlag(m_planned))
            sendMouse(QEvent::MouseButtonPress, m_planned);
        break;
    case Step::Release:
        if (m_held.testFlag(m_planned))
            sendMouse(QEvent::MouseButtonRelease, m_planned);
        break;
    }
}

void Monkey::sendMouse(QEvent::Type type, Qt::MouseButton button)
{
    m_clock += m_random.bounded(10, longestClick);
    if (type == QEvent::MouseButtonPress)
        m_held |= button;
    if (type == QEvent::MouseButtonRelease)
        m_held &= ~Qt::MouseButtons(button);
    if (!m_window || !m_window->isVisible()) {
        QWidget *window = pickWindow();
        m_window = window ? window->windowHandle() : nullptr;
    }
    if (!m_window)
        return;
    note(u"%1 %2 at (%3, %4)"_s.arg(QVariant::fromValue(type).toString(), QVariant::fromValue(button).toString())
             .arg(m_place.x())
             .arg(m_place.y()));
    const QPointF global = m_window->mapToGlobal(m_place);
    if (type == QEvent::MouseMove)
        QCursor::setPos(global.toPoint());
    // The functions of the test library would run the event loop, and so the next turn, inside this one.
    if (m_window)
        qt_handleMouseEvent(m_window, m_place, global, m_held, button, type, {}, m_clock);
}

void Monkey::turnWheel()
{
    if (!aim())
        return;
    const QPoint angle = chance(5) ? QPoint(m_random.bounded(-240, 241), 0) : QPoint(0, m_random.bounded(-360, 361));
    note(u"wheel %1, %2"_s.arg(angle.x()).arg(angle.y()));
    QWheelEvent wheel(m_place, m_window->mapToGlobal(m_place), {}, angle, m_held, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_window, &wheel);
}

void Monkey::pressKey()
{
    static const QList<KeyStroke> strokes = keyStrokes();
    const KeyStroke stroke = strokes[m_random.bounded(int(strokes.size()))];
    if (!QGuiApplication::focusWindow()) {
        note(u"activate"_s);
        m_root->activateWindow();
        return;
    }
    const QPointer<QWindow> window = QGuiApplication::focusWindow();
    note(u"key %1"_s.arg(QKeySequence(stroke.modifiers | stroke.key).toString(QKeySequence::PortableText)));
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (window)
            qt_handleKeyEvent(window, type, stroke.key, stroke.modifiers, stroke.text);
    }
}

/// What an input method does.
void Monkey::compose()
{
    QWidget *focused = QApplication::focusWidget();
    if (!focused || !focused->testAttribute(Qt::WA_InputMethodEnabled))
        return;
    note(u"compose in "_s + describe(focused));
    const bool commits = chance(2);
    QInputMethodEvent event(commits ? QString() : u"に"_s, {});
    if (commits)
        event.setCommitString(chance(2) ? u"日本"_s : u"7"_s);
    QCoreApplication::sendEvent(focused, &event);
}

void Monkey::focusSomething()
{
    QWidget *window = pickWindow();
    if (!window)
        return;
    QWidget *widget = pickWidget(window);
    note(u"focus "_s + describe(widget));
    const QPointer<QWidget> focused(widget);
    window->activateWindow();
    if (focused)
        focused->setFocus(Qt::TabFocusReason);
}

void Monkey::dropSomething()
{
    if (!aim())
        return;
    QWidget *widget = QApplication::widgetAt(m_window->mapToGlobal(m_place).toPoint());
    while (widget && !widget->acceptDrops())
        widget = widget->parentWidget();
    if (!widget)
        return;
    note(u"drop on "_s + describe(widget));
    const QPointer<QWidget> target(widget);
    const auto type = VelmoDropData::Type(m_random.bounded(6));
    const std::unique_ptr<QMimeData> data(VelmoDropData({{u"Tree"_s, {}}}, type).getMimeData());
    const QPoint point = widget->rect().center();
    QDragEnterEvent enter(point, Qt::CopyAction | Qt::MoveAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(target, &enter);
    if (!target)
        return;
    if (!enter.isAccepted() || chance(4)) {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(target, &leave);
        return;
    }
    QDragMoveEvent move(point, Qt::CopyAction | Qt::MoveAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(target, &move);
    QDropEvent drop(point, Qt::CopyAction | Qt::MoveAction, data.get(), Qt::LeftButton, {});
    if (target)
        QCoreApplication::sendEvent(target, &drop);
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

/// Hides, disables or resizes a part, or makes up for it.
void Monkey::changePart()
{
    QWidget *part = m_rules.changesParts ? pickPart() : nullptr;
    if (!part)
        return;
    const int what = m_random.bounded(5);
    note(u"change %1: %2"_s.arg(describe(part)).arg(what));
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
    QWidget *window = pickWindow();
    if (!window)
        return;
    QWidget *widget = pickWidget(window);
    static constexpr QEvent::Type types[]{
        QEvent::LanguageChange,        QEvent::FontChange,           QEvent::PaletteChange,    QEvent::StyleChange,
        QEvent::LayoutDirectionChange, QEvent::ScreenChangeInternal, QEvent::WindowDeactivate, QEvent::WindowActivate};
    const QEvent::Type type = types[m_random.bounded(int(std::size(types)))];
    note(u"%1 for %2"_s.arg(QVariant::fromValue(type).toString(), describe(widget)));
    QEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}

void Monkey::deletePart()
{
    QWidget *part = m_rules.deletesParts && ++m_deletions < mostDeletions ? pickPart() : nullptr;
    if (!m_rules.changesParts || chance(20))
        part = m_root;
    if (!part)
        return;
    const bool atOnce = chance(2);
    note(u"delete %1 %2"_s.arg(describe(part), atOnce ? u"at once"_s : u"later"_s));
    if (atOnce)
        delete part;
    else
        part->deleteLater();
}

void Monkey::deleteOnSignal()
{
    QWidget *part = m_rules.deletesParts ? pickPart() : nullptr;
    if (!part)
        return;
    const QString name = QLatin1String(part->metaObject()->className());
    if (!m_rules.diesOfSignals.contains(name))
        return;
    note(u"delete %1 when it tells something"_s.arg(describe(part)));
    new Deleter(part, Deleter::ownSignals(*part->metaObject()), m_rules.diesOfSignals[name], part);
}

/// Lets timers and animations come to their end.
void Monkey::wait()
{
    note(u"wait"_s);
    QThread::msleep(20);
}
