#include "activations/screens/ActivationScreensFixture.h"

#include <gmock/gmock.h>

namespace kavor {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class ActivationFlow : public ActivationScreens {
protected:
    [[nodiscard]] QString badge(int row) const {
        auto* board = choice().presentButtons();
        return board->data(board->index(row), ActivationBoardModel::BadgeTextRole).toString();
    }
    static const std::string fullSentence;
};

const std::string ActivationFlow::fullSentence =
    "Atención | No dispones de cupo para realizar más activaciones de este tipo";

TEST_F(ActivationFlow, ABoardIsAsLargeAsItsControlsAndABrandLeadsOn) {
    EXPECT_EQ(brands().board()->size(), QSize(940, 200));
    brands().selectBrand(77);
    EXPECT_EQ(brands().selectedBrandActivation(), nullptr);
    auto* board = &brands();
    board->selectBrand(1);
    board->selectBrand(1); // a second tap
    EXPECT_EQ(screens->rowCount(), 3);
    EXPECT_EQ(choice().presentButtons()->size(), QSize(820, 200)); // the badge stands out
    EXPECT_EQ(choice().presentButtons()->controls()[0].rotate, 90);
    network.requests.activationUserQuota.succeed({});
    choice().closeSceneAction();
    brands().selectBrand(2); // a single activation
    ASSERT_NE(top<ActivationElementsSelectionViewController>(), nullptr);
    EXPECT_EQ(network.requests.activationUserQuota.calls.size(), 1U);
    elements().closeSceneAction();
    EXPECT_EQ(shown(alerts), "Atención | Si vuelve atrás, perderá la información introducida de la "
                             "activación. ¿Desea continuar?");
    press(alerts, "No");
    ASSERT_NE(top<ActivationElementsSelectionViewController>(), nullptr);
    elements().closeSceneAction();
    press(alerts, "Sí");
    brands().selectBrand(3); // none
    EXPECT_NE(choice().emptyText(), "");
    choice().nextAction();
    EXPECT_THAT(told(), HasSubstr("Selecciona una de las activaciones."));
}

TEST_F(ActivationFlow, WithoutActivationsTheSectionSaysSo) {
    EXPECT_EQ(brands().emptyTitle(), "");
    builder.information.activations.reset();
    openSection();
    EXPECT_EQ(brands().emptyTitle(), "No hay activaciones");
    brands().selectBrand(1);
    EXPECT_EQ(screens->rowCount(), 2);
}

TEST_F(ActivationFlow, QuotasAreThoseOfTheServerOrTheCataloguesWithAWord) {
    brands().selectBrand(1);
    EXPECT_EQ(badge(0), "1/3");
    network.requests.activationUserQuota.succeed({{{21, 4, 4}, {31, 1, 1}}});
    EXPECT_EQ(badge(0), "4/4");
    EXPECT_FALSE(choice().presentButtons()->controls()[0].badge->hasRoom);
    EXPECT_EQ(badge(1), "2/2");
    choice().selectActivation(21);
    EXPECT_EQ(choice().remainingText(), "sin cupo");
    choice().closeSceneAction();
    brands().selectBrand(2); // straight to the elements, with the number that the server said
    EXPECT_EQ(told(), fullSentence);
    elements().closeSceneAction();
    press(alerts, "Sí");
    network.reachable = false;
    brands().selectBrand(1);
    EXPECT_EQ(told(), "Error | No hay conexión a internet.");
    EXPECT_EQ(badge(0), "4/4");
    choice().closeSceneAction();
    network.reachable = true;
    brands().selectBrand(1);
    network.requests.activationUserQuota.fail(failureWith({"Hoy no"}));
    EXPECT_EQ(told(), "No se puede obtener información del cupo disponible para cada activación. | Hoy no");
}

TEST_F(ActivationFlow, ARequiredElementStaysAndTheSelectionOutlivesTheForm) {
    openElements();
    EXPECT_THAT(elements().selectedItems(), ElementsAre(true, true, true));
    elements().tapItem(0);
    EXPECT_EQ(told(), "Información | El elemento en el que ha pinchado no puede ser deseleccionado, es "
                      "obligatorio.");
    elements().tapItem(1);
    elements().tapItem(2);
    elements().tapItem(2);
    EXPECT_THAT(elements().selectedItems(), ElementsAre(true, false, true));
    elements().nextAction();
    form().closeSceneAction(); // nothing was given: nothing is asked
    ASSERT_NE(top<ActivationElementsSelectionViewController>(), nullptr);
    EXPECT_THAT(elements().selectedItems(), ElementsAre(true, false, true));
    elements().closeSceneAction();
    press(alerts, "Sí");
    choice().nextAction();
    EXPECT_THAT(elements().selectedItems(), ElementsAre(true, true, true));
}

TEST_F(ActivationFlow, AFullQuotaIsToldOnceAndBlocksNothing) {
    openElements(22);
    EXPECT_EQ(told(), fullSentence);
    elements().nextAction();
    form().closeSceneAction();
    EXPECT_FALSE(alerts.isVisible());
    ASSERT_NE(top<ActivationElementsSelectionViewController>(), nullptr);
}

TEST_F(ActivationFlow, TheDetailsOpenOnceForAnActivationThatHasSome) {
    openElements();
    elements().showDetail();
    EXPECT_EQ(top<ActivationDetailViewController>(), nullptr);
    elements().closeSceneAction();
    press(alerts, "Sí");
    choice().closeSceneAction();
    brands().selectBrand(2);
    auto* single = &elements();
    single->showDetail();
    single->showDetail();
    ASSERT_NE(top<ActivationDetailViewController>(), nullptr);
    top<ActivationDetailViewController>()->document()->dismissAction();
    EXPECT_EQ(top<ActivationElementsSelectionViewController>(), single);
}

} // namespace
} // namespace kavor
