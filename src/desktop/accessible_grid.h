// A grid as a screen reader sees it: a table of the rows in view, with a header.
#pragma once

#include <limits>

#include "desktop/accessible_control.h"

namespace desktop {

class AccessibleGrid final : public AccessibleControl, public QAccessibleTableInterface {
 public:
    using AccessibleControl::AccessibleControl;

    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int selectedCellCount() const override { return static_cast<int>(selectedCells().size()); }
    QList<QAccessibleInterface*> selectedCells() const override;
    QString columnDescription(int column) const override;
    /// The texts of the row, one behind the other.
    QString rowDescription(int row) const override;
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override;
    bool isColumnSelected(int /*column*/) const override { return false; }
    bool isRowSelected(int row) const override { return selectedRows().contains(row); }
    /// A click on the row.
    bool selectRow(int row) override;
    bool selectColumn(int /*column*/) override { return false; }
    bool unselectRow(int /*row*/) override { return false; }
    bool unselectColumn(int /*column*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override {}
};

/// A cell, or a title of the header. Cells are numbered line by line, the header first.
class AccessibleCell final : public AccessiblePart, public QAccessibleTableCellInterface {
 public:
    AccessibleCell(const AccessibleForm& form, const screen::Control& grid, int number)
        : AccessiblePart(form, grid), number_(number)
    {
    }

    int number() const { return number_; }

    /// False once the table has become smaller.
    bool isValid() const override;
    QAccessibleInterface* parent() const override { return form().of(control()); }
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::Role role() const override { return isTitle() ? QAccessible::ColumnHeader : QAccessible::Cell; }
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override;
    /// -1 for the header.
    int rowIndex() const override;
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

 private:
    int columnCount() const;
    bool isTitle() const { return rowIndex() < 0; }

    int number_;
};

/// The row that the grid stands on as one text. No child of the grid: it is spoken when a key leads to another row
/// while the focus stays in its field, so that the operator knows which row he deletes.
class AccessibleCurrentRow final : public AccessiblePart {
 public:
    using AccessiblePart::AccessiblePart;

    /// Its number among the parts of the grid, above those of all cells.
    static constexpr int part = std::numeric_limits<int>::max();

    QAccessibleInterface* parent() const override { return form().of(control()); }
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }
};

}  // namespace desktop
