#include "messages/oVIXGuideOverlay.h"

#include "foundation/AccessibleWidgets.h"
#include "foundation/FocusRing.h"
#include "foundation/VelmoPalette.h"
#include "frame/NativeWindowApi.h"
#include "messages/GuideRules.h"

#include "ui_oVIXGuideOverlay.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPropertyAnimation>
#include <QStyle>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int transitionLength = 1000; // ms
constexpr qreal roundButtonRadius = 13.0;

QString backSheet()
{
    return u"\n"
           "        QPushButton {\n"
           "            background-color: transparent;\n"
           "            border: 2px solid %1;\n"
           "            border-radius: 13px;\n"
           "            color: %1;\n"
           "        }\n"
           "        QPushButton:hover, QPushButton:pressed {\n"
           "            border: 2px solid white;\n"
           "            color: white;\n"
           "        }\n"_s.arg(VelmoPalette::secondaryText);
}

QString nextSheet()
{
    return u"\n"
           "        QPushButton {\n"
           "            background-color: %1;\n"
           "            border: 2px solid %1;\n"
           "            border-radius: 13px;\n"
           "            color: white;\n"
           "        }\n"
           "        QPushButton:hover, QPushButton:pressed {\n"
           "            border: 2px solid %1;\n"
           "            color: %1;\n"
           "            background-color: white;\n"
           "        }\n"_s.arg(VelmoPalette::checked);
}

QString checkBoxSheet()
{
    return u"\n"
           "        QCheckBox {\n"
           "            color: %1;\n"
           "            background-color: transparent;\n"
           "        }\n"
           "        QCheckBox::indicator:unchecked {\n"
           "            background-color: transparent;\n"
           "            border: 1px solid %1;\n"
           "            border-radius: 2px;\n"
           "        }\n"
           "        QCheckBox::indicator:checked {\n"
           "            background-color: %2;\n"
           "            border: 1px solid %2;\n"
           "            border-radius: 2px;\n"
           "            image: url(:/Design/CheckWhite);\n"
           "            width: 12px; \n"
           "            height: 12px; \n"
           "        }\n"_s.arg(VelmoPalette::secondaryText, VelmoPalette::checked);
}

QString skipSheet()
{
    return u"\n"
           "        QPushButton {\n"
           "            background-color: transparent;\n"
           "            border: none;\n"
           "            color: rgb(156,156,156);\n"
           "        }\n"
           "        QPushButton:hover, QPushButton:pressed {\n"
           "            color: white;\n"
           "        }\n"_s;
}

bool isMotionWanted(const QWidget *widget)
{
    const NativeWindowApi &native = NativeWindowApi::instance();
    return (!native.areAnimationsOn || native.areAnimationsOn())
        && widget->style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, widget) > 0;
}

QAccessibleInterface *createAccessible(QWidget *overlay)
{
    return new QAccessibleWidget(overlay, QAccessible::Dialog);
}

} // namespace

oVIXGuideOverlay::oVIXGuideOverlay(QWidget *parent) : QWidget(parent), m_ui(new Ui::oVIXGuideOverlay)
{
    AccessibleWidgets::add("oVIXGuideOverlay", createAccessible);
    AccessibleWidgets::install();
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_NoMousePropagation);
    m_ui->setupUi(this);
    m_ui->titleLabel->setStyleSheet(u"color: white; font-size: 25px; font-weight: bold;"_s);
    m_ui->descriptionLabel->setStyleSheet(u"color: white; font-size: 16px;"_s);
    m_ui->counterLabel->setStyleSheet(u"color: white; font-size: 16px;"_s);
    m_ui->backButton->setStyleSheet(backSheet());
    m_ui->nextButton->setStyleSheet(nextSheet());
    m_ui->dontShowCheckBox->setStyleSheet(checkBoxSheet());
    m_ui->skipButton->setStyleSheet(skipSheet());
    connect(m_ui->nextButton, &QPushButton::clicked, this, &oVIXGuideOverlay::onNextClicked);
    connect(m_ui->backButton, &QPushButton::clicked, this, &oVIXGuideOverlay::onBackClicked);
    connect(m_ui->skipButton, &QPushButton::clicked, this, &oVIXGuideOverlay::onSkipClicked);
    // The buttons would take the arrow keys for themselves.
    for (QAbstractButton *control : findChildren<QAbstractButton *>()) {
        control->installEventFilter(this);
        const bool isRound = control == m_ui->backButton || control == m_ui->nextButton;
        new FocusRing(control, isRound ? roundButtonRadius : FocusRing::usualRadius);
    }
    setFocusProxy(m_ui->nextButton);
    updateStepInfo();
    follow(parent);
}

oVIXGuideOverlay::~oVIXGuideOverlay() = default;

void oVIXGuideOverlay::addStep(oVIXGuideStep *step)
{
    if (!step)
        return;
    m_steps << step;
    updateStepInfo();
}

float oVIXGuideOverlay::getAnimationProgress() const
{
    return m_animationProgress;
}

void oVIXGuideOverlay::setAnimationProgress(float progress)
{
    if (!std::isfinite(progress) || qFuzzyCompare(progress, m_animationProgress))
        return;
    m_animationProgress = progress;
    update();
    emit sgAnimationProgressChanged(progress);
}

