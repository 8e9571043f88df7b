#include "db/recordset.h"

#include <exception>

#include "db/recordset_rows.h"

namespace sarne {
namespace {

/// Runs \a step; what it throws ends here.
template <typename Step>
bool attempt(Step&& step) noexcept {
    try {
        step();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace

Recordset::Recordset() = default;
Recordset::Recordset(std::unique_ptr<Rows> rows) : rows_(std::move(rows)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

bool Recordset::isOpen() const {
    return rows_ != nullptr;
}

void Recordset::setIndex(const QString&) {
    // Every table has one index to seek on: its own key.
}

void Recordset::Seek(const QString& comparison, const QVariant& key) {
    if (!rows_) return;
    rows_->noMatch = true;
    if (comparison == u"=") attempt([&] { rows_->noMatch = !rows_->seek(key); });
}

bool Recordset::NoMatch() const {
    return !rows_ || rows_->noMatch;
}

void Recordset::MoveFirst() {
    if (rows_) attempt([&] { rows_->moveFirst(); });
}

void Recordset::MoveLast() {
    if (rows_) attempt([&] { rows_->moveLast(); });
}

void Recordset::MoveNext() {
    if (rows_) attempt([&] { rows_->moveNext(); });
}

void Recordset::MovePrevious() {
    if (rows_) attempt([&] { rows_->movePrevious(); });
}

bool Recordset::AtEnd() const {
    return !rows_ || !rows_->current();
}

qint64 Recordset::RecordCount() const {
    qint64 count = 0;
    if (rows_) attempt([&] { count = rows_->count(); });
    return count;
}

QVariant Recordset::field(const QString& name) const {
    if (AtEnd()) return {};
    const int column = rows_->column(name);
    return column < 0 ? QVariant() : (*rows_->current())[size_t(column)];
}

void Recordset::Edit() {
    if (rows_) rows_->edit();
}

void Recordset::AddNew() {
    if (rows_) rows_->addNew();
}

void Recordset::setField(const QString& name, const QVariant& value) {
    if (rows_) rows_->set(name, value);
}

bool Recordset::Update() {
    bool stored = false;
    if (rows_) attempt([&] { stored = rows_->update(); });
    return stored;
}

void Recordset::Close() {
    rows_.reset();
}

bool RecordExists(Recordset& records, const QVariant& key) {
    records.setIndex(QStringLiteral("primarykey"));
    records.Seek(QStringLiteral("="), key);
    return !records.NoMatch();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
