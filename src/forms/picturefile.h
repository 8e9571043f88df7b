#pragma once

#include <QByteArray>
#include <QFile>
#include <QSize>

namespace sarne {

/// A picture's file, or its bytes, under a name that ends in the picture's format, which it has found out
/// itself. The toolkit finds a decoder by the name of a file; for a device without one, and for a format that
/// it is told, it asks every decoder of this machine in turn, and loads them all for that.
class PictureFile final : public QFile {
  public:
    /// \a file is a native path or a resource path.
    explicit PictureFile(const QString& file);
    explicit PictureFile(QByteArray encoded);
    ~PictureFile() override;

    /// Opens it for reading, and finds out what it is. False when there is nothing to read.
    bool begin();
    /// In the toolkit's words; empty when it is none that a disc holds.
    const QByteArray& format() const { return format_; }
    /// The picture's size where the first bytes of its format tell it: no decoder is needed. Else invalid.
    QSize pixels() const { return pixels_; }

    QString fileName() const override;
    void close() override;
    bool isSequential() const override { return false; }
    qint64 size() const override;
    bool seek(qint64 place) override;
    bool atEnd() const override;

  protected:
    qint64 readData(char* data, qint64 wanted) override;
    qint64 readLineData(char* data, qint64 wanted) override;

  private:
    bool isFile() const { return encoded_.isNull(); }

    QByteArray encoded_, format_;
    QSize pixels_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
