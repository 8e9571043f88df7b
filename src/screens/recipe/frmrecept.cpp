#include "screens/recipe/frmrecept.h"

#include <QFile>
#include <QPainter>

#include "db/database.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/messagebox.h"
#include "forms/resources.h"
#include "forms/screens.h"
#include "platform/effectplayer.h"
#include "screens/recipe/collectedtext.h"
#include "screens/recipe/sectionnames.h"
#include "screens/recipe/titlelines.h"

namespace sarne {
namespace {

constexpr double kTitleSizes[] = {24, 20, 16, 13};  // points, the largest that fits is taken

QString noteQuestion() {
    return QStringLiteral("Poznámka byla změněna. Chcete tyto změny uložit?");
}

}  // namespace

frmRecept::frmRecept(basSarne& run, IngredientPanel::AskNumber ask)
    : Form(run, QStringLiteral("frmRecept")),
      title_(new Label(*this, QStringLiteral("lblNazev"))),
      view_(new TextView(*this, QStringLiteral("picRecept"))),
      editor_(new NoteEdit(*this, QStringLiteral("RtfPozn"))) {
    title_->place(recipelayout::kTitle);
    title_->setAlignment(Qt::AlignCenter);
    title_->setColor(colors::kTitle);
    view_->place(recipelayout::kView);
    view_->setArrowPictures(run.resources().picture(QStringLiteral("SipkaNahoru")),
                            run.resources().picture(QStringLiteral("SipkaDolu")));
    connect(view_, &TextView::linkActivated, this, &frmRecept::openLink);
    connect(view_, &TextView::linkFocused, this, [this](const QString& words) { app().HookMessage(words); });
    connect(view_, &Control::clicked, this, &frmRecept::viewClicked);
    ingredients_ = std::make_unique<IngredientPanel>(*this, run, *view_, std::move(ask));
    links_ = std::make_unique<LinkPanel>(*this, run, *view_);
    makeSections();
    makeBar();
    makeNote();
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
    button->setFramePictures(pictures.picture(QStringLiteral("RamVen")),
                             pictures.picture(QStringLiteral("RamDovnitr")));
    button->setFrame(Button::Frame::Raised);
    return *button;
}

void frmRecept::makeSections() {
    static constexpr const char* kPictures[] = {"Foto", "Recept",   "Uvod",    "Odkazy",
                                                "Vino", "Suroviny", "Pomucky", "Vlastni"};
    for (int index = 0; index < recipelayout::kSectionCount; ++index) {
        Button& button = makeButton(QStringLiteral("imgBtn(%1)").arg(index), recipelayout::section(index),
                                    kPictures[index], sectionName(index));
        connect(&button, &Button::clicked, this, [this, index] { openSection(Section(index)); });
        sections_.push_back(&button);
        auto* name = new Label(*this, QStringLiteral("lblIkona(%1)").arg(index));
        name->place(recipelayout::sectionName(index));
        name->setText(sectionName(index));
        name->setFont({QStringLiteral("Arial"), 11, true});
        name->setColor(colors::kTitle);
        name->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        name->setWordWrap(true);
        name->setClickable(true);
        name->setCursor(Qt::PointingHandCursor);
        connect(name, &Label::clicked, &button, &Button::click);
    }
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
    sections_[kPhoto]->setFocus();
    openSection(kPhoto);
    app().keepAwake(QStringLiteral("Na obrazovce je recept"));
    playName();
}

void frmRecept::loadRecipe(std::int16_t id) {
    id_ = id;
    recipe_ = app().Db().OpenTable(QStringLiteral("Recepty"));
    recipe_.setIndex(QStringLiteral("primarykey"));
    recipe_.Seek(QStringLiteral("="), id);
    if (recipe_.NoMatch()) recipe_.Close();
    ground_ = app().mediaPicture(QStringLiteral("foto\\Podklad\\r%1.bmp").arg(id));
    if (ground_.isNull()) ground_ = app().Pictures.recept;
    photo_ = app().mediaPicture(QStringLiteral("foto\\Velke\\r%1.bmp").arg(id));
    photoShown_ = false;
    ingredients_->setRecipe(id, recipe_.field(QStringLiteral("Porce")).toInt());
    links_->setRecipe(id);
    showTitle();
}

void frmRecept::showTitle() {
    const QString title = recipe_.field(QStringLiteral("DlouhyNazev")).toString();
    TextFont font{QStringLiteral("Times New Roman"), 0, true};
    QStringList lines;
    for (double size : kTitleSizes) {
        font.size = size;
        lines = wrapAtBlanks(title, recipelayout::kTitle.width(),
                             [&](const QString& text) { return Label::measure(text, font).width(); });
        if (Label::measure(lines.join(u'\n'), font).height() <= recipelayout::kTitle.height()) break;
    }
    title_->setFont(font);
    title_->setText(lines.join(u'\n'));
}

void frmRecept::playName() {
    if (!app().SoundFlags[kSpokenNames] && !app().ShowMode) return;
    QFile file(app().mediaFile(QStringLiteral("zvuky\\č%1.wav").arg(id_)));
    if (!file.open(QIODevice::ReadOnly)) return;
    app().EffectWave = file.readAll();
    app().effects().play(app().EffectWave);
}

void frmRecept::Skryj() {
    leaveNote();
    recipe_.Close();
    app().keepAwake({});
    app().PopScreen(*this);
}

void frmRecept::unload() {
    // Whoever closes the screen: a changed note is not lost without a word.
    if (isLoaded() && !ending_) leaveNote();
    if (isLoaded()) app().keepAwake({});
    Form::unload();
}

void frmRecept::restored() {
    app().keepAwake(QStringLiteral("Na obrazovce je recept"));
    if (lastFocus_ && lastFocus_->isVisible() && lastFocus_->isEnabled()) return lastFocus_->setFocus();
    sections_[section_]->setFocus();
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

void frmRecept::endProgram() {
    rememberFocus();
    if (note_.isDirty() && wantsNoteSaved()) note_.save(editor_->text());
    const QPointer<frmRecept> self(this);
    ending_ = true;
    app().ConfirmExit();
    if (self) ending_ = false;
}

void frmRecept::print() {
    note_.saveForPrint(editor_->text());
    rememberFocus();
    app().screens().printRecipes({id_});
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

bool frmRecept::wantsNoteSaved() {
    return app().ZobrazZpravu(noteQuestion(), kQuestionBox) == kAnswerYes;
}

QString frmRecept::collectedText() {
    return sarne::collectedText(app().Db(), recipe_, id_, ingredients_->units(), ingredients_->quantities());
}

void frmRecept::paint(QPainter& painter) {
    const QRect all({0, 0}, twips().size());
    if (ground_.isNull())
        painter.fillRect(all, colors::kTeal);
    else
        ground_.draw(painter, all, Fit::Cover);
    QColor band = colors::kTeal, shadow = colors::kNight;
    band.setAlpha(215);
    shadow.setAlpha(225);
    app().resources().picture(QStringLiteral("ZAHLAVI")).draw(painter, recipelayout::kHeader, Fit::Cover);
    painter.fillRect(recipelayout::kHeader, band);
    painter.fillRect(0, recipelayout::kHeader.bottom() - 30, recipelayout::kHeader.width(), 30,
                     colors::kCopper);
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
