#include "foundation/oVIXLabelTitle.h"

#include "foundation/ElidedText.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int narrowest = 24;

} // namespace

oVIXLabelTitle::oVIXLabelTitle(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setStyleSheet(u"oVIXLabelTitle {"
                  "\tbackground:rgb(59,59,59);"
                  "\tcolor:rgb(156,156,156);"
                  "\tpadding: 5px 5px 5px 5px;}"
                  "oVIXLabelTitle:disabled {"
                  "\tbackground:rgba(59,59,59,127);"
                  "\tcolor:rgb(105,105,105);}"_s);
}

oVIXLabelTitle::~oVIXLabelTitle() = default;

QSize oVIXLabelTitle::sizeHint() const
{
    return ElidedText::sizeOf(this);
}

QSize oVIXLabelTitle::minimumSizeHint() const
{
    return ElidedText::sizeOf(this).boundedTo({narrowest, QWIDGETSIZE_MAX});
}

void oVIXLabelTitle::paintEvent(QPaintEvent *event)
{
    if (!ElidedText::paintShortened(this))
        QLabel::paintEvent(event);
}
