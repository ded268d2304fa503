#pragma once

#include "VelmoGuiExport.h"

#include <QPair>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QWidget>

#include <memory>

class PieControls;
class PieRingView;
class QAbstractItemModel;

namespace PieRing {
enum class Edge;
struct Arc;
} // namespace PieRing

/// Edits how a hundred percent are shared among the rows of a model.
///
/// Each row is a slice of a ring, 50 to 100 logical pixels round the middle of the widget. One slice at a time is
/// selected, by a click or from outside; its share can be typed in the box inside the ring or dragged at its edges, and
/// is taken from, or given to, the other slices that are not locked, none of which falls below 1 percent. A context
/// menu locks and unlocks slices and makes those that are not locked equal. With a focus policy set, the arrow keys
/// select the slice before or after, and Space and Return lock and unlock it.
///
/// The shares live in the model, which is not owned: row r of column 0 is slice r, `Qt::EditRole` its share in percent
/// (float, read and written), `Qt::UserRole + 1` whether it is locked (bool). Its name is `Qt::AccessibleTextRole`,
/// else the text of the vertical header, else "Slice" and its number. The model may change at any time; what it refuses
/// to store stays as it is. A share that is not a number counts as 0. Shares that make less than a hundred percent
/// leave a gap in the ring; those that make more, as the floor may, are shrunk to it. Assistive tools see a chart of
/// list items with name and share; pressing one selects the slice, toggling locks it.
///
/// The widget may be deleted from its signals and from those of the model; while the user edits the box, with
/// `deleteLater`.
class VELMO_GUI_EXPORT oVIXPieChartWidget : public QWidget
{
    Q_OBJECT

public:
    /// An empty ring.
    explicit oVIXPieChartWidget(QWidget *parent = nullptr);
    ~oVIXPieChartWidget() override;

    /// No slice is selected afterwards. Null shows an empty ring; the model that is shown already changes nothing.
    void setModel(QAbstractItemModel *model);
    /// The model that is shown; null without one, and once it is gone.
    QAbstractItemModel *model() const;

    /// With room for percentages beside narrow slices. The minimum size is the ring's.
    QSize sizeHint() const override;

signals:
    /// A drag begins; with its first step.
    void valueStarted();
    /// The share of the selected slice after a step of an edit, when the model has all of it.
    void valueChanged(double value);
    /// An edit is complete: typed and confirmed, an arrow clicked, the wheel turned, a drag released, slices made
    /// equal.
    void valueFinished();
    /// Another slice is selected, or the same one once more, or its row has moved; -1 for none.
    void indexChanged(int index);
    /// Slices have been locked or unlocked here.
    void lockedChanged();

public slots:
    /// Selects a slice; a negative row selects none, one that the model does not have is ignored.
    void onSelectionChanged(int index);
    /// Gives the selected slice this share and redistributes the rest. Nothing when the slice is locked or has that
    /// share, or while a redistribution is under way. Values outside 0 to 100 are taken for the nearest.
    void onSpinboxValueChanged(double value);
    /// Locks or unlocks the selected slice, as the lock button is checked.
    void onLockButtonClicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    friend class AccessiblePieChart;

    /// Distance and angle (sixteenths of a degree, clockwise from nine o'clock).
    QPair<double, int> calculateMousePosFromPieCenter(const QPoint &point) const;
    /// The ring as the model has it now; painting and hit tests both use it.
    PieRingView &ring() const;
    /// Null where there is no such slice.
    const PieRing::Arc *arcOf(int row) const;
    int sliceAt(const QPoint &point) const;
    QString sliceText(int row) const;

    void modelDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight);
    void modelRowsChanged();
    void followSelection();
    void markRingStale();

    double selectedShare() const;
    void showSelection();
    void updateLock();

    void lockSlice(int row, bool locked);
    void unlockAll();
    void endLocking(bool done);
    void makeEqual();
    void showMenu(int row, const QPoint &globalPlace);

    void updateHover(const QPoint &point);
    void setHover(int slice, PieRing::Edge edge);
    void dragTo(int angle);
    void endDrag();
    void endEdit();

    QPointer<QAbstractItemModel> m_model;
    std::unique_ptr<PieControls> m_controls;
    QPersistentModelIndex m_current;
    int m_currentIndex = -1;
    std::unique_ptr<PieRingView> m_ring;
    bool m_redistributing = false; // the model is written from here
};
