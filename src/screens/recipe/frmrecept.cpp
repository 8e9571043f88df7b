#include "screens/recipe/frmrecept.h"

#include <QFile>
#include <QPainter>

#include "db/database.h"
#include "dialogs/frmdialog.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/followlink.h"
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

}  // namespace

frmRecept::frmRecept(basSarne& run, Serving& lookedAt, AskNumber ask)
    : Form(run, QStringLiteral("frmRecept")),
      title_(new Label(*this, QStringLiteral("lblNazev"))),
      view_(new TextView(*this, QStringLiteral("picRecept"))),
      picture_(new PictureBox(*this, QStringLiteral("picVedle"))),
      duck_(run.music()) {
    if (!ask) ask = [&run](const QString& prompt) { return askNumber(run, prompt); };
    recipe_.units = lookedAt.units;
    title_->place(recipelayout::kTitle);
    title_->setAlignment(Qt::AlignCenter);
    title_->setColor(colors::kTitle);
    makeView();
    makeSections(lookedAt, std::move(ask));
    makeBar();
}

void frmRecept::makeView() {
    view_->place(recipelayout::kView);
    view_->setArrowPictures(app().resources().picture(QStringLiteral("SipkaNahoru")),
                            app().resources().picture(QStringLiteral("SipkaDolu")));
    connect(view_, &TextView::linkActivated, this, [this](LinkKey key) {
        rememberFocus();
        followLink(app(), key);
    });
    connect(view_, &TextView::linkFocused, this, [this](const QString& words) { app().HookMessage(words); });
    connect(view_, &Control::clicked, this, [this] {
        rememberFocus();
        current().viewClicked();
    });
    picture_->place(recipelayout::kBesideView);
    picture_->setAttribute(Qt::WA_TransparentForMouseEvents);
    picture_->hide();
}

Button& frmRecept::makeButton(const QString& name, const QRect& place, const char* picture,
                              const QString& tip) {
    const Resources& pictures = app().resources();
    auto* button = new Button(*this, name);
    const Picture face = pictures.picture(QString::fromLatin1(picture));
    button->place(place);
    button->setFace(face);
    if (face.isNull()) button->setCaption(tip.left(1));
    button->setTip(tip);
    button->setFrame(Button::Frame::Raised);
    return *button;
}

void frmRecept::makeSections(Serving& lookedAt, AskNumber ask) {
    const SectionRoom room{
        *this,   app(),    *view_,         *picture_,
        recipe_, lookedAt, std::move(ask), [this] { sectionButtons_[size_t(section_)]->setFocus(); }};
    for (const SectionKind& kind : sectionKinds()) {
        makeSectionButton(static_cast<int>(sections_.size()), kind.title(), kind.picture);
        sections_.push_back(kind.make(room));
    }
}

void frmRecept::makeSectionButton(int index, const QString& title, const char* picture) {
    Button& button =
        makeButton(QStringLiteral("imgBtn(%1)").arg(index), recipelayout::section(index), picture, title);
    connect(&button, &Button::clicked, this, [this, index] { openSection(index); });
    sectionButtons_.push_back(&button);
    auto* name = new Label(*this, QStringLiteral("lblIkona(%1)").arg(index));
    name->place(recipelayout::sectionName(index));
    name->setText(title);
    name->setFont({QStringLiteral("Arial"), 11, true});
    name->setColor(colors::kTitle);
    name->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    name->setWordWrap(true);
    name->setClickable(true);
    name->setCursor(Qt::PointingHandCursor);
    connect(name, &Label::clicked, &button, &Button::click);
}

void frmRecept::makeBar() {
    static constexpr struct {
        const char* picture;
        const char* tip;
    } kButtons[] = {{"Tisk", "Tisk receptu"},
                    {"Help", "Nápověda"},
                    {"Zpet", "Zpět"},
                    {"Konec", "Konec"},
                    {"Hudba", "Nastavení hudby a zvuků"}};
    for (int index = 0; index < recipelayout::kBarCount; ++index) {
        Button& button =
            makeButton(QStringLiteral("imgBtnHlavni(%1)").arg(index), recipelayout::barButton(index),
                       kButtons[index].picture, QString::fromUtf8(kButtons[index].tip));
        connect(&button, &Button::clicked, this, [this, index] { barClick(Bar(index)); });
        bar_.push_back(&button);
    }
}

