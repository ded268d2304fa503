#pragma once

#include "frame/TitleText.h"

#include <QLabel>

/// Shows a title and a subtitle in white and grey.
///
/// The toolkit lays a rich text out six times to find the size of a label. Here both texts stand on one line, so their
/// plain widths are enough.
class TitleLabel : public QLabel
{
public:
    explicit TitleLabel(QWidget *parent) : QLabel(parent) { setTextFormat(Qt::RichText); }

    void setTitle(const QString &title, const QString &subtitle)
    {
        m_line = titleLine(title, subtitle);
        setText(titleText(title, subtitle));
    }

    QSize sizeHint() const override
    {
        ensurePolished();
        const QSize text(fontMetrics().horizontalAdvance(m_line), fontMetrics().height());
        return text.grownBy(contentsMargins());
    }

    QSize minimumSizeHint() const override { return sizeHint(); }

private:
    QString m_line;
};
