#pragma once

#include "foundation/ShownText.h"
#include "frame/TitleText.h"

#include <QLabel>
#include <QPainter>

/// Two texts on one line, white and grey, that end in an ellipsis where they do not fit. The label's text stays whole.
/// Presses go to the strip that it lies on.
///
/// The toolkit lays a rich text out six times to find the size of a label. Here all stands on one line, so the plain
/// widths are enough.
class TitleLabel : public QLabel
{
public:
    explicit TitleLabel(QWidget *parent) : QLabel(parent)
    {
        setTextFormat(Qt::RichText);
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    void setTexts(const QString &white, const QString &grey)
    {
        m_white = ShownText::oneLine(white);
        m_grey = ShownText::oneLine(grey);
        setText(whiteAndGrey(white, grey));
    }

    QSize sizeHint() const override
    {
        ensurePolished();
        const QSize texts(fontMetrics().horizontalAdvance(m_white + QLatin1Char(' ') + m_grey), fontMetrics().height());
        return texts.grownBy(contentsMargins());
    }

    QSize minimumSizeHint() const override { return {narrowest, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        if (sizeHint().width() <= width())
            QLabel::paintEvent(event);
        else
            paintShortened();
    }

private:
    void paintShortened()
    {
        QPainter painter(this);
        QRect room = contentsRect();
        const auto write = [this, &painter, &room](const QString &text, const QColor &colour) {
            const QString shown = fontMetrics().elidedText(text, Qt::ElideRight, room.width());
            painter.setPen(colour);
            painter.drawText(room, int(Qt::AlignVCenter) | Qt::TextSingleLine, shown);
            room.setLeft(room.left() + fontMetrics().horizontalAdvance(shown + QLatin1Char(' ')));
        };
        write(m_white, Qt::white);
        write(m_grey, titleGrey);
    }

    static constexpr int narrowest = 1;

    QString m_white;
    QString m_grey;
};
