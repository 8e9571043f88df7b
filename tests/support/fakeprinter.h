#pragma once

#include <QImage>
#include <QPainter>
#include <functional>
#include <memory>

#include "platform/printer.h"

namespace sarne {

/// A printer whose pages go nowhere; it counts them, and fails where it is told to.
class FakePrinter final : public Printer {
  public:
    enum class Fails { Never, Begin, NewPage, End };
    Fails fails = Fails::Never;
    bool isThere = true;
    int pages = 0;
    bool begun = false;
    QString document;
    std::function<void()> turning = [] {};  ///< called at every new page
    QString takes;                          ///< the file that it puts there as it is

    QStringList printers() const override { return {QStringLiteral("Zkušební")}; }
    PrinterChoice choice() const override { return choice_; }
    bool use(const PrinterChoice& choice) override {
        choice_ = choice;
        return isThere;
    }
    PageScale scale() const override { return {0, 0, 11400, 16300, QRect(-250, -250, 11900, 16840)}; }
    QString fileFor(const QString&) const override { return {}; }
    QPainter* begin(const QString& documentName) override {
        document = documentName;
        begun = fails != Fails::Begin;
        if (!begun) return nullptr;
        pages = 1;
        painter_ = std::make_unique<QPainter>(&sheet_);
        painter_->scale(.05, .05);
        return painter_.get();
    }
    bool putPicture(const QRect&, const QString& file) override { return file == takes; }
    bool newPage() override {
        ++pages;
        turning();
        return fails != Fails::NewPage;
    }
    PrintedDocument end(const std::function<void()>&) override {
        painter_.reset();
        begun = false;
        return {fails != Fails::End, {}};
    }

  private:
    PrinterChoice choice_{QStringLiteral("Zkušební"), Paper::A4, 1, false, true, {}, {}};
    QImage sheet_{600, 850, QImage::Format_RGB32};
    std::unique_ptr<QPainter> painter_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
