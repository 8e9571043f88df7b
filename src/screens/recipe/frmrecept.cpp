#include "screens/recipe/frmrecept.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>

#include "core/texts.h"
#include "db/database.h"
#include "dialogs/frmdialog.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/followlink.h"
#include "forms/keys.h"
#include "forms/readaloud.h"
#include "forms/resources.h"
#include "forms/screens.h"
#include "platform/effectplayer.h"
#include "richtext/wordwrap.h"
#include "screens/recipe/collectedtext.h"
#include "screens/recipe/sectiontable.h"

namespace sarne {
namespace {

/// Points. Titles have the first size; a smaller one is for those that the header does not hold otherwise.
constexpr double kTitleSizes[] = {20, 16, 13};
constexpr int kLongestTitle = 400;  // characters: more than the header holds in the smallest size

constexpr BarFace kBar[] = {barface::kPrint, barface::kHelp, barface::kBack, barface::kEnd, barface::kMusic};

constexpr BarFace kKitchen[] = {{"Varime", QT_TRANSLATE_NOOP("Texts", "Vaříme"),
                                 QT_TRANSLATE_NOOP("Texts", "Vaříme krok za krokem (F2)")},
                                {"Nakup", QT_TRANSLATE_NOOP("Texts", "Na seznam"),
                                 QT_TRANSLATE_NOOP("Texts", "Dát suroviny na nákupní seznam (F3)")}};
enum KitchenButton { kCook, kBuy };

std::vector<BarFace> sectionFaces() {
    std::vector<BarFace> faces;
    for (const SectionKind& kind : sectionKinds()) faces.push_back(kind.face);
    return faces;
}

}  // namespace

frmRecept::frmRecept(basSarne& sarne, Serving& lookedAt, AskNumber ask)
    : Form(sarne, QStringLiteral("frmRecept")),
      title_(new Label(*this, QStringLiteral("lblNazev"))),
      stars_(new StarRow(*this, QStringLiteral("picHvezdy"))),
      imgBtn(*this, QStringLiteral("imgBtn"), sectionFaces(), [this](int index) { openSection(index); }),
      imgBtnHlavni(*this, QStringLiteral("imgBtnHlavni"), kBar, [this](int) { print(); }),
      imgKuchyne(*this, QStringLiteral("imgKuchyne"), kKitchen, [this](int index) { kitchenClick(index); }),
      view_(new TextView(*this, QStringLiteral("picRecept"))),
      picture_(new PictureBox(*this, QStringLiteral("picVedle"))) {
    if (!ask) ask = [&sarne](const QString& prompt) { return askNumber(sarne, prompt); };
    setAttribute(Qt::WA_OpaquePaintEvent);  // what lies below need not be painted
    recipe_.units = lookedAt.units;
    title_->place(recipelayout::kTitle);
    title_->setAlignment(Qt::AlignCenter);
    title_->setColor(colors::kTitle);
    stars_->place(recipelayout::kStars);
    connect(stars_, &StarRow::given, this, [this](int stars) {
        app().screens().giveStars(recipe_.id, stars);
        app().HookMessage(stars_->accessibleValue());
    });
    makeView();
    makeSections(lookedAt, std::move(ask));
    imgBtnHlavni.placeRow(recipelayout::kBar);
    imgKuchyne.placeRow(recipelayout::kKitchen);
    ring().setGroups(stops());
}

void frmRecept::makeView() {
    view_->place(recipelayout::kView);
    view_->setSheet(recipelayout::kPaper);
    view_->setArrowPictures(app().resources().picture(QStringLiteral("SipkaNahoru")),
                            app().resources().picture(QStringLiteral("SipkaDolu")));
    connect(view_, &TextView::linkActivated, this, [this](LinkKey key) { followLink(app(), key); });
    connect(view_, &Control::clicked, this, [this] { current().viewClicked(); });
    picture_->setAttribute(Qt::WA_TransparentForMouseEvents);
    picture_->setUnheard(true);
    picture_->hide();
}

void frmRecept::makeSections(Serving& lookedAt, AskNumber ask) {
    const SectionRoom room{*this,   app(),    *view_,         *picture_,
                           recipe_, lookedAt, std::move(ask), [this] { imgBtn[section_].setFocus(); }};
    for (const SectionKind& kind : sectionKinds()) {
        placeSection(static_cast<int>(sections_.size()));
        sections_.push_back(kind.make(room));
    }
}

void frmRecept::placeSection(int index) {
    Button& button = imgBtn[index];
    button.setCaptionPlace(Button::CaptionPlace::Over);
    button.place(recipelayout::section(index));
    auto* name = new Label(*this, QStringLiteral("lblIkona(%1)").arg(index));
    name->place(recipelayout::sectionName(index));
    name->setText(button.accessibleName());
    button.setToolTip({});  // a plate would say what stands beside it, and cover the next section
    name->setFont({QStringLiteral("Arial"), 11, true});
    name->setColor(colors::kTitle);
    name->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    name->setWordWrap(true);
    name->setClickable(true);
    name->setUnheard(true);
    name->setCursor(Qt::PointingHandCursor);
    connect(name, &Label::clicked, &button, &Button::click);
}

void frmRecept::Zobraz(std::int16_t id) {
    loadRecipe(id);
    if (!app().FormStack.contains(*this)) app().PushScreen(*this);
    showForm();
    app().HookMessage(accessibleName());
    if (current().leave()) section_ = 0;
    showSection();
    app().keepAwake(QStringLiteral("Na obrazovce je recept"));
    playName();
}

void frmRecept::loadRecipe(std::int16_t id) {
    recipe_.id = id;
    recipe_.row = app().Db().OpenTable(QStringLiteral("Recepty"));
    recipe_.row.setIndex(QStringLiteral("primarykey"));
    recipe_.row.Seek(QStringLiteral("="), id);
    if (recipe_.row.NoMatch()) recipe_.row.Close();
    ground_ = Room::covering(app().mediaPicture(QStringLiteral("foto\\Podklad\\r%1.bmp").arg(id)));
    if (ground_.isNull()) ground_ = app().Pictures.recept;
    recipe_.photo = app().mediaPicture(QStringLiteral("foto\\Velke\\r%1.bmp").arg(id));
    recipe_.portions = Portions(recipe_.row.field(QStringLiteral("Porce")).toInt());
    for (const auto& section : sections_) section->recipeChanged();
    const bool canCook = app().screens().canCook(id);
    for (int button = 0; button < imgKuchyne.count(); ++button) imgKuchyne[button].setVisible(canCook);
    showStars();
    showTitle();
}

void frmRecept::showStars() {
    const int stars = app().screens().starsOf(recipe_.id);
    stars_->setVisible(stars >= 0);
    stars_->setStars(stars);
}

void frmRecept::showTitle() {
    const QString title = recipe_.field("DlouhyNazev").left(kLongestTitle);
    TextFont font{QStringLiteral("Times New Roman"), 0, true};
    QStringList lines;
    for (double size : kTitleSizes) {
        font.size = size;
        lines = wrapAtBlanks(title, recipelayout::kTitle.width(),
                             [&](QStringView text) { return Label::measure(text.toString(), font).width(); });
        if (Label::measure(lines.join(u'\n'), font).height() <= recipelayout::kTitle.height()) break;
    }
    title_->setFont(font);
    title_->setText(lines.join(u'\n'));
    title_->setAccessibleName(title);
    setAccessibleName(title);
}

void frmRecept::playName() {
    if (!app().SoundFlags[kSpokenNames] && !app().ShowMode) return;
    QFile file(app().mediaFile(QStringLiteral("zvuky\\č%1.wav").arg(recipe_.id)));
    if (!file.open(QIODevice::ReadOnly)) return;
    app().EffectWave = file.readAll();
    app().effects().play(app().EffectWave);
    app().readAloud().duck().speaking(app().EffectWave);
}

void frmRecept::openSection(int section) {
    if (section < 0 || section >= static_cast<int>(sections_.size()) || !current().leave()) return;
    section_ = section;
    showSection();
    if (!QAccessible::isActive()) return;
    // Who hears the recipe reads on at once, by the reader's keys; the view says which section it is.
    if (current().stops().empty()) return ring().focus(*view_);
    if (view_->isVisible()) app().HookMessage(view_->accessibleName());
}

void frmRecept::showSection() {
    for (size_t index = 0; index < sections_.size(); ++index) {
        const bool shown = index == size_t(section_);
        imgBtn[static_cast<int>(index)].setLatched(shown);
        sections_[index]->setVisible(shown);
    }
    picture_->hide();
    view_->Cls();
    view_->setVisible(true);
    const QString section = sectionKinds()[size_t(section_)].title();
    view_->setAccessibleName(section_ == 0 ? Texts::tr("Fotografie: %1").arg(accessibleName()) : section);
    view_->place(current().viewPlace());
    imgBtn[section_].setFocus();
    current().draw();
    update();
}

/// The section is drawn anew; the note's editor follows by itself and keeps what is typed.
void frmRecept::eyesChanged() {
    if (!isVisible() || !view_->isVisible()) return;
    const QPointer<TwipWidget> at = ring().current();
    showSection();
    if (at) ring().focus(*at);
}

void frmRecept::Skryj() {
    if (!current().leave()) return;
    recipe_.row.Close();
    app().keepAwake({});
    app().PopScreen(*this);
}

void frmRecept::unload() {
    if (isLoaded()) {
        app().readAloud().duck().release();
        if (!app().Ending) current().abandon();
        app().keepAwake({});
    }
    Form::unload();
}

void frmRecept::restored() {
    app().keepAwake(QStringLiteral("Na obrazovce je recept"));
    recipe_.row.Seek(QStringLiteral("="), recipe_.id);  // a screen above may have changed it
    current().shownAgain();
    showStars();
    Form::restored();
}

void frmRecept::help() {
    app().screens().showPage(QStringLiteral("300"));
}

void frmRecept::keepUnsaved() {
    for (const auto& section : sections_) section->keepUnsaved();
}

bool frmRecept::readyToEnd() {
    return current().readyToEnd();
}

void frmRecept::print() {
    current().beforePrint();
    app().screens().printRecipes({recipe_.id}, recipe_.serving());
}

void frmRecept::kitchenClick(int button) {
    if (button == kBuy) return app().screens().addToShoppingList({recipe_.id}, recipe_.serving());
    current().beforePrint();
    app().screens().cookRecipe(recipe_.id, recipe_.serving());
}

bool frmRecept::kitchenKey(const QKeyEvent& event) {
    const bool cook = event.key() == Qt::Key_F2, buy = event.key() == Qt::Key_F3;
    if ((!cook && !buy) || event.modifiers() != Qt::NoModifier || imgKuchyne[kCook].isHidden()) return false;
    kitchenClick(cook ? kCook : kBuy);
    return true;
}

QString frmRecept::collectedText() {
    return sarne::collectedText(app().Db(), recipe_.row, recipe_.id, recipe_.units,
                                recipe_.portions.quantities(app().Locale));
}

/// Tab stops at the section buttons, at what belongs to the section, at the bar. Within each the arrows move.
std::vector<FocusGroup> frmRecept::stops() const {
    std::vector<FocusGroup> stops{FocusGroup(imgBtn.stops(), &imgBtn[section_])};
    const std::vector<FocusGroup> own = current().stops();
    stops.insert(stops.end(), own.begin(), own.end());
    const bool toRead =
        QAccessible::isActive() || view_->pieces().linkCount() > 0 || view_->scrollRange() > 0;
    if (toRead || current().opensView()) stops.emplace_back(std::array{view_});
    stops.emplace_back(imgKuchyne.stops());
    stops.emplace_back(imgBtnHlavni.stops());
    stops.emplace_back(std::array{stars_});
    return stops;
}

bool frmRecept::keyDown(QKeyEvent& event) {
    if (event.matches(QKeySequence::Copy)) {
        QGuiApplication::clipboard()->setText(collectedText());
        return true;
    }
    if (kitchenKey(event) || viewKey(event)) return true;
    if (ring().isAt(stars_) && stars_->keyDown(event)) return true;
    ring().setGroups(stops());
    const auto direction = arrowDirection(event.key());
    const bool used = direction ? arrow(*direction) : Form::keyDown(event);
    if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) sayNothingHere();
    return used;
}

