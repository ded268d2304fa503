#include "docking/FloatingOption.h"

#include "foundation/InterFont.h"
#include "foundation/KeyboardPress.h"
#include "foundation/OvixSvgKey.h"
#include "foundation/OvixSvgRenderer.h"
#include "foundation/ShownText.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int lineHeight = 24;
constexpr int optionPixels = 11;
constexpr int widest = 300;
constexpr int markSide = 12;
constexpr int markLeft = 8;
constexpr int labelLeft = 28;
constexpr int labelRight = 12;
constexpr qreal highlightRadius = 3;

const QColor highlightColour(255, 255, 255, 38);
const QColor textColour(219, 219, 219);
const QColor disabledColour(81, 81, 81);

} // namespace

FloatingOption::FloatingOption(const QString &label, QWidget *parent)
    : QAbstractButton(parent), m_label(ShownText::oneLine(label))
{
    setFont(interFont(optionPixels));
    setText(ShownText::withoutMnemonics(label)); // for assistive tools
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void FloatingOption::setHighlighted(bool highlighted)
{
    m_highlighted = highlighted;
    update();
}

QSize FloatingOption::sizeHint() const
{
    const QFontMetrics metrics(font());
    return {std::min(labelLeft + metrics.size(Qt::TextSingleLine, m_label).width() + labelRight, widest),
            std::max(lineHeight, metrics.height())};
}

QSize FloatingOption::minimumSizeHint() const
{
    return sizeHint();
}

void FloatingOption::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto placed = [this](const QRect &place) { return QStyle::visualRect(layoutDirection(), rect(), place); };

    if (m_highlighted) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(highlightColour);
        painter.drawRoundedRect(rect(), highlightRadius, highlightRadius);
    }
    if (isChecked()) {
        OvixSvgKey mark;
        mark.devicePixelRatio = devicePixelRatio();
        mark.size = QSize(markSide, markSide);
        mark.layers = {{u":/Design/CheckWhite"_s, {}, {}}};
        painter.drawPixmap(placed({markLeft, (height() - markSide) / 2, markSide, markSide}).topLeft(),
                           OvixSvgRenderer::get(mark));
    }
    const QRect place = placed({labelLeft, 0, width() - labelLeft - labelRight, height()});
    painter.setPen(isEnabled() ? textColour : disabledColour);
    painter.drawText(place, int(Qt::AlignVCenter) | Qt::TextSingleLine,
                     fontMetrics().elidedText(m_label, Qt::ElideRight, place.width()));
}

void FloatingOption::keyPressEvent(QKeyEvent *event)
{
    if (!isPressKey(this, event))
        event->ignore(); // the selector's
    else if (!event->isAutoRepeat())
        click();
}

void FloatingOption::focusInEvent(QFocusEvent *event)
{
    QAbstractButton::focusInEvent(event);
    emit reached();
}

void FloatingOption::enterEvent(QEnterEvent *event)
{
    QAbstractButton::enterEvent(event);
    emit reached();
}