bool oVIXGuideOverlay::isDontShowChecked() const
{
    return m_ui->dontShowCheckBox->isChecked();
}

void oVIXGuideOverlay::revealStep()
{
    stopTransition();
    const QPointer<oVIXGuideOverlay> alive(this);
    setAnimationProgress(0.0F);
    // Whoever heard of that may have deleted the tour, or gone on with it.
    if (!alive || m_transition)
        return;
    if (!isMotionWanted(this)) {
        setAnimationProgress(1.0F);
        return;
    }
    m_transition = new QPropertyAnimation(this, "mAnimationProgress", this);
    m_transition->setStartValue(0.0F);
    m_transition->setEndValue(1.0F);
    m_transition->setDuration(transitionLength);
    m_transition->start(QAbstractAnimation::DeleteWhenStopped);
}

void oVIXGuideOverlay::onNextClicked()
{
    if (m_currentStep >= int(m_steps.size()) - 1)
        emit sgGuideFinished();
    else
        goToStep(m_currentStep + 1);
}

void oVIXGuideOverlay::onBackClicked()
{
    if (m_currentStep > 0)
        goToStep(m_currentStep - 1);
}

void oVIXGuideOverlay::onSkipClicked()
{
    emit sgGuideFinished();
}

bool oVIXGuideOverlay::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent()) {
        if (event->type() == QEvent::Resize)
            setGeometry(parentWidget()->rect());
    } else if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
        if (takeKey(static_cast<QKeyEvent *>(event)))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

bool oVIXGuideOverlay::event(QEvent *event)
{
    if (event->type() == QEvent::ParentAboutToChange && parent())
        parent()->removeEventFilter(this);
    else if (event->type() == QEvent::ParentChange)
        follow(parentWidget());
    return QWidget::event(event);
}

void oVIXGuideOverlay::paintEvent(QPaintEvent *)
{
    oVIXGuideStep *step = m_steps.value(m_currentStep);
    if (!step)
        return;
    const int radius = revealedRadius(size(), m_animationProgress);
    QPainterPath circle;
    circle.addEllipse(QPoint(width() / 2, height() / 2), radius, radius);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipPath(circle);
    step->paintStep(&painter, this);
}

void oVIXGuideOverlay::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    raise(); // above what has joined the window since
    setFocus();
    announceStep();
}

void oVIXGuideOverlay::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous() || !m_transition)
        return;
    stopTransition();
    setAnimationProgress(1.0F);
}

void oVIXGuideOverlay::keyPressEvent(QKeyEvent *event)
{
    if (!takeKey(event))
        QWidget::keyPressEvent(event);
}

bool oVIXGuideOverlay::focusNextPrevChild(bool next)
{
    QWidget *focused = QApplication::focusWidget();
    QWidget *from = focused && isAncestorOf(focused) ? focused : this;
    const auto neighbour = [next](QWidget *widget) {
        return next ? widget->nextInFocusChain() : widget->previousInFocusChain();
    };
    for (QWidget *widget = neighbour(from); widget != from; widget = neighbour(widget)) {
        if (isAncestorOf(widget) && widget->isVisibleTo(this) && widget->isEnabled()
            && (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus) {
            widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
    return false;
}

void oVIXGuideOverlay::follow(QWidget *parent)
{
    if (!parent)
        return;
    parent->installEventFilter(this);
    setGeometry(parent->rect());
}

void oVIXGuideOverlay::updateStepInfo()
{
    m_ui->backButton->setVisible(m_currentStep > 0);
    m_ui->placeholder->setVisible(m_currentStep == 0);
    const oVIXGuideStep *step = m_steps.value(m_currentStep);
    m_ui->titleLabel->setText(step ? step->stepTitle() : QString());
    m_ui->descriptionLabel->setText(step ? step->stepDescription() : QString());
    m_ui->nextButton->setText(m_currentStep == int(m_steps.size()) - 1 ? tr("Finish") : tr("Next"));
    m_ui->counterLabel->setText(
        tr("%1 of %2").arg(QString::number(m_currentStep + 1), QString::number(m_steps.size())));

    setAccessibleName(m_ui->titleLabel->text());
    setAccessibleDescription(m_ui->counterLabel->text() + u'\n' + m_ui->descriptionLabel->text());
}

void oVIXGuideOverlay::announceStep()
{
    if (isVisible())
        AccessibleWidgets::announceAlert(this);
}

void oVIXGuideOverlay::goToStep(int step)
{
    m_currentStep = step;
    updateStepInfo();
    announceStep();
    revealStep();
}

void oVIXGuideOverlay::stopTransition()
{
    if (m_transition)
        m_transition->stop();
    m_transition = nullptr; // it deletes itself later
}

bool oVIXGuideOverlay::takeKey(QKeyEvent *event)
{
    const GuideKey key = guideKeyOf(*event, layoutDirection());
    if (key == GuideKey::None)
        return false;
    event->accept();
    if (event->type() != QEvent::KeyPress || event->isAutoRepeat())
        return true;
    if (key == GuideKey::Back)
        onBackClicked();
    else if (key == GuideKey::Next)
        onNextClicked();
    else
        onSkipClicked();
    return true;
}
