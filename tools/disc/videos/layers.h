#pragma once

#include <QHash>
#include <QImage>
#include <map>
#include <tuple>

#include "cast.h"

namespace sarne::disc {

/// Pixels of a shadow for one of its picture, and how far it reaches out on each side.
constexpr double kShadowScale = 0.2;
constexpr int kShadowMargin = 15;

/// A picture made ready: in three sizes, each half as large as the one before.
struct PreparedLayer {
    QImage sizes[3];

    /// The picture to draw when a pixel of the largest becomes \a scale pixels, and its share of the largest.
    const QImage& at(double scale, double& share) const;
};

/// The pictures of a film, read when they are first asked for.
class LayerStore {
  public:
    /// \a art is the folder of the art.
    LayerStore(const Cast& cast, QString art) : cast_(cast), art_(std::move(art)) {}

    const Picture& layer(const QString& name) const;
    const PreparedLayer& prepared(const QString& name);
    /// The soft shadow of what a picture has between two columns.
    const QImage& shadow(const QString& name, int left, int right);

  private:
    const Cast& cast_;
    QString art_;
    QHash<QString, PreparedLayer> prepared_;
    std::map<std::tuple<QString, int, int>, QImage> shadows_;
};

/// \a picture made soft: every pixel the mean of its neighbours, three times.
QImage blurred(QImage picture, int radius);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
