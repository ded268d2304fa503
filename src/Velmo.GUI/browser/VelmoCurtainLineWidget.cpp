#include "browser/VelmoCurtainLineWidget.h"

#include "ui_VelmoCurtainLineWidget.h"

VelmoCurtainLineWidget::VelmoCurtainLineWidget(QWidget *parent) : QWidget(parent), m_ui(new Ui::VelmoCurtainLineWidget)
{
    m_ui->setupUi(this);
}

VelmoCurtainLineWidget::~VelmoCurtainLineWidget() = default;

void VelmoCurtainLineWidget::setLineVisible(bool visible)
{
    m_ui->curtainLine->setVisible(visible);
}
