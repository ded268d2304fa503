// DrawAnimationFrames <folder> <count>: draws the frames of the sample animation, 000.png and so on, 480 x 270 pixels:
// two streams of people, seen from above, that pass through each other. The last frame leads back to the first.

#include "look/Palette.h"

#include <QDir>
#include <QImage>
#include <QPainter>

#include <cmath>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize frameSize(480, 270);
constexpr int lanes = 9;
constexpr int peopleInLane = 6;
constexpr double margin = 12.0;
constexpr double pi = 3.14159265358979323846;

void drawPerson(QPainter &painter, QPointF at, double heading, const QColor &colour)
{
    painter.save();
    painter.translate(at);
    painter.rotate(heading);
    painter.setBrush(colour);
    painter.drawEllipse(QPointF(), 4.0, 7.0);
    painter.setBrush(Palette::deep);
    painter.drawEllipse(QPointF(), 2.6, 2.6);
    painter.restore();
}

/// @p phase is the part of the round that has passed, 0 to 1.
QImage drawFrame(double phase)
{
    QImage frame(frameSize, QImage::Format_RGB32);
    frame.fill(Palette::window);
    QPainter painter(&frame);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Palette::raised);
    painter.drawRect(QRectF(0, 30, frameSize.width(), frameSize.height() - 60));

    const double spacing = (frameSize.width() + 2 * margin) / peopleInLane;
    for (int lane = 0; lane < lanes; ++lane) {
        const bool toTheRight = lane % 2 == 0;
        for (int person = 0; person < peopleInLane; ++person) {
            // Everybody takes the place of the one in front.
            const double along = (person + std::fmod(phase + 0.37 * lane, 1.0)) * spacing - margin;
            const double x = toTheRight ? along : frameSize.width() - along;
            const double swerve = std::sin(2 * pi * (2 * x / frameSize.width() + 0.1 * lane));
            const double y = 50 + 21.25 * lane + 5 * swerve;
            const double heading = (toTheRight ? 10 : -10) * std::cos(2 * pi * (2 * x / frameSize.width()));
            drawPerson(painter, {x, y}, heading, toTheRight ? Palette::accent : Palette::text);
        }
    }
    return frame;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: DrawAnimationFrames <folder> <count>\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const int count = QByteArray(argv[2]).toInt();
    for (int i = 0; i < count; ++i) {
        const QString file = folder.filePath(u"%1.png"_s.arg(i, 3, 10, '0'_L1));
        if (!drawFrame(double(i) / count).save(file)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
