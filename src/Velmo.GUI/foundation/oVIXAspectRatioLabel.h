#pragma once

#include "VelmoGuiExport.h"

#include <QLabel>
#include <QPixmap>

/// Shows a picture as large as the label allows without distorting it.
///
/// The given pixmap is kept as it is, so that every new size is scaled from the source. The label can be as small as
/// one pixel.
class VELMO_GUI_EXPORT oVIXAspectRatioLabel : public QLabel
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(QPixmap pixmap MEMBER m_source WRITE setPixmap)

public:
    /// A label without a picture.
    explicit oVIXAspectRatioLabel(QWidget *parent = nullptr);
    ~oVIXAspectRatioLabel() override;

    /// Keeps @p pixmap and shows it scaled. A null pixmap empties the label.
    void setPixmap(const QPixmap &pixmap);
    /// The kept pixmap, scaled smoothly to fit the label's current size; null when there is none.
    QPixmap scaledPixmap();

    /// The height that fits the picture at this width, rounded down; without a picture, the current height.
    int heightForWidth(int width) const override;
    /// The current width and the height that fits it.
    QSize sizeHint() const override;
    /// Scales the kept picture anew.
    void resizeEvent(QResizeEvent *event) override;

private:
    QPixmap m_source;
};
