#include "media/frmvideo.h"

#include "forms/colors.h"
#include "mediafixture.h"
#include "support/acts.h"
#include "support/kept.h"

namespace sarne {
namespace {

class VideoTest : public MediaFixture {
  public:
    /// What comes of \a way: after each word what it has changed of the screens, the film's title,
    /// the tip of its sound and whether it sounds; and what the film's player and the user were told. Words
    /// are as test::perform() takes them, or one of those below.
    QString told(const QString& way) {
        SetUp();
        for (const char* row : {"('181', 'Jak rybu obalit', '13')", "('182', 'Jak vykrojit filety', '3')",
                                "('53', 'Pečeně', '3')"})
            run.database.Execute(u"INSERT INTO Menu VALUES "_s + QLatin1String(row));
        QStringList all, before(5);
        for (const QString& word : way.split(u' ')) {
            if (!perform(word)) test::perform(run, word);
            QStringList changed, forms;
            const auto hear = [&] {
                changed += player ? std::exchange(player->commands, {}) : QStringList();
            };
            hear();
            QTest::qWait(word == u"Escape" ? 40 : 0);  // until what was begun would open
            hear();
            const Form* front = test::front(run);
            const auto* title = front->findChild<Label*>(u"lblNazev"_s);
            const auto* sound = front->findChild<Button*>(u"ImgTlacitko(0)"_s);
            for (const Form* one : run.window.forms()) forms << one->name();
            const QStringList now{forms.join(u'+'),
                                  title ? title->text() + u'=' + front->accessibleName() : QString(),
                                  sound ? sound->toolTip() : QString(),
                                  player && player->sound == MediaSound::Silent ? u"silent"_s : u"sounds"_s,
                                  player && player->wait == MediaWait::Wait ? u"waits"_s : u"goes on"_s};
            changed += std::exchange(run.announced, {}) + std::exchange(run.messages, {});
            for (qsizetype i = 0; i < now.size(); ++i)
                if (now[i] != before[i]) changed << now[i];
            before = now;
            all << changed.join(u", "_s).remove(disc.path()).remove(run.MediaRoot);
        }
        return all.join(u" / "_s);
    }

  protected:
    void open(int number = 3, bool hasPlayer = true) {
        auto made = hasPlayer ? std::make_unique<FakeMultimedia>() : nullptr;
        player = made.get();
        if (player) player->failing = failing;
        form = new frmVideo(run, std::move(made));
        form->Zobraz(std::int16_t(number));
    }
    void start() { form->findChild<Timer*>()->fire(); }
    QString status() { return child<Label>(*form, "Label1")->text(); }

    QHash<QString, MediaError> failing;
    QPointer<FakeMultimedia> player;
    frmVideo* form = nullptr;

  private:
    void TestBody() override {}
    bool perform(const QString& word) {
        const QString verb = word.section(u':', 0, 0), what = word.section(u':', 1);
        if (verb == u"open")
            open(what.toInt());
        else if (verb == u"openwithout")
            open(what.toInt(), false);
        else if (verb == u"start")
            start();
        else if (verb == u"fails")
            failing = {{what, MediaError::InvalidFile}};
        else if (verb == u"breaks")
            player->lastCode = MediaError::InvalidFile, player->breakOff(MediaDone::Failed);
        else if (verb == u"show")
            run.ShowMode = true;
        else if (verb == u"settings")
            run.openAbove("frmNastavHudbu")->place({3000, 2100, 6000, 4800});
        else
            return false;
        return true;
    }
};

TEST(FilmTest, DoesWhatItsKeysAndItsPlayerSay) {
    test::expectCases(u"film"_s, [](const QString& way) { return VideoTest().told(way); });
}

TEST_F(VideoTest, TheKnobStaysWithinTheBar) {
    open();
    auto* bar = form->findChild<SeekBar*>();
    bar->show(0, 60000);
    const QImage start = bar->grab().toImage();
    bar->show(60000, 60000);
    const QImage end = bar->grab().toImage();
    const int middle = bar->height() / 2;
    EXPECT_EQ(start.pixelColor(bar->toPixels({90, 165}).x(), middle), colors::kTitle);
    EXPECT_EQ(end.pixelColor(bar->toPixels({bar->twips().width() - 90, 165}).x(), middle), colors::kTitle);
    EXPECT_EQ(bar->positionAt(0), 0);
    EXPECT_EQ(bar->positionAt(90), 0) << "where the knob stands";
    EXPECT_EQ(bar->positionAt(bar->twips().width() - 90), 60000);
    bar->setChapters(Chapters::parse("0\tA\n60\tNic\n"));
    EXPECT_LT(bar->positionAt(bar->twips().width() - 160), 60000) << "at the end begins no chapter";
}

TEST_F(VideoTest, MarksLeadToTheirChapters) {
    ASSERT_TRUE(test::write(path("VIDEO/3.kap"), "0\tPříprava\n10.5\tŘez\n40\tKonec díla\n"));
    open();
    start();
    player->end();
    press(Qt::Key_J);
    EXPECT_EQ(player->position(), 40000) << "at the end, the last one";
    EXPECT_TRUE(player->playing());
    EXPECT_EQ(status(), u"Přehrávám"_s);

    auto* bar = form->findChild<SeekBar*>();
    const auto markAt = [&](qint64 position) {
        for (int x = 0; x < bar->twips().width(); ++x)
            if (bar->positionAt(x) == position) return bar->toPixels(QPoint(x, bar->twips().height() / 2));
        return QPoint(-1, -1);
    };
    QTest::mouseMove(bar, markAt(40000) + QPoint(1, 0));
    EXPECT_EQ(bar->toolTip(), u"Konec díla"_s);
    QTest::mouseClick(bar, Qt::LeftButton, {}, markAt(10500) + QPoint(1, 0));
    EXPECT_EQ(player->position(), 10500) << "a mark leads to its chapter's beginning";
    QTest::mouseClick(bar, Qt::RightButton, {}, {bar->width() / 4, bar->height() / 2});
    EXPECT_EQ(player->position(), 10500) << "the right button is no seek";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
