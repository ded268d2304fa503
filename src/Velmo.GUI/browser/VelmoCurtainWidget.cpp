#include "browser/VelmoCurtainWidget.h"

#include "browser/AccessibleBrowser.h"
#include "foundation/AccessibleWidgets.h"
#include "ui_VelmoCurtainWidget.h"

using namespace Qt::StringLiterals;

namespace {

// clang-format off
QString titleSheet()
{
    return u"QLabel {\tfont-size:11px;\tcolor:rgb(219,219,219);}"
            "QLabel:disabled {\tcolor:rgb(219,219,219);}"_s;
}

QString subtitleSheet()
{
    return u"QLabel {\tfont-size:11px;\tfont:italic;\tcolor:rgb(156,156,156);}"
            "QLabel:disabled {\tcolor:rgb(156,156,156);}"_s;
}
// clang-format on

} // namespace

VelmoCurtainWidget::VelmoCurtainWidget(QWidget *parent) : QWidget(parent), m_ui(new Ui::VelmoCurtainWidget)
{
    AccessibleBrowser::install();
    m_ui->setupUi(this);
    m_ui->curtainTitle->setStyleSheet(titleSheet());
    m_ui->curtainSubtitle->setStyleSheet(subtitleSheet());
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    setFocusProxy(m_ui->curtainArrow);
    connect(m_ui->curtainArrow, &OvixSvgButton::clicked, this, &VelmoCurtainWidget::toggled);
    setExpanded(true);
}

VelmoCurtainWidget::~VelmoCurtainWidget() = default;

void VelmoCurtainWidget::setTitle(const QString &title)
{
    m_ui->curtainTitle->setText(title);
}

QString VelmoCurtainWidget::getTitle() const
{
    return m_ui->curtainTitle->text();
}

void VelmoCurtainWidget::setSubtitle(const QString &subtitle)
{
    m_ui->curtainSubtitle->setText(subtitle);
}

QString VelmoCurtainWidget::getSubtitle() const
{
    return m_ui->curtainSubtitle->text();
}

void VelmoCurtainWidget::addToContainerWidget(QWidget *widget)
{
    if (widget && widget != m_ui->containerWidget && !widget->isAncestorOf(m_ui->containerWidget))
        m_ui->verticalLayout->addWidget(widget);
}

void VelmoCurtainWidget::setExpanded(bool expanded)
{
    const bool wasExpanded = isExpanded();
    m_ui->curtainArrow->setFilename(expanded ? u":/Windows/ArrowShow"_s : u":/Windows/ArrowHide"_s);
    m_ui->containerWidget->setVisible(expanded);
    if (isExpanded() != wasExpanded)
        AccessibleWidgets::announceExpanded(m_ui->curtainArrow);
}

bool VelmoCurtainWidget::isExpanded() const
{
    return m_ui->containerWidget->isVisible();
}

void VelmoCurtainWidget::toggled()
{
    setExpanded(!isExpanded());
}
