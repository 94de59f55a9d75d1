#include "shell/row_model.h"

#include "shell/qt_text.h"

#include <QSize>

namespace coinlet {

bool RowModel::Mirror(const RowList& rows) {
    if (rows_ == &rows && revision_ == rows.Revision()) return false;
    beginResetModel();
    rows_ = &rows;
    revision_ = rows.Revision();
    count_ = rows.Count();
    endResetModel();
    return true;
}

void RowModel::Clear() {
    beginResetModel();
    rows_ = nullptr;
    count_ = 0;
    endResetModel();
}

int RowModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count_;
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::DecorationRole && rows_ && index.isValid() && Mark) return Mark(index.row());
    if (role == Qt::SizeHintRole && RowHeight > 0) return QSize(1, RowHeight);
    const bool text = role == Qt::DisplayRole || role == Qt::EditRole;
    if (!text || !rows_ || !index.isValid()) return {};
    return ToQString(rows_->Row(index.row()));
}

}  // namespace coinlet
