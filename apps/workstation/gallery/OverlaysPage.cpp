#include "gallery/OverlaysPage.h"

#include "gallery/ClickCounter.h"
#include "gallery/SampleJob.h"
#include "gallery/SamplePicture.h"
#include "gallery/SampleWindow.h"
#include "look/Palette.h"
#include "oVIXWindowBlock.h"
#include "oVIXWindowWaitGlobal.h"

#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize desk(350, 300);
constexpr int controlsWidth = 140;

SampleWindow *createWindow()
{
    SampleWindow *window = createDesk(desk);
    window->addSceneContent();
    return window;
}

/// Gives the pane a picture for the window's content, as for a 3D view that cannot be seen through it.
void setPicture(oVIXWindowBlock *pane, SampleWindow *window)
{
    QPixmap picture = SamplePicture::draw(QSize(600, 400));
    pane->setBackgroundPixmap(&picture);
    pane->setCentralWidget(window->centralWidget());
}

QWidget *createMessage()
{
    auto *message = new QWidget;
    auto *layout = new QVBoxLayout(message);
    auto *cancel = new QPushButton(OverlaysPage::tr("Cancel"));
    auto *words = createCaption(OverlaysPage::tr("The scene is open in another window."));
    auto *content = new QWidget;
    auto *contentLayout = new QVBoxLayout(content);
    contentLayout->setContentsMargins(0, 0, 0, 0);
    contentLayout->setSpacing(12);
    contentLayout->addWidget(words);
    contentLayout->addWidget(cancel, 0, Qt::AlignCenter);
    layout->addWidget(createPlate(content, Palette::window, 16), 0, Qt::AlignCenter);
    return message;
}

/// A wait that stands on the first frame of its mark: nothing has started it.
Sample createWait(const QString &caption, const QString &text, int percent)
{
    SampleWindow *window = createWindow();
    oVIXWindowWaitGlobal *wait = window->getWindowWait();
    wait->setText(text);
    wait->setTextVisible(!text.isEmpty());
    wait->setPercent(percent);
    wait->setPercentVisible(percent >= 0);
    wait->show();
    return {window->parentWidget(), caption};
}

} // namespace

OverlaysPage::OverlaysPage(QWidget *parent) : GalleryPage(tr("Overlays"), parent)
{
    addBlocks();
    addWaits();
    addRunningWait();
}

/// A window that is not seen has nothing to wait for.
void OverlaysPage::hideEvent(QHideEvent *event)
{
    GalleryPage::hideEvent(event);
    endWait();
}

void OverlaysPage::addBlocks()
{
    SampleSection *section =
        addSection(tr("Blocked"), tr("The pane of a window behind a modal dialog, and what it may hold."));

    SampleWindow *free = createWindow();
    SampleWindow *blocked = createWindow();
    blocked->showWindowBlock();
    SampleWindow *withMessage = createWindow();
    withMessage->getWindowBlock()->setCustomWidget(createMessage());
    withMessage->showWindowBlock();
    section->addRow({
        {free->parentWidget(), tr("not blocked")},
        {blocked->parentWidget(), tr("pane only")},
        {withMessage->parentWidget(), tr("a widget of the application")},
    });

    SampleWindow *withPicture = createWindow();
    setPicture(withPicture->getWindowBlock(), withPicture);
    withPicture->showWindowBlock();
    SampleWindow *withPart = createWindow();
    setPicture(withPart->getWindowBlock(), withPart);
    withPart->getWindowBlock()->clearBackgroundPixmap();
    withPart->getWindowBlock()->drawPixmapInRect(QRect(220, 40, 360, 240), SamplePicture::draw(QSize(360, 240)));
    withPart->showWindowBlock();
    SampleWindow *waiting = createWindow();
    setPicture(waiting->getWindowWait(), waiting);
    waiting->getWindowWait()->show();
    section->addRow({
        {withPicture->parentWidget(), tr("a picture in place of the content")},
        {withPart->parentWidget(), tr("a picture painted in part")},
        {waiting->parentWidget(), tr("busy, with a picture")},
    });
}

void OverlaysPage::addWaits()
{
    SampleSection *section = addSection(tr("Busy"), tr("The mark stands still here; below it turns."));
    section->addRow({
        createWait(tr("mark only"), {}, -1),
        createWait(tr("text"), tr("Baking the motion"), -1),
        createWait(tr("percent"), {}, 42),
    });
    section->addRow({
        createWait(tr("text and percent"), tr("Baking the motion"), 7),
        createWait(tr("a long text"), tr("Baking the motion of everybody in the concourse"), 100),
        createWait(tr("markup characters"), u"<b>bold</b> &amp; %1"_s, 0),
    });
}

void OverlaysPage::addRunningWait()
{
    m_window = createWindow();
    m_job = new SampleJob(m_window->getWindowWait(), this);
    connect(m_job, &SampleJob::finished, this, &OverlaysPage::endWait);

    auto *controls = new QWidget;
    controls->setFixedWidth(controlsWidth);
    auto *layout = new QVBoxLayout(controls);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    const auto addButton = [this, layout](const QString &text, void (oVIXMainWindow::*start)()) {
        auto *button = new QPushButton(text);
        layout->addWidget(button);
        connect(button, &QPushButton::clicked, this, [job = m_job, window = m_window, start] {
            job->start();
            (window->*start)(); // processes events: the page may be gone afterwards
        });
    };
    addButton(tr("Wait"), &oVIXMainWindow::startWait);
    addButton(tr("Wait with text"), &oVIXMainWindow::startWaitWithText);
    addButton(tr("Wait with percent"), &oVIXMainWindow::startWaitWithPercent);
    addButton(tr("Wait, delayed"), &oVIXMainWindow::startWaitDelayed);
    auto *end = new QPushButton(tr("End"));
    layout->addWidget(end);
    connect(end, &QPushButton::clicked, this, &OverlaysPage::endWait);
    auto *counter = new ClickCounter;
    counter->count(m_window->getWindowWait(), &oVIXWindowWaitGlobal::delayFinished, tr("delay finished"));
    layout->addWidget(counter);

    addSection(tr("A running wait"), tr("A job of four seconds; a delayed wait shows after the first one."))
        ->addRow({{m_window->parentWidget(), {}}, {controls, {}}});
}

void OverlaysPage::endWait()
{
    m_job->stop();
    m_window->endWait();
}
