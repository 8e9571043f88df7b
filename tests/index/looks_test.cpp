#include <gtest/gtest.h>

#include <QTest>
#include <map>

#include "cookbook.h"
#include "screens/index/frmindex.h"
#include "screens/index/frmsponzor.h"
#include "screens/index/frmstranka.h"
#include "screens/index/frmtabulky.h"
#include "support/explore.h"
#include "support/files.h"
#include "support/pictures.h"

namespace sarne {
namespace {

using test::explore;
using test::exploreOrLook;
using test::Look;

QStringList everything() {
    QStringList all;
    int id = 0;
    for (const char* letter : {"A", "B", "Č", "Ch", "S"})
        for (int i = 0; i < 9; ++i) {
            const QString far = u"slovo "_s.repeated(qsizetype(i % 2) * 700);
            all << Cookbook::keyword(
                ++id, u"%1slovo %2"_s.arg(QString::fromUtf8(letter)).arg(i),
                far + u"Kapr se *%1 vaří* s kmínem, #5 pípne# a @7 video@ hraje *999 nikam*. "_s.arg(2 -
                                                                                                     i % 2));
        }
    all << u"INSERT INTO UkazkyHesel VALUES (1, 'foto\\hesla\\kapr.png', 'Kapr', 6, '7,12,'), "
           "(2, '', '', 99999, '7,'), (4, 'foto\\hesla\\neni.png', 'Popis', 0, '')"_s
        << u"INSERT INTO Tabulky VALUES (3, 'Ryby', 'Ryba\tMíra', 'Podle vyhlášky.')"_s
        << u"INSERT INTO RadkyTabulek VALUES (1, 3, 7, 'Kapr\t40 cm'), (2, 3, 0, 'Sleď\tbez míry')"_s
        << Cookbook::page(10, u"Jak na to"_s, u"\\b Jak na to\\b0\\par Vezm\\'eate *3 rybu*. "_s.repeated(60),
                          {})
        << Cookbook::page(30, u"Stránky"_s, u"\\b St\\'e1nky\\b0\\par Text."_s, u"frmStranka"_s)
        << u"INSERT INTO Nastav VALUES (1, 'Zvuky', 1), (2, 'Hudba', 1), (3, 'Hlas', 1)"_s
        << Cookbook::picture(9, 9, u"Ryby"_s) << Cookbook::picture(91, 9, u"Mořské ryby"_s)
        << Cookbook::area(9, {100, 150, 200, 150}, u"Kapr"_s, {}, u"*12"_s)
        << Cookbook::area(9, {400, 150, 200, 150}, u"Kuchání"_s, {}, u"@3"_s)
        << Cookbook::area(9, {100, 450, 200, 150}, u"Do moře"_s, {}, u">91"_s)
        << Cookbook::area(9, {750, 150, 100, 100}, u"Kámen"_s, {}, u"#"_s)
        << Cookbook::area(9, {850, 600, 100, 100}, u"Nic"_s, {}, {})
        << Cookbook::area(9, {-500, 0, 100, 100}, u"Mimo"_s, {}, u"*1"_s)
        << Cookbook::area(9, {400, 450, 300, 300}, u"Hlas"_s, test::rtf(u"Hlas\\par\r\nHlas *5 ryb*."_s), {});
    return all;
}

class Index : public Cookbook {
  public:
    Index() : Cookbook(everything()) {
        for (const char* picture : {"foto/hesla/kapr.png", "foto/sponzor/9.jpg"})
            (void)test::write(folder.filePath(QLatin1String(picture)), test::plain({80, 60}, Qt::darkRed));
        for (const char* track : {"HUDBA.WAV", "ZVUKY/Vina.WAV"})
            (void)test::write(folder.filePath(QLatin1String(track)));
        run.MediaRoot = LogicalPaths::fromNativeFolder(folder.path());
        run.SoundFlags = {true, true, true, false, false};
    }
};

TEST(Looks, Keywords) {
    for (const std::int16_t keyword : {1, 4})
        exploreOrLook(keyword == 1, keyword == 1 ? "heslo-s-ukazkou" : "heslo", [=](const Look& look) {
            Index book;
            (new frmIndex(book.run))->Zobraz(keyword);
            look(book.run);
        });
}

TEST(Looks, Tables) {
    for (const auto item : {std::int16_t(kKeywordIndexItem), std::int16_t(3)})
        for (const bool selected : {false, true})
            exploreOrLook(selected == (item == 3),
                          qPrintable(u"%1%2"_s.arg(item == 3 ? u"tabulka"_s : u"rejstrik"_s,
                                                   selected ? u"-vybrano"_s : QString())),
                          [=](const Look& look) {
                              Index book;
                              (new FrmTabulky(book.run))->Zobraz(item);
                              if (selected) QTest::keyClick(book.run.window.focusWidget(), Qt::Key_Down);
                              look(book.run);
                          });
}

TEST(Looks, EmptyIndex) {
    explore("rejstrik-prazdny", [=](const Look& look) {
        Cookbook book({});
        (new FrmTabulky(book.run))->Zobraz(kKeywordIndexItem);
        look(book.run);
    });
}

TEST(Looks, Page) {
    for (const bool plays : {false, true})
        exploreOrLook(plays, plays ? "stranka-s-hudbou" : "stranka", [=](const Look& look) {
            Index book;
            book.run.player.setFileName(book.folder.filePath(u"HUDBA.WAV"_s));
            book.run.player.command(u"open"_s);
            if (plays) book.run.player.command(u"play"_s);
            (new frmStranka(book.run))->Zobraz(u"10"_s);
            look(book.run);
        });
    explore("stranka-napovedy", [=](const Look& look) {
        Index book;
        (new frmStranka(book.run))->Zobraz(u"30"_s);
        look(book.run);
    });
}

TEST(Looks, Gallery) {
    for (const bool card : {false, true})
        explore(card ? "galerie-karta" : "galerie", [=](const Look& look) {
            Index book;
            auto* form = new frmSponzor(book.run);
            form->Zobraz(9, {});
            if (card) form->findChild<Control*>(u"lblOblast(5)"_s)->click();
            look(book.run);
        });
}

TEST(Looks, InUse) {
    const auto page = [](FakeSarne& run, std::int16_t tracks) {
        if (tracks < 2) run.SoundFlags = {true, false, true, false, tracks == 1};
        if (tracks == 0) run.player.failing[u"open"_s] = MediaError::InvalidFile;
        (new frmStranka(run))->Zobraz(u"10"_s);
    };
    const std::map<QString, std::function<void(FakeSarne&, std::int16_t number)>> screens{
        {u"heslo"_s, [](FakeSarne& run, std::int16_t number) { (new frmIndex(run))->Zobraz(number); }},
        {u"tabulka"_s, [](FakeSarne& run, std::int16_t number) { (new FrmTabulky(run))->Zobraz(number); }},
        {u"galerie"_s, [](FakeSarne& run, std::int16_t) { (new frmSponzor(run))->Zobraz(9, {}); }},
        {u"stranka"_s, page}};
    test::walkAll("cesty", [&](const QString& what, const Look& look) {
        Index book;
        screens.at(what.section(u' ', 0, 0))(book.run, what.section(u' ', 1).toShort());
        look(book.run);
    });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
