#pragma once

#include "controls/list_box.h"

#include <QAbstractListModel>

#include <cstdint>
#include <functional>

namespace coinlet {

/// The rows of a list as the toolkit asks for them; it shows them in place, without a copy.
class RowModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    /// What stands before the text of a row; empty: nothing.
    std::function<QVariant(int row)> Mark;

    /// How high a row is; 0: as high as its letters need.
    int RowHeight = 0;

    /// Tells whoever shows the rows if they have changed since the last call; true if so.
    bool Mirror(const RowList& rows);
    /// The list is gone: no rows.
    void Clear();

    int rowCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    const RowList* rows_ = nullptr;
    std::uint64_t revision_ = 0;
    int count_ = 0;
};

}  // namespace coinlet
