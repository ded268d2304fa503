#include "start/HeaderBar.h"

#include "VelmoVersion.h"
#include "look/ElidedLabel.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize accentSize(4, 36);

QLabel *named(QLabel *label, const QString &objectName)
{
    label->setObjectName(objectName);
    return label;
}

} // namespace

HeaderBar::HeaderBar(QWidget *parent) : QWidget(parent), m_subtitle(new ElidedLabel(this))
{
    setObjectName(u"header"_s);
    setAttribute(Qt::WA_StyledBackground);

    auto *accent = named(new QLabel(this), u"accent"_s);
    accent->setFixedSize(accentSize);
    named(m_subtitle, u"subtitle"_s);

    auto *texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addWidget(named(new QLabel(QGuiApplication::applicationDisplayName(), this), u"title"_s));
    texts->addWidget(m_subtitle);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setSpacing(12);
    layout->addWidget(accent);
    layout->addLayout(texts, 1);
    auto *release = new QLabel(tr("Release %1").arg(VelmoVersion::current().toString()), this);
    layout->addWidget(named(release, u"release"_s), 0, Qt::AlignVCenter);
}

void HeaderBar::setSubtitle(const QString &text)
{
    m_subtitle->setFullText(text);
}
