#include "monkey/Hands.h"

#include "VelmoDropData.h"

#include <QApplication>
#include <QCursor>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QScrollArea>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestClick = 120; // milliseconds

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

QString nameOf(const QObject *object)
{
    return object ? QLatin1String(object->metaObject()->className()) + u' ' + object->objectName() : u"nothing"_s;
}

Hands::Hands(QRandomGenerator *random, std::function<void(const QString &)> note)
    : m_random(random), m_note(std::move(note))
{ }

QWidget *Hands::pickWindow()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    QWidgetList windows;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowHandle() && !isBlocked(window))
            windows << window;
    }
    // Their order is that of addresses.
    std::sort(windows.begin(), windows.end(),
              [](const QWidget *left, const QWidget *right) { return nameOf(left) < nameOf(right); });
    return windows.isEmpty() ? nullptr : windows[m_random->bounded(int(windows.size()))];
}

QWidget *Hands::pickWidget(QWidget *window)
{
    if (chance(2)) { // small ones, such as grips, are many
        QWidget *seen = window->childAt(m_random->bounded(std::max(1, window->width())),
                                        m_random->bounded(std::max(1, window->height())));
        return seen ? seen : window;
    }
    QWidget *found = window;
    while (m_random->bounded(10) > 0) {
        QWidgetList parts;
        for (QObject *child : found->children()) {
            auto *part = qobject_cast<QWidget *>(child);
            if (part && part->isVisible() && !part->isWindow())
                parts << part;
        }
        if (parts.isEmpty())
            break;
        found = parts[m_random->bounded(int(parts.size()))];
    }
    if (auto *area = qobject_cast<QScrollArea *>(window); area && found->visibleRegion().isEmpty())
        area->ensureWidgetVisible(found);
    return found;
}

/// Chooses where the pointer goes next. While a button is held it stays with its window, as on a desktop.
bool Hands::aim()
{
    if (m_held && m_window && m_window->isVisible()) {
        m_place += QPointF(m_random->bounded(-80, 81), m_random->bounded(-30, 31));
        return true;
    }
    QWidget *window = pickWindow();
    if (!window)
        return false;
    QWidget *widget = pickWidget(window);
    const QPoint point(m_random->bounded(std::max(1, widget->width())),
                       m_random->bounded(std::max(1, widget->height())));
    m_window = window->windowHandle();
    m_place = widget->mapTo(window, point);
    m_note(u"aim at %1 (%2, %3)"_s.arg(nameOf(widget)).arg(point.x()).arg(point.y()));
    return true;
}

void Hands::usePointer()
{
    m_planned = chance(8) ? Qt::RightButton : chance(20) ? Qt::MiddleButton : Qt::LeftButton;
    switch (m_random->bounded(6)) {
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
    goOn();
}

void Hands::goOn()
{
    switch (m_plan.takeFirst()) {
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

void Hands::sendMouse(QEvent::Type type, Qt::MouseButton button)
{
    m_clock += m_random->bounded(10, longestClick);
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
    m_note(u"%1 %2 at (%3, %4)"_s.arg(QVariant::fromValue(type).toString(), QVariant::fromValue(button).toString())
               .arg(m_place.x())
               .arg(m_place.y()));
    const QPointF global = m_window->mapToGlobal(m_place);
    if (type == QEvent::MouseMove)
        QCursor::setPos(global.toPoint());
    // The functions of the test library would run the event loop, and so the next turn, inside this one.
    if (m_window)
        qt_handleMouseEvent(m_window, m_place, global, m_held, button, type, {}, m_clock);
}

void Hands::turnWheel()
{
    if (!aim())
        return;
    const QPoint angle = chance(5) ? QPoint(m_random->bounded(-240, 241), 0) : QPoint(0, m_random->bounded(-360, 361));
    m_note(u"wheel %1, %2"_s.arg(angle.x()).arg(angle.y()));
    QWheelEvent wheel(m_place, m_window->mapToGlobal(m_place), {}, angle, m_held, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_window, &wheel);
}

void Hands::pressKey()
{
    static const QList<KeyStroke> strokes = keyStrokes();
    const KeyStroke stroke = strokes[m_random->bounded(int(strokes.size()))];
    if (!QGuiApplication::focusWindow()) {
        m_note(u"activate"_s);
        if (QWidget *window = pickWindow())
            window->activateWindow();
        return;
    }
    const QPointer<QWindow> window = QGuiApplication::focusWindow();
    m_note(u"key %1"_s.arg(QKeySequence(stroke.modifiers | stroke.key).toString(QKeySequence::PortableText)));
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (window)
            qt_handleKeyEvent(window, type, stroke.key, stroke.modifiers, stroke.text);
    }
}

/// What an input method does.
void Hands::compose()
{
    QWidget *focused = QApplication::focusWidget();
    if (!focused || !focused->testAttribute(Qt::WA_InputMethodEnabled))
        return;
    m_note(u"compose in "_s + nameOf(focused));
    const bool commits = chance(2);
    QInputMethodEvent event(commits ? QString() : u"に"_s, {});
    if (commits)
        event.setCommitString(chance(2) ? u"日本"_s : u"7"_s);
    QCoreApplication::sendEvent(focused, &event);
}

void Hands::focusSomething()
{
    QWidget *window = pickWindow();
    if (!window)
        return;
    QWidget *widget = pickWidget(window);
    m_note(u"focus "_s + nameOf(widget));
    const QPointer<QWidget> focused(widget);
    window->activateWindow();
    if (focused)
        focused->setFocus(Qt::TabFocusReason);
}

void Hands::dropSomething()
{
    if (!aim())
        return;
    QWidget *widget = QApplication::widgetAt(m_window->mapToGlobal(m_place).toPoint());
    while (widget && !widget->acceptDrops())
        widget = widget->parentWidget();
    if (!widget)
        return;
    m_note(u"drop on "_s + nameOf(widget));
    const QPointer<QWidget> target(widget);
    const auto type = VelmoDropData::Type(m_random->bounded(6));
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

void Hands::releaseAll()
{
    m_plan.clear();
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        if (m_held.testFlag(button))
            sendMouse(QEvent::MouseButtonRelease, button);
    }
}

void Hands::giveUp()
{
    if (QWindow *window = QGuiApplication::focusWindow())
        qt_handleKeyEvent(window, QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    releaseAll();
}
