#include "kitchen/cookingpages.h"

namespace sarne {
namespace {

QStringList sentences(QString text) {
    QStringList all;
    while (!text.isEmpty()) {
        all << firstSentence(text);
        text = text.mid(all.last().size()).trimmed();
    }
    return all;
}

/// Adds \a pieces to \a parts, each to the last one where both fit together.
void join(const QStringList& pieces, const std::function<bool(const QString&)>& fits,
          std::vector<QString>& parts) {
    for (const QString& piece : pieces) {
        const QString together = parts.empty() ? piece : parts.back() + u' ' + piece;
        if (!parts.empty() && fits(together))
            parts.back() = together;
        else
            parts.push_back(piece);
    }
}

}  // namespace

std::vector<QString> partsThatFit(const QString& text, const std::function<bool(const QString&)>& fits) {
    if (fits(text)) return {text};
    std::vector<QString> parts;
    for (const QString& sentence : sentences(text)) {
        std::vector<QString> inside;
        if (!fits(sentence)) join(sentence.split(u' '), fits, inside);
        if (inside.empty())
            join({sentence}, fits, parts);
        else
            parts.insert(parts.end(), inside.begin(), inside.end());
    }
    return parts;
}

std::vector<CookingPage> cookingPages(const std::vector<CookingStep>& steps,
                                      const std::function<bool(const QString&)>& fits) {
    std::vector<CookingPage> pages;
    if (steps.empty()) return pages;
    pages.push_back({CookingPage::Kind::Ready, 0, {}, 0, 1});
    for (size_t step = 0; step < steps.size(); ++step) {
        const std::vector<QString> parts = partsThatFit(steps[step].text, fits);
        for (size_t part = 0; part < parts.size(); ++part)
            pages.push_back({CookingPage::Kind::Step, static_cast<int>(step), parts[part],
                             static_cast<int>(part), static_cast<int>(parts.size())});
    }
    pages.push_back({CookingPage::Kind::Done, 0, {}, 0, 1});
    return pages;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
