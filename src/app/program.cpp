#include "app/program.h"

#include <QAccessible>
#include <QDir>
#include <QFileInfo>

#include "app/frmsplash.h"
#include "app/rooms.h"
#include "core/texts.h"
#include "db/installation.h"
#include "dialogs/frmdialog.h"
#include "dialogs/frmmessage.h"
#include "forms/messagebox.h"
#include "platform/drives.h"
#include "screens/navigation/frmhlavni.h"

namespace sarne {
namespace {

const QString kResources = QStringLiteral("Sarne.rcc");

bool isFolder(const QString& path) {
    return !path.isEmpty() && QFileInfo(path).isDir();
}

}  // namespace

bool isShowSwitch(const QString& commandLine) {
    return commandLine == u"s" || commandLine == u"/s" || commandLine == u"-s";
}

Program::Program(const PlatformParts& platform, Folders folders)
    : platform_(platform),
      folders_(std::move(folders)),
      userFile_(folders_.userData + QStringLiteral("/vlastni.db")),
      stage_(std::make_unique<Stage>()),
      keptEyes_(stage_->eyes(), userFile_),
      screens_(*this) {
    AppDir = LogicalPaths::fromNativeFolder(folders_.program);
    resources_.prepare(paths().resolve(AppDir + kResources));
    if (platform_.makeAnnouncer) announcer_ = platform_.makeAnnouncer(*stage_);
    if (platform_.askDesktop)
        platform_.askDesktop(keptEyes_, [this](DesktopWishes wishes) { keptEyes_.follow(wishes); });
    connect(stage_.get(), &Stage::closeRequested, this, &Program::closeWindow);
}

void Program::closeWindow() {
    if (Form* box = stage_->modalForm()) return box->closeRequested();
    if (FormStack.top()) return ConfirmExit();
    if (Form* splash = stage_->focusForm()) splash->closeRequested();
}

Program::~Program() {
    stage_.reset();  // the forms go first: they use the rest
}

bool Program::Main(const QString& commandLine) {
    resources_.load(paths().resolve(AppDir + kResources));
    findMediaRoot();
    ShowMode = isShowSwitch(commandLine);
    openDatabase();

    auto* splash = new frmSplash(*this);
    const bool goesOn = splash->Zobraz();
    if (goesOn) screens_.showMain();
    splash->unload();
    if (!goesOn) {
        restoreDisplay();
        return false;
    }
    mainScreen()->showForm();
    greet();
    screens_.resume();
    return true;
}

void Program::greet() {
    const QString shown = QStringLiteral("KitchenShown");
    if (!ReadAppPathValue(shown).isEmpty() || !userFile_.value(shown).isEmpty()) return;
    userFile_.setValue(shown, QStringLiteral("1"));
    mainScreen()->showThings();
}

QString Program::ReadAppPathValue(const QString& name) const {
    return readAppPathValue(platform_.settings, name);
}

void Program::findMediaRoot() {
    paths_ = LogicalPaths([this] { return driveLetters(platform_.settings, removableVolumes()); });
    QString stored = ReadAppPathValue(QStringLiteral("CDPath"));
    // As the package's own setting says it, wherever the package was put.
    if (stored.startsWith(u'.')) stored = QDir::cleanPath(QDir(folders_.program).absoluteFilePath(stored));
    // A folder of this machine may have a "\\" in its name, which in a logical path would part two names.
    const bool odd = stored.startsWith(u'/') && stored.contains(u'\\') && isFolder(stored);
    QString root = odd ? paths_.mapFolder(stored) : stored;
    root = root.isEmpty() ? root : withTrailingBackslash(root.replace(u'/', u'\\'));
    if (isFolder(paths().resolve(root))) {
        MediaRoot = root;
        return;
    }
    const QString answer =
        askText(*this, Texts::tr("Nepodařilo se jednoznačně identifikovat Vaší CD-ROM mechaniku\r\n"
                                 "Zadejte pismeno, které ji označuje:"));
    MediaRoot = answer.left(1) + QStringLiteral(":\\");
}

void Program::openDatabase() {
    const RecipeDatabase book = usableRecipeDatabase(folders_.program + QStringLiteral("/Sarne.drc"),
                                                     folders_.userData + QStringLiteral("/Sarne.drc"));
    book_ = book.file;
    db_.Open(book_);
    for (const KeptNote& note : book.homeless) notes_.keep(note);
    homeless_ = restoreNotes(db_, notes_.all());
    // Search results live in the menu's table; they are nothing to keep, and no full disk shall spoil a
    // search.
    db_.keepInMemory(QStringLiteral("Menu"));
}

bool Program::showEdition(std::int16_t recipe, int section) {
    if (Ending || !mainScreen() || FormStack.count() == 0 || stage_->modalForm()) return false;
    keepUnsaved();
    while (FormStack.count() > 1) PopScreen(*FormStack.top());
    screens_.returnToMain();
    db_.Close();
    openDatabase();
    if (recipe > 0) screens_.showRecipeAt(recipe, section);
    return true;
}

Condition Program::condition() {
    Condition found;
    if (!db_.OpenTable(QStringLiteral("Recepty")).isOpen()) found.unreadableBook = book_;
    if (!isFolder(paths().resolve(MediaRoot))) found.missingMedia = MediaRoot;
    found.keptAside =
        keptAsideCopies(folders_.userData + QStringLiteral("/Sarne.drc")) + keptAsideCopies(userFile_.path());
    found.homeless = homeless_;
    return found;
}

frmMessage& Program::messageForm() {
    for (Form* form : stage_->forms()) {
        if (auto* message = qobject_cast<frmMessage*>(form); message && !message->isVisible())
            return *message;
    }
    return *new frmMessage(*this);
}

int Program::ask(const QString& text, int style, int closeCode) {
    return messageForm().ask(text, style, 0, closeCode);
}

int Program::ZobrazZpravu(const QString& text, int style, int silent) {
    return messageForm().ask(text, style, silent);
}

int Program::AskOrLeave(const QString& text, int style) {
    return messageForm().askOrLeave(text, style);
}

void Program::Beep() {
    platform_.beeper.beep();
}

void Program::HookMessage(const QString& text) {
    // A screen reader says by itself what has got the keyboard.
    const QWidget* at = QAccessible::isActive() ? stage_->focusWidget() : nullptr;
    if (announcer_ && !(at && at->accessibleName() == text)) announcer_->announce(text);
}

void Program::keepAwake(const QString& reason) {
    reason.isEmpty() ? platform_.sleep.release() : platform_.sleep.inhibit(reason);
}

void Program::ConfirmExit() {
    if (Ending || !ReadyToEnd() || !screens_.readyToEnd() ||
        ZobrazZpravu(Texts::tr("Chcete ukončit program?  "), kQuestionBox) != kAnswerYes)
        return;
    endProgram();
}

void Program::unloadForms(const QStringList& names) {
    for (Form* form : stage_->forms()) {
        if (names.contains(form->name())) form->unload();
    }
}

void Program::endProgram() {
    Ending = true;
    screens_.ended();
    music().setNotify(MediaNotify::Off);
    music().command(u"stop");
    music().command(u"close");
    unloadForms({QStringLiteral("frmSeznam"), QStringLiteral("frmTabulky")});
    auto* splash = new frmSplash(*this);
    splash->setCaption(Texts::tr("Ukončení progamu"));
    splash->Konec();
    for (Form* form : stage_->forms()) form->unload();
    db_.Close();
    StopEffect();
    keepAwake({});
    restoreDisplay();
    stage_->hide();
    QCoreApplication::quit();
}

void Program::keepUnsaved() {
    for (Form* form : stage_->forms()) form->keepUnsaved();
}

void Program::endAtOnce() {
    if (Ending) return;
    Ending = true;
    keepUnsaved();
    db_.Close();
    restoreDisplay();
    QCoreApplication::exit();  // also while the start still plays its film or asks
}

void Program::restoreDisplay() {
    if (SavedDisplayMode.isEmpty()) return;
    const qsizetype comma = SavedDisplayMode.indexOf(u',');
    platform_.display.setMode(
        {SavedDisplayMode.left(comma).toInt(), SavedDisplayMode.mid(comma + 1).toInt()});
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
