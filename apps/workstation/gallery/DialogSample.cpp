#include "gallery/DialogSample.h"

#include "gallery/GalleryPage.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

QWidget *createDialogSample(const QPixmap &picture, const QString &caption, const std::function<void()> &open)
{
    auto *sample = new QWidget;
    auto *layout = new QVBoxLayout(sample);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    auto *label = new QLabel;
    label->setPixmap(picture);
    layout->addWidget(createPlate(label, Qt::black, 8));
    auto *button = new QPushButton(QCoreApplication::translate("DialogSample", "Open"));
    button->setAccessibleName(QCoreApplication::translate("DialogSample", "Open: %1").arg(caption));
    QObject::connect(button, &QPushButton::clicked, sample, open);
    layout->addWidget(button, 0, Qt::AlignCenter);
    layout->addStretch();
    return sample;
}
