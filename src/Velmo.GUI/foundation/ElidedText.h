#pragma once

#include "foundation/ShownText.h"

#include <QLabel>
#include <QPainter>
#include <QStyle>

/// For labels whose plain text is one line that may be wider than they are, whatever its length and its breaks.
namespace ElidedText {

/// Where a label shows its text, as the label itself reckons it: a framed one (style sheets make it so) without an
/// indent of its own keeps half the width of an x from the side that the text is aligned to.
inline QRect roomOf(const QLabel *label)
{
    const int margin = label->margin();
    QRect room = label->contentsRect().adjusted(margin, margin, -margin, -margin);
    int indent = label->indent();
    if (indent < 0 && label->frameWidth() > 0)
        indent = label->fontMetrics().horizontalAdvance(QLatin1Char('x')) / 2 - margin;
    const Qt::Alignment alignment = QStyle::visualAlignment(label->layoutDirection(), label->alignment());
    if (indent > 0 && (alignment & Qt::AlignLeft))
        room.setLeft(room.left() + indent);
    if (indent > 0 && (alignment & Qt::AlignRight))
        room.setRight(room.right() - indent);
    return room;
}

inline QString of(const QLabel *label, int width)
{
    return label->fontMetrics().elidedText(ShownText::oneLine(label->text()), Qt::ElideRight, width);
}

/// The size in which a label shows its text without an ellipsis.
inline QSize sizeOf(const QLabel *label)
{
    label->ensurePolished();
    const QFontMetrics metrics = label->fontMetrics();
    const QString line = ShownText::oneLine(label->text());
    constexpr int oneLine = int(Qt::TextSingleLine) | int(Qt::TextIncludeTrailingSpaces);
    const QSize size = metrics.boundingRect(QRect(), oneLine, line).size();
    return size.expandedTo({0, metrics.height()}) + label->size() - roomOf(label).size();
}

/// Paints a text in @p room as the label itself would.
inline void paint(QLabel *label, const QRect &room, const QString &text)
{
    QPainter painter(label);
    const Qt::Alignment alignment = QStyle::visualAlignment(label->layoutDirection(), label->alignment());
    label->style()->drawItemText(&painter, room, int(alignment) | Qt::TextSingleLine, label->palette(),
                                 label->isEnabled(), text, label->foregroundRole());
}

/// Paints the text of a label that has too little room for it. False, and nothing is painted, where all of it fits.
inline bool paintShortened(QLabel *label)
{
    const QRect room = roomOf(label);
    const QString shown = of(label, room.width());
    if (shown == label->text())
        return false;
    paint(label, room, shown);
    return true;
}

} // namespace ElidedText
