#include "docking/oVIXCloseDetachWidget.h"

#include "docking/OvixThumbnailSizeWidget.h"

#include "ui_oVIXCloseDetachWidget.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int closeMargin = 4;

} // namespace

oVIXCloseDetachWidget::oVIXCloseDetachWidget(QWidget *parent) : QFrame(parent), m_ui(new Ui::oVIXCloseDetachWidget)
{
    m_ui->setupUi(this);
    for (OvixSvgButton *button : {m_ui->btThumbMode, m_ui->btDetach, m_ui->btClose}) {
        button->setInverted(false);
        button->setHoverVisible(true);
        button->setColorScheme(OvixSvgLabel::Charcoal);
    }
    m_ui->btThumbMode->setFilename(u":/Windows/Thumbnail"_s);
    m_ui->btThumbMode->setAccessibleName(tr("Thumbnail size"));
    m_ui->btDetach->setFilename(u":/Windows/Detach"_s);
    m_ui->btDetach->setAccessibleName(tr("Detach or dock"));
    m_ui->btClose->setFilename(u":/Windows/Close"_s);
    m_ui->btClose->setAccessibleName(tr("Close"));
    m_ui->btClose->setMargins(closeMargin);

    connect(m_ui->btThumbMode, &OvixSvgButton::clicked, this, &oVIXCloseDetachWidget::thumbTriggered);
    connect(m_ui->btDetach, &OvixSvgButton::clicked, this, &oVIXCloseDetachWidget::detachClicked);
    connect(m_ui->btClose, &OvixSvgButton::clicked, this, &oVIXCloseDetachWidget::closeClicked);

    m_ui->btThumbMode->hide();
    reCalcSize();
}

oVIXCloseDetachWidget::~oVIXCloseDetachWidget()
{
    if (m_thumbChooser)
        m_thumbChooser->deleteLater();
}

void oVIXCloseDetachWidget::hideClose()
{
    m_ui->btDetach->setGeometry(m_ui->btClose->geometry());
    m_ui->btClose->hide();
    m_closeVisible = false;
    reCalcSize();
}

void oVIXCloseDetachWidget::hideDock()
{
    m_detachVisible = false;
    m_ui->btDetach->hide();
    reCalcSize();
}

void oVIXCloseDetachWidget::thumbAvailable()
{
    m_ui->btThumbMode->show();
    m_thumbVisible = true;
    reCalcSize();
}

void oVIXCloseDetachWidget::hideIcons()
{
    for (OvixSvgButton *button : {m_ui->btThumbMode, m_ui->btDetach, m_ui->btClose})
        button->hide();
}

void oVIXCloseDetachWidget::showIcons()
{
    m_ui->btThumbMode->setVisible(m_thumbVisible);
    m_ui->btDetach->setVisible(m_detachVisible);
    m_ui->btClose->setVisible(m_closeVisible);
}

bool oVIXCloseDetachWidget::getIsDockAvailable()
{
    return m_detachVisible;
}

void oVIXCloseDetachWidget::setParentWindow(QMainWindow *window)
{
    m_parentWindow = window;
}

void oVIXCloseDetachWidget::setThumbnailSize(int size)
{
    m_thumbnailSize = size;
}

int oVIXCloseDetachWidget::getThumbnailSize() const
{
    return m_thumbnailSize;
}

void oVIXCloseDetachWidget::thumbTriggered()
{
    if (!m_thumbChooser) {
        m_thumbChooser = new OvixThumbnailSizeWidget(m_parentWindow);
        connect(m_thumbChooser, &OvixThumbnailSizeWidget::sizeSelected, this,
                &oVIXCloseDetachWidget::thumbSizeTriggered);
    }
    m_thumbChooser->setup(m_thumbnailSize);
    const QPoint belowButton = m_ui->btThumbMode->pos() + QPoint(0, m_ui->btThumbMode->height());
    m_thumbChooser->showAt(mapToGlobal(belowButton));
}

void oVIXCloseDetachWidget::thumbSizeTriggered(int size)
{
    m_thumbnailSize = size;
    emit thumbClicked(size);
}

QList<OvixSvgButton *> oVIXCloseDetachWidget::buttons() const
{
    QList<OvixSvgButton *> buttons;
    if (m_thumbVisible)
        buttons << m_ui->btThumbMode;
    if (m_closeVisible)
        buttons << m_ui->btClose;
    if (m_detachVisible)
        buttons << m_ui->btDetach;
    return buttons;
}

void oVIXCloseDetachWidget::reCalcSize()
{
    int width = 0;
    const QList<OvixSvgButton *> group = buttons();
    for (const OvixSvgButton *button : group)
        width += button->width();
    setFixedWidth(width);
}
