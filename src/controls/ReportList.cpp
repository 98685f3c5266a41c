#include "controls/ReportList.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QStandardItemModel>

namespace {
constexpr int kKeyRole = Qt::UserRole + 1;
}

ReportList::ReportList(QWidget* parent) : QTreeView(parent), m_model(new QStandardItemModel(this)) {
    setModel(m_model);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setIconSize(QSize(16, 16));
    header()->setStretchLastSection(true);
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(true);
    connect(header(), &QHeaderView::sectionClicked, this, &ReportList::sortByHeader);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { emit choiceChanged(selectedRow() >= 0); });
    connect(this, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.isValid()) emit rowActivated(index.row());
    });
}

void ReportList::setColumns(const QStringList& titles) { m_model->setHorizontalHeaderLabels(titles); }

void ReportList::setColumnWidthInPixels(int column, int width) { header()->resizeSection(column, width); }

int ReportList::addRow(const QStringList& cells, const QIcon& icon, int key) {
    QList<QStandardItem*> items;
    for (const QString& cell : cells) items << new QStandardItem(cell);
    if (!items.isEmpty()) {
        if (!icon.isNull()) items.front()->setIcon(icon);
        items.front()->setData(key, kKeyRole);
    }
    m_model->appendRow(items);
    return m_model->rowCount() - 1;
}

void ReportList::removeRow(int row) { m_model->removeRow(row); }

void ReportList::clearRows() { m_model->removeRows(0, m_model->rowCount()); }

int ReportList::rowCount() const { return m_model->rowCount(); }

QString ReportList::cellText(int row, int column) const {
    const QStandardItem* item = m_model->item(row, column);
    return item != nullptr ? item->text() : QString();
}

void ReportList::setCellText(int row, int column, const QString& text) {
    if (QStandardItem* item = m_model->item(row, column)) item->setText(text);
}

int ReportList::rowKey(int row) const {
    const QStandardItem* item = m_model->item(row, 0);
    return item != nullptr ? item->data(kKeyRole).toInt() : 0;
}

int ReportList::selectedRow() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.front().row();
}

void ReportList::selectRow(int row) {
    if (row < 0 || row >= rowCount()) {
        selectionModel()->clearSelection();
        return;
    }
    const QModelIndex index = m_model->index(row, 0);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(index);
}

int ReportList::findPrefix(int column, const QString& prefix) const {
    for (int row = 0; row < rowCount(); ++row) {
        if (cellText(row, column).startsWith(prefix, Qt::CaseInsensitive)) return row;
    }
    return -1;
}

void ReportList::keyPressEvent(QKeyEvent* event) {
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && selectedRow() >= 0) {
        emit rowActivated(selectedRow());
        return;
    }
    QTreeView::keyPressEvent(event);
}

void ReportList::sortByHeader(int column) {
    if (!m_sortable) return;
    m_sortOrder =
        (column == m_sortColumn && m_sortOrder == Qt::AscendingOrder) ? Qt::DescendingOrder : Qt::AscendingOrder;
    m_sortColumn = column;
    header()->setSortIndicatorShown(true);
    header()->setSortIndicator(column, m_sortOrder);
    const int chosen = selectedRow();
    const int key = chosen >= 0 ? rowKey(chosen) : 0;
    const QString firstCell = chosen >= 0 ? cellText(chosen, 0) : QString();
    m_model->sort(column, m_sortOrder);
    // The chosen row stays chosen and in sight after the rows move.
    if (chosen >= 0) {
        for (int row = 0; row < rowCount(); ++row) {
            if (rowKey(row) == key && cellText(row, 0) == firstCell) {
                selectRow(row);
                break;
            }
        }
    }
}
