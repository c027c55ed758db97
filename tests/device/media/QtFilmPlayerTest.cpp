#include "device/media/QtFilmPlayer.h"

#include "support/ScriptedServer.h"
#include "support/WaitFor.h"

#include <QFile>

#include <gtest/gtest.h>

#include <cstdlib>

namespace kavor {
namespace {

using State = FilmStatus::State;

// The film is two seconds of amber, then two of bottle green.
class AFilm : public ::testing::Test {
protected:
    ScriptedServer server;
    QtFilmPlayer player;

    void SetUp() override {
        QFile file(QStringLiteral(KAVOR_TEST_DATA "/film.mp4"));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        server.setHandler([content = file.readAll()](const ScriptedRequest& request) {
            ScriptedAnswer answer;
            answer.body = content;
            answer.headers = {{"Content-Type", "video/mp4"}};
            const QByteArray range = request.header("range");
            if (request.target != "/film.mp4")
                return ScriptedAnswer::json("{}", 404);
            if (range.startsWith("bytes=")) {
                const qsizetype from = range.mid(6).split('-').first().toLongLong();
                answer.status = 206;
                answer.headers.append({"Content-Range", "bytes " + QByteArray::number(from) + "-" +
                                                            QByteArray::number(content.size() - 1) + "/" +
                                                            QByteArray::number(content.size())});
                answer.body = content.mid(from);
            }
            return answer;
        });
    }
    [[nodiscard]] QUrl at(const char* path) const { return {server.address() + QLatin1String(path)}; }
    bool becomes(State state) {
        return waitFor([&] { return player.status().state == state; });
    }
    // Whether the middle of the picture has about this colour.
    bool shows(QRgb colour) {
        const QImage frame = player.frame();
        if (frame.isNull())
            return false;
        const QColor seen = frame.pixelColor(frame.rect().center());
        const QColor wanted(colour);
        return std::abs(seen.red() - wanted.red()) < 12 && std::abs(seen.green() - wanted.green()) < 12 &&
               std::abs(seen.blue() - wanted.blue()) < 12;
    }
    static constexpr QRgb amber = 0xFFE0A126;
    static constexpr QRgb bottle = 0xFF123F31;
};

TEST_F(AFilm, IsPlayedPausedSoughtAndPlayedAgain) {
    EXPECT_EQ(player.status().state, State::Closed);
    player.open(at("/film.mp4"));
    EXPECT_EQ(player.status().state, State::Loading);
    ASSERT_TRUE(becomes(State::Playing));
    EXPECT_TRUE(waitFor([&] { return shows(amber); }));
    EXPECT_NEAR(double(player.status().duration), 4000, 200);
    player.pause();
    ASSERT_TRUE(becomes(State::Paused));
    player.seek(3000);
    EXPECT_TRUE(waitFor([&] { return shows(bottle); })) << "also while it is paused";
    EXPECT_EQ(player.status().state, State::Paused);
    player.play();
    ASSERT_TRUE(becomes(State::Ended));
    player.play();
    ASSERT_TRUE(becomes(State::Playing));
    EXPECT_TRUE(waitFor([&] { return shows(amber); })) << "from its beginning";
    player.close();
    EXPECT_EQ(player.status(), FilmStatus());
    EXPECT_TRUE(player.frame().isNull());
}

TEST_F(AFilm, ThatDoesNotComeHoldsNobody) {
    server.hold();
    player.open(at("/film.mp4"));
    ASSERT_TRUE(waitFor([&] { return server.waiting() == 1; }));
    EXPECT_EQ(player.status().state, State::Loading);
    player.close();
    EXPECT_EQ(player.status().state, State::Closed);
    player.open(at("/film.mp4"));
    ASSERT_TRUE(waitFor([&] { return server.waiting() == 2; })) << "beside the one that was left";
    server.release();
    EXPECT_TRUE(becomes(State::Playing));
}

TEST_F(AFilm, ThatIsNotThereOrIsNoFilmSaysSoAndAnotherOneStillPlays) {
    player.open(at("/nothing.mp4"));
    EXPECT_TRUE(becomes(State::Failed));
    player.open(at("/film.mp4"));
    EXPECT_TRUE(becomes(State::Playing));
    player.open(at("/nothing.mp4"));
    EXPECT_TRUE(becomes(State::Failed));
    EXPECT_TRUE(player.frame().isNull()) << "no picture of the one before";
}

} // namespace
} // namespace kavor
