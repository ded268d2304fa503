#include "frame/oVIXDialogTitle.h"

#include "foundation/InterFont.h"
#include "foundation/OvixSvgButton.h"
#include "frame/TitleLabel.h"

#include <QHBoxLayout>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int titleHeight = 30;
constexpr int closeSide = 32;
constexpr int titleCloseMargin = 4;
constexpr int titleIndent = 15;
constexpr int titlePixels = 10;
constexpr int smallestGap = 10; // between title and button

QString titleSheet()
{
    return u"oVIXDialogTitle {\tbackground:rgb(28,28,28);}QLabel {\tfont-family:\"Inter\";}QGroupBox{\tfont-size:15px;}"_s;
}

} // namespace

oVIXDialogTitle::oVIXDialogTitle(QWidget *parent)
    : QFrame(parent), m_closeButton(new OvixSvgButton(this)), m_titleLabel(new TitleLabel(this))
{
    m_closeButton->setFixedSize(closeSide, closeSide);
    m_closeButton->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    m_closeButton->setColorScheme(OvixSvgLabel::Charcoal);
    m_closeButton->setHoverVisible(true);
    m_closeButton->setFilename(u":/Windows/Close"_s);
    m_closeButton->setMargins(titleCloseMargin);
    m_closeButton->setAccessibleName(tr("Close"));
    m_closeButton->paintEventUpdate(); // its sheet is styled once, with all others
    connect(m_closeButton, &OvixSvgButton::clicked, this, &oVIXDialogTitle::closeClicked);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(titleIndent, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_titleLabel);
    row->addItem(new QSpacerItem(smallestGap, smallestGap, QSizePolicy::Expanding, QSizePolicy::Fixed));
    row->addWidget(m_closeButton);

    setFixedHeight(titleHeight);
    setStyleSheet(titleSheet());
}

oVIXDialogTitle::~oVIXDialogTitle() = default;

void oVIXDialogTitle::setTitle(QString title, QString subtitle)
{
    m_titleLabel->setFont(interFont(titlePixels));
    m_titleLabel->setTexts(title + u": "_s, subtitle);
}

void oVIXDialogTitle::setDragEnabled(bool enabled)
{
    m_dragEnabled = enabled;
    m_dragOrigin = QPoint();
}

void oVIXDialogTitle::setCloseEnabled(bool enabled)
{
    m_closeButton->setEnabled(enabled);
}

void oVIXDialogTitle::mousePressEvent(QMouseEvent *event)
{
    event->setAccepted(m_dragEnabled && event->button() == Qt::LeftButton);
    if (event->isAccepted())
        m_dragOrigin = event->globalPosition().toPoint();
}

void oVIXDialogTitle::mouseMoveEvent(QMouseEvent *event)
{
    event->setAccepted(m_dragEnabled && (event->buttons() & Qt::LeftButton) && !m_dragOrigin.isNull());
    if (!event->isAccepted())
        return;
    const QPoint position = event->globalPosition().toPoint();
    if (parentWidget())
        parentWidget()->move(parentWidget()->pos() + position - m_dragOrigin);
    m_dragOrigin = position;
}

void oVIXDialogTitle::mouseReleaseEvent(QMouseEvent *event)
{
    event->setAccepted(m_dragEnabled && event->button() == Qt::LeftButton && !m_dragOrigin.isNull());
    if (event->isAccepted())
        m_dragOrigin = QPoint();
}
