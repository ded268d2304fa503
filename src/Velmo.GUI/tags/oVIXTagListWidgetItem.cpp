#include "tags/oVIXTagListWidgetItem.h"

#include "tags/AccessibleTags.h"
#include "tags/ChipWidth.h"

namespace {

constexpr int chipHeight = 20;
constexpr int besideItemText = 40;

} // namespace

oVIXTagListWidgetItem::oVIXTagListWidgetItem(QWidget *parent) : QLabel(parent)
{
    AccessibleTags::install();
    setTextFormat(Qt::PlainText);
    setFixedHeight(chipHeight);
}

oVIXTagListWidgetItem::~oVIXTagListWidgetItem() = default;

void oVIXTagListWidgetItem::setText(const QString &text)
{
    QLabel::setText(text);
    setFixedWidth(chipWidth(text, besideItemText));
}