void frmRecept::Zobraz(std::int16_t id) {
    loadRecipe(id);
    if (!app().FormStack.contains(*this)) app().PushScreen(*this);
    showForm();
    openSection(0);
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
    showTitle();
}

void frmRecept::showTitle() {
    const QString title = recipe_.field("DlouhyNazev");
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
}

void frmRecept::playName() {
    if (!app().SoundFlags[kSpokenNames] && !app().ShowMode) return;
    QFile file(app().mediaFile(QStringLiteral("zvuky\\č%1.wav").arg(recipe_.id)));
    if (!file.open(QIODevice::ReadOnly)) return;
    app().EffectWave = file.readAll();
    app().effects().play(app().EffectWave);
    duck_.speaking(app().EffectWave);
}

void frmRecept::openSection(int section) {
    if (!current().leave()) return;
    section_ = section;
    showSection();
}

void frmRecept::showSection() {
    for (size_t index = 0; index < sections_.size(); ++index) {
        const bool shown = index == size_t(section_);
        sectionButtons_[index]->setFrame(shown ? Button::Frame::Pressed : Button::Frame::Raised);
        sections_[index]->setVisible(shown);
    }
    picture_->hide();
    view_->Cls();
    view_->setVisible(true);
    view_->setAccessibleName(sectionKinds()[size_t(section_)].title());
    view_->place(current().viewPlace());
    sectionButtons_[size_t(section_)]->setFocus();
    current().draw();
    update();
}

void frmRecept::Skryj() {
    if (!current().leave()) return;
    recipe_.row.Close();
    app().keepAwake({});
    app().PopScreen(*this);
}

void frmRecept::unload() {
    if (isLoaded()) {
        duck_.release();
        if (!app().Ending) current().abandon();
        app().keepAwake({});
    }
    Form::unload();
}

void frmRecept::restored() {
    app().keepAwake(QStringLiteral("Na obrazovce je recept"));
    if (lastFocus_ && lastFocus_->isVisible() && lastFocus_->isEnabled()) return lastFocus_->setFocus();
    sectionButtons_[size_t(section_)]->setFocus();
}

void frmRecept::gotFocus() {
    app().BringTopToFront(name());
}

void frmRecept::rememberFocus() {
    lastFocus_ = focusWidget();
}

void frmRecept::help() {
    rememberFocus();
    app().screens().showPage(QStringLiteral("300"));
}

void frmRecept::musicSettings() {
    rememberFocus();
    app().screens().showMusicSettings();
}

void frmRecept::keepUnsaved() {
    for (const auto& section : sections_) section->keepUnsaved();
}

bool frmRecept::readyToEnd() {
    return current().readyToEnd();
}

void frmRecept::endProgram() {
    rememberFocus();
    app().ConfirmExit();
}

void frmRecept::print() {
    current().beforePrint();
    rememberFocus();
    app().screens().printRecipes({recipe_.id}, recipe_.serving());
}

void frmRecept::barClick(Bar button) {
    switch (button) {
        case Bar::Print:
            return print();
        case Bar::Help:
            return help();
        case Bar::Back:
            return Skryj();
        case Bar::End:
            return endProgram();
        case Bar::Music:
            return musicSettings();
    }
}

QString frmRecept::collectedText() {
    return sarne::collectedText(app().Db(), recipe_.row, recipe_.id, recipe_.units,
                                recipe_.portions.quantities(app().Locale));
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
    painter.drawRoundedRect(recipelayout::kSections, 120, 120);
    QColor lit = colors::kCopper;
    lit.setAlpha(70);
    painter.fillRect(recipelayout::sectionRow(section_), lit);
    painter.setBrush(colors::kPaper);
    painter.drawRoundedRect(recipelayout::kPaper, 120, 120);
}

}  // namespace sarne
