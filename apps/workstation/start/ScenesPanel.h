#pragma once

#include "start/ScenePreview.h"

#include <VelmoProjectScenesWidget.h>

#include <QTimer>

class QImage;

/// The panel of a project's scenes with a preview that is drawn from the
/// scene's file. A scene is selected, but not chosen for anything: its rows
/// have no toggles.
class ScenesPanel : public VelmoProjectScenesWidget
{
    Q_OBJECT

public:
    explicit ScenesPanel(QWidget *parent = nullptr);

    /// Shows what the scene file holds as soon as it has been read, and that
    /// there is no preview when there is none or when @p path is empty.
    void showPreviewOf(const QString &path);
    /// Whether the preview is still to come.
    bool isDrawing() const;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void draw();
    void showPicture(const QImage &picture);

    QWidget *m_place;
    QString m_path;
    /// Until then, the preview of the scene before stays: most are there at once.
    QTimer m_late;
    QTimer m_resized;
    ScenePreview m_preview;
};
