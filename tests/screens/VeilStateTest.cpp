#include "screens/VeilState.h"

#include "interaction/VeiledRun.h"

#include <gtest/gtest.h>

namespace kavor {

namespace {

TEST(VeilState, AScreenOutsideTheWizardStandsBehindTheVeilOfItsRunAndLeavesIt) {
    VeilState veil;
    veil.follow();
    VeiledRun run;
    bool answered = false;
    bool left = false;
    QObject sender;
    QObject::connect(&sender, &QObject::objectNameChanged, run.begin("Un momento…", [&] { left = true; }),
                     [&] { answered = true; });
    EXPECT_TRUE(veil.isVisible() && veil.isLeavable());
    EXPECT_EQ(veil.text(), "Un momento…");
    veil.leave();
    EXPECT_TRUE(left);
    EXPECT_FALSE(veil.isVisible() || veil.isLeavable());
    EXPECT_EQ(veil.text(), "Un momento…") << "until it is gone";
    sender.setObjectName("a late answer");
    EXPECT_FALSE(answered);
    showVeil(true);
    veil.leave();
    EXPECT_TRUE(veil.isVisible()) << "a file that is being written is waited for";
    EXPECT_EQ(veil.text(), "");
    showVeil(false);
    veil.unfollow();
    run.begin("De otra pantalla");
    EXPECT_FALSE(veil.isVisible()) << "the screen is not the one on show";
}

TEST(VeilState, AVeilThatTheScreenSetIsLeftThroughTheScreen) {
    VeilState veil;
    VeiledRun run;
    run.begin("De otra pantalla");
    EXPECT_FALSE(veil.isVisible());
    int left = 0;
    QObject::connect(&veil, &VeilState::left, [&] { ++left; });
    veil.setVisible(true, true);
    bool otherLeft = false;
    const auto subscription = NotificationCenter::shared().observe(
        notification::veilViewLeft, [&](const NotificationInfo&) { otherLeft = true; });
    veil.leave();
    EXPECT_EQ(left, 1);
    EXPECT_TRUE(veil.isVisible()) << "hiding it is up to the screen";
    EXPECT_FALSE(otherLeft);
    veil.setVisible(false, false);
    veil.leave();
    EXPECT_EQ(left, 1);
}

} // namespace
} // namespace kavor
