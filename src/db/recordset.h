#pragma once

#include <QString>
#include <QVariant>
#include <memory>

namespace sarne {

/// The rows of a table or of a query, one of them current, as a DAO programmer knows them. Opened through
/// Database.
///
/// A query's rows are read when it is opened and stay as they were. A table's row is read when it becomes
/// current, by its key, so that opening and seeking take as long in a large table as in a small one.
///
/// Nothing here throws: what fails leaves the recordset as it was, or empty; a move onto a row that cannot be
/// read ends at the end. Fields are found by name, whatever its case; one that does not exist is null.
class Recordset {
  public:
    /// A closed recordset: at its end, without rows.
    Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    ~Recordset();

    bool isOpen() const;

    /// Selects the index that Seek uses. "PrimaryKey", in any case, is the table's own key; no other exists.
    void setIndex(const QString& name);
    /// Makes the row with this key current. When there is none, NoMatch() is true and the current row stays.
    void Seek(const QString& comparison, const QVariant& key);
    bool NoMatch() const;

    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    /// True when no row is current: behind the last one, before the first one, or there is none.
    bool AtEnd() const;
    /// A query's number of rows; a table's number of rows.
    qint64 RecordCount() const;

    QVariant field(const QString& name) const;

    /// Begins a change of the current row, or a new row. Only a table's rows can be changed.
    void Edit();
    void AddNew();
    /// Sets a field of the row that is being changed; ignored while none is.
    void setField(const QString& name, const QVariant& value);
    /// Stores the row; when this returns true it is on the disk. On failure the table is unchanged.
    bool Update();

    void Close();

  private:
    friend class Database;
    class Rows;
    explicit Recordset(std::unique_ptr<Rows> rows);

    std::unique_ptr<Rows> rows_;
    class QueryRows;
    class TableRows;
};

/// Whether the open table recordset \a records has a row with this key, which is current afterwards.
bool RecordExists(Recordset& records, const QVariant& key);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