/// The Page keys scroll the text from wherever the keyboard is.
bool frmRecept::viewKey(const QKeyEvent& event) {
    if (!ring().isAt(view_)) return view_->pageKey(event);
    if (view_->keyDown(event)) return true;
    const bool press = isEnter(event) || event.key() == Qt::Key_Space;
    if (press) view_->click();
    return press;
}

bool frmRecept::arrow(Direction direction) {
    const bool sideways = direction == Direction::Left || direction == Direction::Right;
    const int way = direction == Direction::Right || direction == Direction::Down ? 1 : -1;
    const TwipWidget* at = ring().current();
    if (!sideways && ring().isAt(view_)) return false;  // the text is at its end: on to what comes next
    if (!sideways && leavesSections(at, way)) return true;
    if (sideways && (imgBtnHlavni.indexOf(at) || imgKuchyne.indexOf(at)))
        ring().stepWithin(way);
    else if (!current().step(sideways, way))
        stepSections(way);
    return true;
}

/// Below the last section are the stove and the shop, and below those the bar; up leads back.
bool frmRecept::leavesSections(const TwipWidget* at, int way) {
    const bool inKitchen = imgKuchyne.indexOf(at).has_value(), inBar = imgBtnHlavni.indexOf(at).has_value();
    const bool atLast = at == &imgBtn[imgBtn.count() - 1], hasKitchen = !imgKuchyne[kCook].isHidden();
    if (way > 0 && atLast)
        ring().goTo(hasKitchen ? imgKuchyne[kCook] : imgBtnHlavni[0]);
    else if (way > 0 && inKitchen)
        ring().goTo(imgBtnHlavni[0]);
    else if (way < 0 && inBar && hasKitchen)
        ring().goTo(imgKuchyne[kCook]);
    else
        return false;
    return true;
}

