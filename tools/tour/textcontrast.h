#pragma once

#include <QColor>
#include <QImage>
#include <QPaintDevice>
#include <QRect>
#include <QString>
#include <memory>
#include <vector>

class QWidget;

namespace sarne {

/// How well a piece of text can be told from the ground that it was painted on.
struct TextContrast {
    QString text;
    QRect place;         ///< pixels of the picture
    QColor ink, ground;  ///< the ground where the contrast is taken
    double contrast;     ///< 1 (none) to 21 (black on white)
    bool isWhole;        ///< all of it lies where its widget can be seen
};

/// The contrast of two colours by their relative luminances, as web pages are judged by.
double contrastRatio(const QColor& one, const QColor& other);

/// Paints \a widget as its user sees it and gives the contrast of every text painted meanwhile, taken where
/// one twentieth of the ground within the text's place is worse. A text painted twice at nearly the same
/// place is a shadow and its text: only the last counts. Texts that something else covers do not count.
std::vector<TextContrast> textContrasts(QWidget& widget);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
