#pragma once

#include <QImage>

#include "db/recordset.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/screens.h"
#include "forms/timer.h"
#include "screens/browse/photodecoder.h"
#include "screens/browse/photosteps.h"

namespace sarne {

/// One large photo over the whole screen. It has no buttons: where the mouse is says what a click does, and
/// the cursor shows it. It can change the photos by itself.
class frmFotoBig : public Form {
    Q_OBJECT
  public:
    explicit frmFotoBig(basSarne& sarne);

    /// Opens the viewer over the current screen on the photos of \a request. An empty list opens nothing, and
    /// the form goes again.
    void Zobraz(const PhotoRequest& request);

    int position() const { return steps_.position(); }
    bool runsSlideShow() const { return tmrPosun.isEnabled(); }
    /// The photo as it shows; null when it is missing or broken.
    const QImage& photo() const { return photo_; }
    /// Whether the next photo is decoded already.
    bool isNextReady() const;

    void goBack() override;
    void closeRequested() override { goBack(); }
    void restored() override;
    void unload() override;
    void rescale() override;

  protected:
    bool keyDown(QKeyEvent& event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paint(QPainter& painter) override;

  private:
    void clickIn(Zone zone);
    bool swipe(QPoint twips);
    void loadPhoto();
    void decode();
    void placeTitle();
    void paintBeside(QPainter& painter, const QRectF& photo) const;
    void tick();
    void setSlideShow(bool runs);
    void setZone(Zone zone);
    void loadCursor();
    QString photoFile(std::int16_t id) const;
    QSize room() const;

    PhotoSteps steps_;
    PhotoDecoder decoder_;
    Recordset recipes_;
    QImage photo_;
    Zone zone_ = Zone::None;
    bool pressed_ = false, wasPressed_ = false;
    QPoint pressedAt_;  // twips
    Label lblNazev, lblMoment;
    Timer tmrPosun;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
