#pragma once

#include "foundation/ElidedText.h"
#include "foundation/KeyboardPress.h"
#include "foundation/QClickableLabel.h"

/// The rounded strip of a combo. It covers the combo, so it draws the combo's focus ring.
class ComboStrip : public QWidget
{
public:
    explicit ComboStrip(QWidget *parent) : QWidget(parent) { setAttribute(Qt::WA_StyledBackground); }

protected:
    void paintEvent(QPaintEvent *) override { paintFocusRing(this, parentWidget()); }
};

/// A clickable plain text that is elided rather than clipped, and asks for a sensible width however long it is.
class ComboLabel : public QClickableLabel
{
public:
    explicit ComboLabel(QWidget *parent) : QClickableLabel(parent) { setTextFormat(Qt::PlainText); }

    QSize sizeHint() const override { return ElidedText::sizeOf(this).boundedTo({widest, QWIDGETSIZE_MAX}); }
    QSize minimumSizeHint() const override { return ElidedText::sizeOf(this).boundedTo({narrowest, QWIDGETSIZE_MAX}); }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        if (ElidedText::paintShortened(this))
            paintFocusRing(this);
        else
            QClickableLabel::paintEvent(event);
    }

private:
    static constexpr int widest = 200;
    static constexpr int narrowest = 60;
};
