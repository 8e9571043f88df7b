#include "browse/browsefixture.h"
#include "forms/button.h"
#include "forms/label.h"
#include "screens/browse/frmseznam.h"

namespace sarne {
namespace {

class SeznamTest : public BrowseTest {
  protected:
    SeznamTest() {
        run.PushScreen(*below);
        below->showForm();
    }
    frmSeznam& open(const char* ids, const char* source) {
        list = new frmSeznam(run);
        list->Zobraz(QString::fromLatin1(ids), QString::fromLatin1(source));
        return *list;
    }
    QWidget* control(const QString& name) const { return list->findChild<QWidget*>(name); }
    Button* button(const char* name) const { return list->findChild<Button*>(QString::fromLatin1(name)); }
    Label* row(int number) const {
        return list->findChild<Label*>(QStringLiteral("lblSeznam(%1)").arg(number));
    }
    QString position() const { return child<Label>(*list, "lblPozice")->text(); }
    QString wine() const { return child<Label>(*list, "lblVino")->text(); }
    bool wineShows() const { return child<Label>(*list, "lblVino")->isVisible(); }
    int selected() const { return list->pages().selectedEntry(); }

    Form* below = new Form(run, QStringLiteral("frmHlavni"));
    frmSeznam* list = nullptr;
};

TEST_F(SeznamTest, ShowsAPageAndSelectsByMouse) {
    open("3,1,2,", "Recepty");
    EXPECT_EQ(row(1)->text(), QStringLiteral("Recept 003"));
    EXPECT_EQ(row(3)->text(), QStringLiteral("Recept 002"));
    EXPECT_EQ(row(4)->text(), QString());
    EXPECT_FALSE(button("imgSipky(0)")->isVisible());
    EXPECT_FALSE(control(QStringLiteral("imgJablko"))->isVisible());
    click(row(4));
    EXPECT_EQ(selected(), -1);
    click(row(2));
    EXPECT_EQ(position(), QStringLiteral("2 z 3"));
    EXPECT_TRUE(control(QStringLiteral("imgJablko"))->isVisible());
    EXPECT_EQ(run.announced, QStringList{QStringLiteral("Recept 001")});
    click(button("imgBtn(2)"));
    EXPECT_EQ(run.recorded.calls, QStringList{QStringLiteral("showRecipe 1")});
}

}  // namespace
}  // namespace sarne
