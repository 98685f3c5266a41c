// The report list: rows of text cells under a column header, one row chosen at a time and highlighted whole.
// A click on a column's header sorts the rows by the text of that column's cells, and a second click reverses
// the order. Rows are counted in the order shown.
#pragma once

#include <QIcon>
#include <QStringList>
#include <QTreeView>

class QStandardItemModel;

class ReportList : public QTreeView {
    Q_OBJECT
public:
    explicit ReportList(QWidget* parent = nullptr);

    void setColumns(const QStringList& titles);
    void setColumnWidthInPixels(int column, int width);
    // Header clicks sort the rows only when the list allows it.
    void setSortableByHeader(bool sortable) { m_sortable = sortable; }

    // Adds a row at the end and returns its index; `key` is kept with the row for the caller.
    int addRow(const QStringList& cells, const QIcon& icon = {}, int key = 0);
    void removeRow(int row);
    void clearRows();
    int rowCount() const;
    QString cellText(int row, int column) const;
    void setCellText(int row, int column, const QString& text);
    int rowKey(int row) const;

    int selectedRow() const;  // -1 when no row is chosen
    void selectRow(int row);  // chooses the row and scrolls it into view; -1 clears the choice
    // The first row from the top whose cell in `column` begins with `prefix`, capitals and small letters alike;
    // -1 when none does.
    int findPrefix(int column, const QString& prefix) const;

signals:
    void choiceChanged(bool hasChoice);
    void rowActivated(int row);  // double click, or Enter on the chosen row

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void sortByHeader(int column);

    QStandardItemModel* m_model;
    bool m_sortable = true;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};
