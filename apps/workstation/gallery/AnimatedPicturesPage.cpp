#include "gallery/AnimatedPicturesPage.h"

#include "QAnimatedLabel.h"
#include "QAnimatedWebp.h"
#include "look/Palette.h"

#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize pictureSize(480, 270);
constexpr int frameExtent = 56;
constexpr int slowMsecs = 200;
constexpr int tickMsecs = 20;

/// A hand that goes round once, drawn sharp for the screen.
QPixmap drawSheet(int stacks, int slices, qreal devicePixelRatio)
{
    QPixmap sheet(QSize(slices, stacks) * frameExtent * devicePixelRatio);
    sheet.setDevicePixelRatio(devicePixelRatio);
    sheet.fill(Palette::window);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    const int count = stacks * slices;
    for (int i = 0; i < count; ++i) {
        painter.save();
        const int row = i / slices;
        painter.translate((i % slices + 0.5) * frameExtent, (row + 0.5) * frameExtent);
        painter.setPen(QPen(Palette::line, 3));
        painter.drawEllipse(QPointF(), 18, 18);
        painter.rotate(360.0 * i / count);
        painter.setPen(QPen(Palette::accent, 3, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0, -6), QPointF(0, -18));
        painter.restore();
    }
    return sheet;
}

QPushButton *addButton(QVBoxLayout *layout, const QString &text)
{
    auto *button = new QPushButton(text);
    layout->addWidget(button);
    return button;
}

/// A column of buttons beside the samples.
QVBoxLayout *createControls(QWidget **controls)
{
    *controls = new QWidget;
    (*controls)->setFixedWidth(160);
    auto *layout = new QVBoxLayout(*controls);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    return layout;
}

} // namespace

AnimatedPicturesPage::AnimatedPicturesPage(QWidget *parent) : GalleryPage(tr("Animated pictures"), parent)
{
    addFile();
    addSheets();
}

AnimatedPicturesPage::~AnimatedPicturesPage() = default;

void AnimatedPicturesPage::hideEvent(QHideEvent *event)
{
    GalleryPage::hideEvent(event);
    if (m_player)
        m_player->stop();
}

/// Not every build has the animation, and not every system can read it.
void AnimatedPicturesPage::addFile()
{
    const QString file = u":/Animation/Crowd.webp"_s;
    if (!QFile::exists(file) || !QImageReader::supportedImageFormats().contains("webp"))
        return;
    m_picture = new QLabel;
    m_picture->setFixedSize(pictureSize);
    m_picture->setScaledContents(true);
    QWidget *controls = nullptr;
    QVBoxLayout *layout = createControls(&controls);
    connect(addButton(layout, tr("Play")), &QPushButton::clicked, this, [this] { playFile(0); });
    connect(addButton(layout, tr("Play slowly")), &QPushButton::clicked, this, [this] { playFile(slowMsecs); });
    QPushButton *stop = addButton(layout, tr("Stop"));
    m_frameNumber = new QLabel;
    layout->addWidget(m_frameNumber);

    m_player = std::make_unique<QAnimatedWebp>(nullptr);
    connect(stop, &QPushButton::clicked, m_player.get(), &QAnimatedWebp::stop);
    connect(m_player.get(), &QAnimatedWebp::frameChanged, this, &AnimatedPicturesPage::showFrame);
    m_player->setFileName(file);
    m_player->start();
    addSection(tr("Animated file"), tr("60 frames of 40 ms; slowly, of 200 ms. Each is decoded once."))
        ->addRow({{m_picture, {}}, {controls, {}}});
}

void AnimatedPicturesPage::showFrame(int number)
{
    QImage image;
    m_player->getCurrentImage(&image);
    m_picture->setPixmap(QPixmap::fromImage(image));
    m_frameNumber->setText(tr("Frame %1").arg(number));
    if (!m_playsOn)
        m_player->stop(); // the first one alone, to have something to show
}

void AnimatedPicturesPage::playFile(int minDelayMs)
{
    m_playsOn = true;
    m_player->setMinDelayMs(minDelayMs);
    m_player->start();
}

void AnimatedPicturesPage::addSheets()
{
    const QPixmap square = drawSheet(4, 4, devicePixelRatioF());
    const QPixmap strip = drawSheet(1, 8, devicePixelRatioF());
    const auto createSheet = [](const QPixmap &sheet) {
        auto *label = new QLabel;
        label->setPixmap(sheet);
        return label;
    };
    QWidget *controls = nullptr;
    QVBoxLayout *layout = createControls(&controls);
    QPushButton *play = addButton(layout, tr("Play"));
    QPushButton *pause = addButton(layout, tr("Pause"));
    QPushButton *stop = addButton(layout, tr("Stop"));

    SampleSection *section =
        addSection(tr("Sprite sheets"), tr("The sheet, and labels that play it. A click stops or starts one of them."));
    section->addRow({
        {createSheet(square), tr("4 rows of 4")},
        {createSprite(square, 4, 4, 0, 16), tr("all, 16 a second")},
        {createSprite(square, 4, 4, 10, 16), tr("the first 10")},
        {createSprite(square, 4, 4, 0, 4), tr("4 a second")},
        {createSprite(square, 2, 2, 0, 2), tr("cut into 2 rows of 2")},
        {controls, {}},
    });
    section->addRow({{createSheet(strip), tr("1 row of 8")}, {createSprite(strip, 1, 8, 0, 8), tr("8 a second")}});

    for (QAnimatedLabel *sprite : std::as_const(m_sprites)) {
        connect(play, &QPushButton::clicked, sprite, [sprite] { sprite->play(tickMsecs); });
        connect(pause, &QPushButton::clicked, sprite, &QAnimatedLabel::pause);
        connect(stop, &QPushButton::clicked, sprite, &QAnimatedLabel::stop);
    }
}

QAnimatedLabel *AnimatedPicturesPage::createSprite(const QPixmap &sheet, int stacks, int slices, int count, float speed)
{
    auto *sprite = new QAnimatedLabel;
    sprite->setStacksAndSlices(sheet, stacks, slices, count);
    sprite->setSpeed(speed);
    connect(sprite, &QClickableLabel::clicked, sprite, [sprite] {
        if (sprite->isPlaying())
            sprite->pause();
        else
            sprite->play(tickMsecs);
    });
    m_sprites << sprite;
    return sprite;
}
