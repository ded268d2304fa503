#pragma once

#include "values/PieRing.h"

#include <QString>
#include <Qt>

#include <optional>
#include <vector>

class QAbstractItemModel;

/// The slices of a pie chart as a model holds them: row r of column 0 is slice r.
///
/// What is written may lead to anything: the model may answer by moving or removing rows, and it may refuse. Rows are
/// followed while they are written, and what counts afterwards is what the model says then.
namespace PieModel {

/// Besides `Qt::EditRole`, the share.
inline constexpr int LockedRole = Qt::UserRole + 1;

/// A null model has none.
int count(const QAbstractItemModel *model);
bool has(const QAbstractItemModel *model, int row);
/// The share that can be reckoned with: 0 for what is not a number.
float share(const QAbstractItemModel *model, int row);
bool isLocked(const QAbstractItemModel *model, int row);
std::vector<PieRing::Slice> slices(const QAbstractItemModel *model);
/// The accessible text of the item, else the text of the vertical header, else "Slice 3".
QString name(const QAbstractItemModel *model, int row);

/// Takes @p amount from the other slices that are not locked, and gives @p row what all others leave. Its share then;
/// none when the row or the model is gone.
std::optional<float> redistribute(QAbstractItemModel *model, int row, float amount);
/// Divides what the locked slices leave equally among the rest. Whether there is a rest.
bool makeEqual(QAbstractItemModel *model);

/// Whether the model has taken it.
bool setLocked(QAbstractItemModel *model, int row, bool locked);
/// Whether the model has unlocked one.
bool unlockAll(QAbstractItemModel *model);

} // namespace PieModel
