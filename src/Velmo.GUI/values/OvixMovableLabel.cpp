#include "values/OvixMovableLabel.h"

#include "foundation/KeyboardPress.h"
#include "values/AccessibleTimeValues.h"
#include "values/MarkerScale.h"

#include <QDoubleValidator>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalBlocker>

#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int decimals = 2;

int part(int length, double share)
{
    return int(length * share);
}

/// Raising costs a repaint even for what is on top already.
void raiseOnChange(QWidget *widget)
{
    if (widget->parent()->children().constLast() != widget)
        widget->raise();
}

} // namespace

OvixMovableLabel::OvixMovableLabel(QWidget *parent)
    : OvixSvgLabel(parent), m_text(new QLabel(text(), this)), m_editor(new QLineEdit(this))
{
    AccessibleTimeValues::install();

    m_text->setStyleSheet(u"QLabel {\tbackground:transparent;\tcolor:rgb(28,28,28);}"_s);
    m_text->setAlignment(Qt::AlignCenter);
    m_text->setGeometry(part(width(), 0.1), part(height(), 0.1), part(width(), 0.8), part(height(), 0.8));

    m_editor->hide();
    m_editor->setStyleSheet(u"QLineEdit {\tbackground:transparent;\tcolor:rgb(28,28,28);}"_s);
    m_editor->setAlignment(Qt::AlignCenter);
    m_editor->setFrame(false);
    m_editor->setValidator(new QDoubleValidator(0.0, std::numeric_limits<double>::max(), decimals, m_editor));
    m_editor->setGeometry(part(width(), 0.1), 0, part(width(), 0.8), height() + 5);
    m_editor->installEventFilter(this);

    connect(m_editor, &QLineEdit::editingFinished, this, &OvixMovableLabel::changeValFromEdit);
    connect(m_editor, &QLineEdit::selectionChanged, this, &OvixMovableLabel::selectionChangedFromEdit);
}

OvixMovableLabel::~OvixMovableLabel()
{
    m_editor->disconnect(this); // it loses the focus, and so finishes an edit, when the marker is half gone
}

void OvixMovableLabel::setMinMaxPosValue(int minimumPosition, int maximumPosition, int maximumValue)
{
    const int value = getKeptValue();
    m_minimumPosition = minimumPosition;
    m_maximumPosition = maximumPosition;
    m_maximumValue = maximumValue;
    setCurrentValue(value);
}

void OvixMovableLabel::setCurrentValue(int value)
{
    if (!scale().hasValue(value))
        return;
    move(scale().positionOf(value), y());
    m_kept = Kept{value, x()};
    setInternalText(QString::number(getValue()));
    announceValue();
}

int OvixMovableLabel::getValue() const
{
    return scale().valueAt(x());
}

int OvixMovableLabel::getKeptValue() const
{
    return m_kept && m_kept->position == x() ? m_kept->value : getValue();
}

int OvixMovableLabel::getMaximumValue() const
{
    return m_maximumValue;
}

void OvixMovableLabel::setInternalText(QString text)
{
    m_text->setGeometry(0, m_textTop, width(), part(height(), 0.5));
    m_text->setText(text);
    raiseOnChange(m_text);
    setText(QString());
}

void OvixMovableLabel::setVerticalPosSubLabel(int y)
{
    m_textTop = y;
    setInternalText(m_text->text());
}

void OvixMovableLabel::setFont(const QFont &font)
{
    m_text->setFont(font);
    m_editor->setFont(font);
    OvixSvgLabel::setFont(font);
}

void OvixMovableLabel::setDraggable(bool draggable)
{
    m_draggable = draggable;
}

bool OvixMovableLabel::isDraggable() const
{
    return m_draggable;
}

void OvixMovableLabel::setEditable(bool editable)
{
    m_editable = editable;
}

bool OvixMovableLabel::isEditable() const
{
    return m_editable;
}

bool OvixMovableLabel::isEditing() const
{
    return m_editing;
}

bool OvixMovableLabel::hasGivenUpEdit() const
{
    return m_givenUp;
}

void OvixMovableLabel::updateEditLabel()
{
    {
        const QSignalBlocker blocker(m_editor); // the start is announced once all is done
        QString number = m_text->text();
        m_editor->setText(number.remove(u" s"_s));
        placeEditor();
        m_editor->setFocus();
        raiseOnChange(m_editor);
        m_editor->selectAll();
    }
    selectionChangedFromEdit();
}

