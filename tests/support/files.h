#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace sarne::test {

/// Writes \a content as the file \a path, whose folders are made; whether it is there now.
[[nodiscard]] inline bool write(const QString& path, const QByteArray& content = {}) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// The bytes of the file \a path; none where it cannot be read.
inline QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What \a program says with \a arguments; where it fails, that it failed and why.
inline QString output(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        return program + QStringLiteral(" failed: ") + QString::fromUtf8(process.readAllStandardError());
    return QString::fromUtf8(process.readAllStandardOutput());
}

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
