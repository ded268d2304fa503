#include "tags/oVIXTagListWidget.h"

#include "foundation/SheetOnChange.h"
#include "tags/AccessibleTags.h"
#include "tags/TagSheets.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>

oVIXTagListWidget::oVIXTagListWidget(QWidget *parent)
    : QListWidget(parent), m_tagColor(105, 105, 105), m_textColor(39, 39, 39)
{
    AccessibleTags::install();
    setFocusPolicy(Qt::NoFocus);
    oVIXTagListWidget::updateStyle();
    verticalScrollBar()->setStyleSheet(TagSheets::tagListScrollBar());
}

oVIXTagListWidget::~oVIXTagListWidget() = default;

void oVIXTagListWidget::setTagColors(QColor tag, QColor text)
{
    m_tagColor = tag;
    m_textColor = text;
    updateStyle();
}

QColor oVIXTagListWidget::getTagColor() const
{
    return m_tagColor;
}

QColor oVIXTagListWidget::getTextColor() const
{
    return m_textColor;
}

void oVIXTagListWidget::setEmitDrag(bool emitDrag)
{
    m_emitDrag = emitDrag;
}

void oVIXTagListWidget::updateStyle()
{
    setSheetOnChange(this, TagSheets::tagList(m_tagColor, m_textColor));
}

// Receivers of the list's own signals may delete it, so every handler looks before it goes on.

void oVIXTagListWidget::mousePressEvent(QMouseEvent *event)
{
    const QPointer<oVIXTagListWidget> alive(this);
    QListWidget::mousePressEvent(event);
    if (!alive || !m_emitDrag || !(event->buttons() & Qt::LeftButton))
        return;
    const QPoint position = event->position().toPoint();
    if (!itemAt(position))
        return;
    m_dragArmed = true;
    m_pressPosition = position;
}

void oVIXTagListWidget::mouseMoveEvent(QMouseEvent *event)
{
    const QPointer<oVIXTagListWidget> alive(this);
    QListWidget::mouseMoveEvent(event);
    if (!alive || !m_dragArmed || !(event->buttons() & Qt::LeftButton))
        return;
    if ((event->position().toPoint() - m_pressPosition).manhattanLength() >= QApplication::startDragDistance())
        return;
    m_dragArmed = false;
    emit startDragSignal(event);
}

void oVIXTagListWidget::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<oVIXTagListWidget> alive(this);
    QListWidget::mouseReleaseEvent(event);
    if (!alive || selectionMode() != SingleSelection || event->button() != Qt::LeftButton)
        return;
    const QList<QListWidgetItem *> selected = selectedItems();
    if (!selected.isEmpty())
        emit itemPressed(selected.constFirst());
}

void oVIXTagListWidget::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
}