void frmRecept::stepSections(int direction) {
    if (imgBtn.indexOf(ring().current()))
        ring().stepWithin(direction);
    else
        ring().goTo(imgBtn[section_]);
    sayNothingHere();
}

void frmRecept::sayNothingHere() {
    const auto at = imgBtn.indexOf(ring().current());
    const QString nothing = at ? sections_[size_t(*at)]->nothingHere() : QString();
    if (!nothing.isEmpty()) app().HookMessage(nothing);
}

void frmRecept::paint(QPainter& painter) {
    paintRoom(painter, ground_);
    QColor band = colors::kTeal, shadow = colors::kNight;
    band.setAlpha(215);
    shadow.setAlpha(225);
    const QRectF all = covered();
    const QRectF header(all.topLeft(), QPointF(all.right(), recipelayout::kHeader.bottom()));
    app().resources().picture(QStringLiteral("ZAHLAVI")).draw(painter, header, Fit::Cover);
    painter.fillRect(header, band);
    painter.fillRect(QRectF(all.left(), header.bottom() - 30, all.width(), 30), colors::kCopper);
    painter.setPen(QPen(colors::kCopper, 30));
    painter.setBrush(shadow);
    for (const QRect& ground : {recipelayout::kSections, recipelayout::kBarGround})
        painter.drawRoundedRect(ground, 120, 120);
    if (imgKuchyne[kCook].isVisible()) painter.drawRoundedRect(recipelayout::kKitchenGround, 120, 120);
    QColor lit = colors::kCopper;
    lit.setAlpha(70);
    painter.fillRect(recipelayout::sectionRow(section_), lit);
    painter.setBrush(colors::kPaper);
    painter.drawRoundedRect(recipelayout::kPaper, 120, 120);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
