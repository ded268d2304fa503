#include "gallery/TourPage.h"

#include "gallery/SamplePicture.h"
#include "oVIXGuideOverlay.h"

#include <QAbstractAnimation>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize windowSize(1100, 440);
constexpr int ringWidth = 2;

/// Darkens the window but for one place, and draws a ring round that.
class SpotStep : public oVIXGuideStep
{
public:
    SpotStep(const QString &title, const QString &description, QRect spot)
        : oVIXGuideStep(title, description), m_spot(spot)
    { }

    void paintStep(QPainter *painter, QWidget *overlay) override
    {
        QPainterPath dark;
        dark.addRect(overlay->rect());
        dark.addRoundedRect(m_spot, 8, 8);
        painter->fillPath(dark, QColor(0, 0, 0, 200));
        painter->setPen(QPen(QColor(116, 211, 252), ringWidth));
        painter->drawRoundedRect(m_spot, 8, 8);
    }

private:
    QRect m_spot;
};

} // namespace

TourPage::TourPage(QWidget *parent) : GalleryPage(tr("Guided tour"), parent)
{
    const auto add = [this](const QString &title, const QString &description, QRect spot) {
        m_steps.push_back(std::make_unique<SpotStep>(title, description, spot));
    };
    add(tr("Projects"), tr("All projects of the folder are listed on the left.\nA click shows the scenes of one."),
        QRect(20, 20, 160, 400));
    add(tr("People"), tr("Drag people and vehicles from the library into the scene."), QRect(920, 20, 160, 200));
    add(tr("Time"), tr("Bake the scene, then play it."), QRect(200, 20, 700, 40));

    addSection(tr("First step"), tr("Half revealed: the circle grows from the middle."))->addWide(createTour(0, 0.5F));
    addSection(tr("First step"), tr("Nothing to go back to; the row keeps its width."))->addWide(createTour(0, 1.0F));
    addSection(tr("A step between"))->addWide(createTour(1, 1.0F));
    addSection(tr("Last step"))->addWide(createTour(2, 1.0F));
}

TourPage::~TourPage()
{
    // The tours look at the steps until they are gone.
    qDeleteAll(findChildren<oVIXGuideOverlay *>());
}

QWidget *TourPage::createTour(int step, float progress)
{
    auto *window = new QLabel;
    window->setFixedSize(windowSize);
    window->setPixmap(SamplePicture::draw(windowSize, devicePixelRatio()));
    auto *tour = new oVIXGuideOverlay(window);
    for (const auto &added : m_steps)
        tour->addStep(added.get());
    auto *next = tour->findChild<QPushButton *>(u"nextButton"_s);
    for (int i = 0; i < step; ++i)
        next->click();
    for (QAbstractAnimation *transition : tour->findChildren<QAbstractAnimation *>())
        transition->stop();
    tour->setAnimationProgress(progress);
    tour->show();
    return window;
}
