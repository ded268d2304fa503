#include "values/PieMenu.h"

#include "foundation/ShownText.h"

#include <algorithm>

PieMenu::PieMenu(const std::vector<PieRing::Slice> &slices, int row, const QString &name, QWidget *chart) : QMenu(chart)
{
    setAttribute(Qt::WA_DeleteOnClose);
    const bool has = row >= 0 && row < int(slices.size());
    const bool locked = has && slices[size_t(row)].locked;
    m_lock = addAction((locked ? tr("Unlock %1") : tr("Lock %1")).arg(ShownText::withoutMnemonics(name)).trimmed());
    m_unlockAll = addAction(tr("Unlock all"));
    addSeparator();
    m_makeEqual = addAction(tr("Make all equal"));

    const auto isLocked = [](const PieRing::Slice &slice) { return slice.locked; };
    m_lock->setEnabled(row >= 0);
    m_unlockAll->setEnabled(std::any_of(slices.cbegin(), slices.cend(), isLocked));
    m_makeEqual->setEnabled(!std::all_of(slices.cbegin(), slices.cend(), isLocked));
}
