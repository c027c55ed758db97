#pragma once

#include "brochures/wizard/StepFixture.h"
#include "shell/screens/Screens.h"
#include "ui/UiScene.h"

#include <memory>

namespace kavor {

// The real view of a step in a window, worked by keyboard.
template <class Controller>
class StepViewTest : public StepTest {
protected:
    std::unique_ptr<Controller> step;
    std::unique_ptr<UiScene> scene;

    void TearDown() override {
        scene.reset();
        step.reset();
        StepTest::TearDown();
    }
    void showView(const char* view, QSize size) {
        scene.reset();
        step = std::make_unique<Controller>(services, nullptr);
        if constexpr (requires { step->viewDidLoad(); }) // a screen over a step has none
            step->viewDidLoad();
        step->viewWillAppear();
        QQmlEngine registering;
        registerScreens(registering); // for the whole process
        scene = std::make_unique<UiScene>(
            QStringLiteral("Loader { anchors.fill: parent\n"
                           "Component.onCompleted: setSource(\"%1\", { controller: step }) }")
                .arg(screenView(view).toString()),
            size, QHash<QString, QObject*>{{QStringLiteral("step"), step.get()}});
    }
};

} // namespace kavor
