#include "values/PieModel.h"

#include "values/PieShares.h"

#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QPersistentModelIndex>
#include <QPointer>

#include <algorithm>

namespace {

float shareOf(const QModelIndex &index)
{
    return PieShares::plausible(index.data(Qt::EditRole).toFloat());
}

bool lockedOf(const QModelIndex &index)
{
    return index.data(PieModel::LockedRole).toBool();
}

/// The rows that a model has, followed wherever it moves them. Keeping all of them followed all the time would cost as
/// much as writing them, so that begins only when the model announces a change.
class Rows
{
public:
    explicit Rows(QAbstractItemModel *model) : m_model(model)
    {
        const int rows = PieModel::count(model);
        m_indexes.reserve(size_t(rows));
        for (int row = 0; row < rows; ++row)
            m_indexes.push_back(model->index(row, 0));
        if (!model)
            return;
        const auto follow = [this] {
            if (m_followed.empty())
                m_followed.assign(m_indexes.cbegin(), m_indexes.cend());
        };
        QObject::connect(model, &QAbstractItemModel::rowsAboutToBeInserted, &m_context, follow);
        QObject::connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, &m_context, follow);
        QObject::connect(model, &QAbstractItemModel::rowsAboutToBeMoved, &m_context, follow);
        QObject::connect(model, &QAbstractItemModel::columnsAboutToBeInserted, &m_context, follow);
        QObject::connect(model, &QAbstractItemModel::columnsAboutToBeRemoved, &m_context, follow);
        QObject::connect(model, &QAbstractItemModel::columnsAboutToBeMoved, &m_context, follow);
        QObject::connect(model, &QAbstractItemModel::layoutAboutToBeChanged, &m_context, follow);
        QObject::connect(model, &QAbstractItemModel::modelAboutToBeReset, &m_context, follow);
    }

    size_t size() const { return m_indexes.size(); }
    bool haveChanged() const { return !m_model || !m_followed.empty(); }
    /// Invalid for a row that is gone.
    QModelIndex operator[](size_t row) const
    {
        if (!m_model)
            return {};
        return m_followed.empty() ? m_indexes[row] : QModelIndex(m_followed[row]);
    }

    void write(size_t row, float share)
    {
        const QModelIndex index = (*this)[row];
        if (index.isValid())
            m_model->setData(index, share, Qt::EditRole);
    }

private:
    QPointer<QAbstractItemModel> m_model;
    std::vector<QModelIndex> m_indexes;
    std::vector<QPersistentModelIndex> m_followed;
    QObject m_context;
};

/// What the rows but one hold now, those that have come meanwhile too.
float sumWithout(const Rows &rows, size_t selected)
{
    float sum = 0.0F;
    if (!rows.haveChanged()) {
        for (size_t row = 0; row < rows.size(); ++row) {
            if (row != selected)
                sum += shareOf(rows[row]);
        }
        return sum;
    }
    const QModelIndex index = rows[selected];
    const int count = PieModel::count(index.model());
    for (int row = 0; row < count; ++row) {
        if (row != index.row())
            sum += PieModel::share(index.model(), row);
    }
    return sum;
}

/// Writes the shares that differ from those before.
void write(Rows &rows, const std::vector<size_t> &written, const std::vector<float> &before,
           const std::vector<float> &shares)
{
    for (size_t i = 0; i < written.size(); ++i) {
        if (shares[i] != before[i])
            rows.write(written[i], shares[i]);
    }
}

} // namespace

int PieModel::count(const QAbstractItemModel *model)
{
    return model ? model->rowCount() : 0;
}

bool PieModel::has(const QAbstractItemModel *model, int row)
{
    return row >= 0 && row < count(model);
}

float PieModel::share(const QAbstractItemModel *model, int row)
{
    return has(model, row) ? shareOf(model->index(row, 0)) : 0.0F;
}

bool PieModel::isLocked(const QAbstractItemModel *model, int row)
{
    return has(model, row) && lockedOf(model->index(row, 0));
}

std::vector<PieRing::Slice> PieModel::slices(const QAbstractItemModel *model)
{
    const int rows = count(model);
    std::vector<PieRing::Slice> slices;
    slices.reserve(size_t(rows));
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = model->index(row, 0);
        slices.push_back({shareOf(index), lockedOf(index)});
    }
    return slices;
}

QString PieModel::name(const QAbstractItemModel *model, int row)
{
    if (!has(model, row))
        return {};
    QString said = model->index(row, 0).data(Qt::AccessibleTextRole).toString();
    if (!said.isEmpty())
        return said;
    // A header that nobody has set counts the rows.
    const QVariant header = model->headerData(row, Qt::Vertical);
    if (header.typeId() == QMetaType::QString && !header.toString().isEmpty())
        return header.toString();
    return QCoreApplication::translate("oVIXPieChartWidget", "Slice %1").arg(row + 1);
}

std::optional<float> PieModel::redistribute(QAbstractItemModel *model, int row, float amount)
{
    if (!has(model, row))
        return {};
    Rows rows(model);
    const auto selected = size_t(row);
    std::vector<size_t> others;
    std::vector<float> before;
    others.reserve(rows.size());
    before.reserve(rows.size());
    for (size_t other = 0; other < rows.size(); ++other) {
        if (other == selected || lockedOf(rows[other]))
            continue;
        others.push_back(other);
        before.push_back(shareOf(rows[other]));
    }
    std::vector<float> shares = before;
    PieShares::take(amount, shares);
    write(rows, others, before, shares);

    if (rows[selected].isValid())
        rows.write(selected, PieShares::remainder(sumWithout(rows, selected)));
    const QModelIndex result = rows[selected];
    return result.isValid() ? std::optional(shareOf(result)) : std::nullopt;
}

bool PieModel::makeEqual(QAbstractItemModel *model)
{
    Rows rows(model);
    std::vector<size_t> unlocked;
    std::vector<float> before;
    float sumOfLocked = 0.0F;
    for (size_t row = 0; row < rows.size(); ++row) {
        const float share = shareOf(rows[row]);
        if (lockedOf(rows[row])) {
            sumOfLocked += share;
        } else {
            unlocked.push_back(row);
            before.push_back(share);
        }
    }
    const float part = PieShares::equalPart(sumOfLocked, int(unlocked.size()));
    write(rows, unlocked, before, std::vector<float>(unlocked.size(), part));
    return !unlocked.empty();
}

bool PieModel::setLocked(QAbstractItemModel *model, int row, bool locked)
{
    return has(model, row) && model->setData(model->index(row, 0), locked, LockedRole);
}

bool PieModel::unlockAll(QAbstractItemModel *model)
{
    const QPointer<QAbstractItemModel> alive(model);
    std::vector<QPersistentModelIndex> locked;
    const int rows = count(model);
    for (int row = 0; row < rows; ++row) {
        if (isLocked(model, row))
            locked.emplace_back(model->index(row, 0));
    }
    bool unlocked = false;
    for (const QPersistentModelIndex &index : locked) {
        if (alive && index.isValid())
            unlocked = model->setData(index, false, LockedRole) || unlocked;
    }
    return unlocked;
}
