#pragma once

#include <QHash>
#include <QStringList>
#include <vector>

#include "db/connection.h"
#include "db/recordset.h"

namespace sarne {

/// What a recordset does, for a query or for a table. Functions may throw SQLite::Exception; Recordset
/// catches.
class Recordset::Rows {
  public:
    using Row = std::vector<QVariant>;

    virtual ~Rows() = default;
    virtual bool seek(const QVariant&) { return false; }
    virtual void moveFirst() = 0;
    virtual void moveLast() = 0;
    virtual void moveNext() = 0;
    virtual void movePrevious() = 0;
    virtual const Row* current() const = 0;
    virtual qint64 count() const = 0;
    virtual void edit() {}
    virtual void addNew() {}
    virtual void set(const QString&, const QVariant&) {}
    virtual bool update() { return false; }

    /// The position of a field, or -1.
    int column(const QString& name) const { return static_cast<int>(columns_.indexOf(name.toLower())); }

    bool noMatch = false;

  protected:
    void readColumns(const SQLite::Statement& statement);
    static Row readRow(const SQLite::Statement& statement);

    QStringList columns_;
};

/// A query's rows, all read when it is opened.
class Recordset::QueryRows final : public Rows {
  public:
    explicit QueryRows(SQLite::Statement& statement);
    void moveFirst() override { at_ = 0; }
    void moveLast() override { at_ = count() - 1; }
    void moveNext() override { at_ = std::min(at_ + 1, count()); }
    void movePrevious() override { at_ = std::max<qint64>(at_ - 1, -1); }
    const Row* current() const override { return at_ >= 0 && at_ < count() ? &rows_[size_t(at_)] : nullptr; }
    qint64 count() const override { return static_cast<qint64>(rows_.size()); }

  private:
    std::vector<Row> rows_;
    qint64 at_ = 0;
};

/// A table's rows in the order of its key, each read when it becomes current.
class Recordset::TableRows final : public Rows {
  public:
    TableRows(std::shared_ptr<Connection> connection, const QString& table);
    bool seek(const QVariant& key) override;
    void moveFirst() override;
    void moveLast() override;
    void moveNext() override;
    void movePrevious() override;
    const Row* current() const override { return isCurrent_ ? &row_ : nullptr; }
    qint64 count() const override;
    void edit() override;
    void addNew() override;
    void set(const QString& name, const QVariant& value) override;
    bool update() override;

  private:
    enum class Change { None, Edit, AddNew };

    bool load(const QString& condition, const QVariant& key);
    void findKey();
    QVariant key() const { return row_[size_t(keyColumn_)]; }
    void store();
    void insert();
    void overwrite();

    std::shared_ptr<Connection> connection_;
    QString table_;
    QString keyName_;
    int keyColumn_ = 0;
    Row row_;
    bool isCurrent_ = false;
    Change change_ = Change::None;
    QHash<QString, QVariant> changed_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
