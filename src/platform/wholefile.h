#pragma once

#include <QIODevice>
#include <QSaveFile>

namespace sarne {

/// Writes a file as a whole or not at all: it appears under its name when commit() has succeeded. A write
/// that fails anywhere, and be it by a single byte, makes commit() fail, whether or not the writer noticed.
class WholeFile final : public QIODevice {
  public:
    explicit WholeFile(const QString& file) : file_(file) {
        if (file_.open(QIODevice::WriteOnly)) QIODevice::open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

    bool isSequential() const override { return true; }
    QString fileName() const { return file_.fileName(); }

    /// True when the whole file is there; false when there is nothing.
    bool commit() {
        if (failed_ || !file_.flush()) file_.cancelWriting();
        return file_.commit();
    }

  protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override {
        const qint64 written = file_.write(data, size);
        failed_ = failed_ || written != size;
        return written;
    }

  private:
    QSaveFile file_;
    bool failed_ = false;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
