#include "platform/dispatcherspeech.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <atomic>
#include <mutex>
#include <thread>

#include "support/kept.h"
#include "testmedia.h"

namespace sarne {
namespace {

/// A speech dispatcher for one client, with a synthesizer for each of \a voices, whose name is its language.
/// It keeps what it is told.
class Dispatcher {
  public:
    explicit Dispatcher(QList<QByteArray> voices) : voices_(std::move(voices)), voice_(voices_.first()) {
        sockaddr_un address{AF_UNIX, {}};
        const QByteArray path = QFile::encodeName(folder_.filePath(u"speechd.sock"_s));
        qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
        listening_ = socket(AF_UNIX, SOCK_STREAM, 0);
        if (bind(listening_, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
            listen(listening_, 5) != 0)
            qFatal("no socket");
        qputenv("SPEECHD_ADDRESS", "unix_socket:" + path);
        thread_ = std::thread([this] { serve(); });
    }
    ~Dispatcher() {
        shutdown(listening_, SHUT_RDWR);
        shutdown(client_, SHUT_RDWR);
        thread_.join();
        close(listening_);
        close(client_);
    }
    Dispatcher(const Dispatcher&) = delete;
    Dispatcher& operator=(const Dispatcher&) = delete;

    QStringList told() {
        const std::scoped_lock lock(guard_);
        return told_;
    }
    /// Says that message \a number was spoken to its end.
    void end(int number) { tell("702-" + QByteArray::number(number) + "\r\n702-1\r\n702 END"); }
    std::atomic<bool> refuses = false;

  private:
    void serve() {
        client_ = accept(listening_, nullptr, nullptr);
        for (QByteArray line = read(); !line.isEmpty(); line = read()) {
            note(line);
            answer(line);
        }
        note("bye");
    }
    void answer(const QByteArray& line) {
        if (line == "LIST OUTPUT_MODULES") {
            for (const QByteArray& voice : voices_) tell("250-" + voice);
            tell("250 OK");
        } else if (line == "LIST SYNTHESIS_VOICES") {
            tell("249-Voice\t" + voice_ + "\tnone\r\n249 OK");
        } else if (line.contains("OUTPUT_MODULE ")) {
            voice_ = line.split(' ').last();
            tell("216 OK");
        } else if (line == "speak") {
            tell(refuses ? "300 NO" : "230 OK");
            if (refuses) return;
            for (QByteArray text = read(); text != "."; text = read()) note(text);
            tell("225-" + QByteArray::number(++messages_) + "\r\n225 OK");
        } else {
            tell("200 OK");
            if (line == "CANCEL SELF")
                tell("703-" + QByteArray::number(messages_) + "\r\n703-1\r\n703 CANCELED");
        }
    }
    QByteArray read() const {
        QByteArray line;
        for (char letter; recv(client_, &letter, 1, 0) == 1;) {
            line += letter;
            if (line.endsWith("\r\n")) return line.chopped(2);
        }
        return {};
    }
    void tell(const QByteArray& line) const {
        send(client_, (line + "\r\n").constData(), size_t(line.size() + 2), MSG_NOSIGNAL);
    }
    void note(const QByteArray& line) {
        const std::scoped_lock lock(guard_);
        told_ += QString::fromUtf8(line);
    }

    QTemporaryDir folder_;
    QList<QByteArray> voices_;
    QByteArray voice_;  // of the synthesizer that was chosen last
    int listening_ = -1, client_ = -1, messages_ = 0;
    std::mutex guard_;
    QStringList told_;
    std::thread thread_;
};

TEST(DispatcherSpeechTest, SpeaksWithTheFirstCzechVoiceAndTellsTheEnd) {
    Dispatcher dispatcher({"en-GB", "cs-CZ", "cs"});
    int found = 0, ended = 0;
    {
        DispatcherSpeech speech;
        QObject::connect(&speech, &Speech::found, [&] { ++found; });
        QObject::connect(&speech, &Speech::ended, [&] { ++ended; });
        speech.say(u"nikdo"_s);
        speech.stop();
        EXPECT_FALSE(speech.hasVoice());
        speech.lookForVoice();
        speech.lookForVoice();
        ASSERT_TRUE(waitFor([&] { return found == 1; }));
        EXPECT_TRUE(speech.hasVoice());
        speech.say(u"Řízek"_s);
        dispatcher.end(7);
        EXPECT_FALSE(waitFor([&] { return ended > 0; }, 100)) << "another message";
        dispatcher.end(1);
        EXPECT_TRUE(waitFor([&] { return ended == 1; }));
        speech.stop();
        speech.say(u"první"_s);
        speech.say(u"druhý"_s);
        EXPECT_FALSE(waitFor([&] { return ended > 1; }, 100)) << "the first was left for the second";
        speech.stop();
        EXPECT_TRUE(waitFor([&] { return ended == 2; }));
        dispatcher.refuses = true;
        speech.say(u"ticho"_s);
        EXPECT_EQ(ended, 3);
        speech.stop();
    }
    EXPECT_TRUE(waitFor([&] { return dispatcher.told().endsWith(u"bye"_s); }));
    const QString told = dispatcher.told().join(u'\n');
    test::expectText(u"rec"_s, told.mid(told.indexOf(u':')));  // behind the user's name
}

TEST(DispatcherSpeechTest, AUsersOwnCzechVoiceStaysAndWithoutOneThereIsSilence) {
    for (const QByteArray voice : {"cs", "en"}) {
        Dispatcher dispatcher({voice});
        int found = 0;
        DispatcherSpeech speech;
        QObject::connect(&speech, &Speech::found, [&] { ++found; });
        speech.lookForVoice();
        EXPECT_TRUE(waitFor([&] { return found > 0 || dispatcher.told().endsWith(u"bye"_s); }));
        EXPECT_EQ(found, voice == "cs" ? 1 : 0);
        EXPECT_EQ(dispatcher.told().contains(u"LIST OUTPUT_MODULES"_s), voice != "cs");
    }
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