void OvixMovableLabel::changeValFromEdit()
{
    closeEditor();
    setCurrentValue(m_editor->text().toInt());
    emit editingFinished();
}

void OvixMovableLabel::selectionChangedFromEdit()
{
    if (m_editAnnounced)
        return;
    m_editAnnounced = true;
    emit editingStarted();
}

void OvixMovableLabel::mousePressEvent(QMouseEvent *event)
{
    m_pressed = true;
    m_pressOffset = event->position().toPoint();
    placeEditor();
}

void OvixMovableLabel::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_draggable || !(event->buttons() & Qt::LeftButton))
        return;
    m_kept.reset();
    move(scale().nearestPosition(mapToParent(event->position().toPoint()).x() - m_pressOffset.x()), y());
    repaint();
    setInternalText(QString::number(double(scale().draggedValueAt(x())), 'g', 6));
    announceValue();
    emit moved();
}

void OvixMovableLabel::mouseReleaseEvent(QMouseEvent *)
{
    m_pressed = false;
    emit released();
}

void OvixMovableLabel::mouseDoubleClickEvent(QMouseEvent *)
{
    openEditor();
}

void OvixMovableLabel::keyPressEvent(QKeyEvent *event)
{
    if (!m_editable || !isPressKey(this, event))
        OvixSvgLabel::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        openEditor();
}

void OvixMovableLabel::hideEvent(QHideEvent *event)
{
    OvixSvgLabel::hideEvent(event);
    if (!event->spontaneous())
        endDrag();
}

void OvixMovableLabel::changeEvent(QEvent *event)
{
    OvixSvgLabel::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        endDrag();
}

bool OvixMovableLabel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_editor && event->type() == QEvent::KeyPress) {
        if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
            giveUpEdit();
            return true;
        }
    } else if (watched == m_editor && event->type() == QEvent::FocusOut) {
        leaveEditor(static_cast<QFocusEvent *>(event));
        return true;
    }
    return OvixSvgLabel::eventFilter(watched, event);
}

MarkerScale OvixMovableLabel::scale() const
{
    return {m_minimumPosition, m_maximumPosition, m_maximumValue};
}

void OvixMovableLabel::openEditor()
{
    if (!m_editable)
        return;
    if (!std::exchange(m_editing, true))
        m_editAnnounced = false;
    m_text->hide();
    m_editor->show();
    updateEditLabel();
}

void OvixMovableLabel::placeEditor()
{
    m_editor->setGeometry(0, m_textTop / 2, width(), part(height(), 0.7));
}

void OvixMovableLabel::closeEditor()
{
    m_editing = false;
    const QSignalBlocker blocker(m_editor); // closing takes the focus away, which would finish the edit again
    m_text->show();
    raiseOnChange(m_text);
    if (m_editor->hasFocus() && focusPolicy() != Qt::NoFocus) {
        const auto takeBack = [this] {
            if (!window()->focusWidget())
                setFocus();
        };
        QMetaObject::invokeMethod(this, takeBack, Qt::QueuedConnection); // the key that has ended the edit comes here
    }
    m_editor->clearFocus(); // hiding would hand it to the next widget of the window
    m_editor->hide();
    m_editAnnounced = false;
}

void OvixMovableLabel::giveUpEdit()
{
    const QPointer<OvixMovableLabel> alive(this);
    closeEditor();
    m_givenUp = true;
    emit editingFinished();
    if (alive)
        m_givenUp = false;
}

/// The editor itself would announce the end in the middle of its work, and not at all without a number.
void OvixMovableLabel::leaveEditor(QFocusEvent *event)
{
    {
        const QSignalBlocker blocker(m_editor);
        m_editor->event(event);
    }
    if (!isEditing() || event->reason() == Qt::PopupFocusReason)
        return;
    if (m_editor->isModified() && m_editor->hasAcceptableInput())
        changeValFromEdit();
    else if (event->reason() != Qt::ActiveWindowFocusReason)
        giveUpEdit();
}

/// Nobody hears the release of a button that was pressed on what is hidden or disabled.
void OvixMovableLabel::endDrag()
{
    if (std::exchange(m_pressed, false))
        emit released();
}

void OvixMovableLabel::announceValue()
{
    AccessibleTimeValues::announce(this, getKeptValue());
}
