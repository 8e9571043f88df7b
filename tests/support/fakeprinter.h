#pragma once

#include <QImage>
#include <QPainter>
#include <memory>

#include "platform/printer.h"

namespace sarne {

/// A printer whose pages go nowhere; it counts them.
class FakePrinter final : public Printer {
  public:
    int pages = 0;
    QString document;

    QString name() const override { return QStringLiteral("Zkušební"); }
    QString paper() const override { return QStringLiteral("A4"); }
    PageScale scale() const override { return {0, 0, 11400, 16300, QRect(-250, -250, 11900, 16840)}; }
    QString fileFor(const QString&) const override { return {}; }
    bool choose(QWidget*) override { return true; }
    QPainter* begin(const QString&, const QString& documentName) override {
        document = documentName;
        pages = 1;
        painter_ = std::make_unique<QPainter>(&sheet_);
        painter_->scale(.05, .05);
        return painter_.get();
    }
    bool newPage() override {
        ++pages;
        return true;
    }
    PrintedDocument end() override {
        painter_.reset();
        return {true, {}};
    }

  private:
    QImage sheet_{600, 850, QImage::Format_RGB32};
    std::unique_ptr<QPainter> painter_;
};

}  // namespace sarne
