#pragma once

#include "foundation/ElidedText.h"

/// A label of plain text on one line that ends in an ellipsis where it does not fit. Its text stays whole.
class ElidedTextLabel : public QLabel
{
public:
    explicit ElidedTextLabel(QWidget *parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

    QSize sizeHint() const override { return ElidedText::sizeOf(this); }
    QSize minimumSizeHint() const override { return ElidedText::sizeOf(this).boundedTo({narrowest, QWIDGETSIZE_MAX}); }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        if (!ElidedText::paintShortened(this))
            QLabel::paintEvent(event);
    }

private:
    static constexpr int narrowest = 24;
};
