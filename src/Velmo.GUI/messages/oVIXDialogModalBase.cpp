#include "messages/oVIXDialogModalBase.h"

#include "messages/LinkLabel.h"

#include "ui_oVIXDialogModalBase.h"

#include <QCoreApplication>
#include <QImageReader>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace {

QString separatorSheet()
{
    return u" background-color:rgb(105,105,105); "_s;
}

QString buttonSheet()
{
    return u"QPushButton {"
           "   color:rgb(105,105,105);"
           "   background: transparent;"
           "   border: none;}"
           "QPushButton:hover {"
           "   color: rgb(255,255,255);"
           "   font-weight: bold;}"_s;
}

/// The picture in the file with all the detail that a screen of this density shows in @p size.
QPixmap loadDetailed(const QString &path, QSize size, qreal devicePixelRatio)
{
    QImageReader reader(path);
    reader.setScaledSize(size * devicePixelRatio);
    QPixmap picture = QPixmap::fromImageReader(&reader);
    picture.setDevicePixelRatio(devicePixelRatio);
    return picture;
}

} // namespace

oVIXDialogModalBase::oVIXDialogModalBase(QWidget *parent)
    : oVIXDialog(true, true, false, parent, nullptr), m_ui(new Ui::oVIXDialogModalBase)
{
    m_ui->setupUi(this);
    setModal(true);
    m_ui->line->setStyleSheet(separatorSheet());
    for (QPushButton *button : {m_ui->closeButton, m_ui->exitButton}) {
        button->setStyleSheet(buttonSheet());
        button->hide();
    }
    connect(m_ui->closeButton, &QPushButton::clicked, this, &oVIXDialogModalBase::onCloseButtonClicked,
            Qt::DirectConnection);
    connect(m_ui->exitButton, &QPushButton::clicked, this, &oVIXDialogModalBase::onExitButtonClicked,
            Qt::DirectConnection);
}

oVIXDialogModalBase::~oVIXDialogModalBase() = default;

void oVIXDialogModalBase::addTitleLabel(const QString &title)
{
    m_ui->titleLabel->setText(title);
}

void oVIXDialogModalBase::addWidget(QWidget *page)
{
    if (page)
        m_ui->mainStackedWidget->addWidget(page);
}

void oVIXDialogModalBase::addNewWebLink(const QString &text, const QString &target)
{
    addLink(text, target, 0);
}

void oVIXDialogModalBase::addNewAppLink(const QString &text, const QString &target)
{
    addLink(text, target, 1);
}

void oVIXDialogModalBase::setLogoImg(const QString &path)
{
    QLabel *logo = m_ui->mainImgLabel;
    const QPixmap picture = loadScaledImg(path, logo->maximumWidth(), logo->maximumHeight());
    logo->setFixedSize(picture.size());
    const qreal ratio = devicePixelRatio();
    logo->setPixmap(ratio > 1 && !picture.isNull() ? loadDetailed(path, picture.size(), ratio) : picture);
}

QPixmap oVIXDialogModalBase::scaleImg(const QPixmap &pixmap, int maxWidth, int)
{
    if (pixmap.isNull())
        return {};
    return pixmap.scaledToWidth(qMin(pixmap.width(), maxWidth), Qt::SmoothTransformation);
}

QPixmap oVIXDialogModalBase::loadScaledImg(const QString &path, int maxWidth, int maxHeight)
{
    return scaleImg(QPixmap(path), maxWidth, maxHeight);
}

void oVIXDialogModalBase::enableExitButton(bool enable)
{
    m_ui->exitButton->setVisible(enable);
}

void oVIXDialogModalBase::disableExitButton(bool disable)
{
    m_ui->exitButton->setVisible(!disable);
}

void oVIXDialogModalBase::enableCloseButton(bool enable)
{
    m_ui->closeButton->setVisible(enable);
}

void oVIXDialogModalBase::disableCloseButton(bool disable)
{
    m_ui->closeButton->setVisible(!disable);
}

void oVIXDialogModalBase::onCloseButtonClicked()
{
    reject();
}

void oVIXDialogModalBase::onExitButtonClicked()
{
    QCoreApplication::exit(0);
}

void oVIXDialogModalBase::addLink(const QString &text, const QString &target, int kind)
{
    m_ui->linksWidget->layout()->addWidget(new LinkLabel(text, target, kind, m_ui->linksWidget));
}
