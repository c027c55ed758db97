#include "screens/pointofsale/PointOfSaleForm.h"

#include "catalogue/Shared.h"
#include "interaction/AlertPresenter.h"
#include "session/AppSingleton.h"
#include "support/DeviceFakes.h"
#include "support/FakeServices.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

// The form as a section that is no brochure uses it: few fields, one under a name of its own, and other
// words.
class PointOfSaleFormTest : public ::testing::Test {
protected:
    FakeServices network;
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    FakePhotoPicker photos;
    Validations validations;
    PointOfSaleForm form{{network, alerts, urls, photos}, words()};

    void SetUp() override {
        AppSingleton::shared().actualApplicationType = ApplicationType::textil;
        PointOfSaleFields fields;
        fields.contact = CustomerForm::fieldsOf(CustomerFieldGroup::contact, 2);
        fields.contact.back().label = "Nombre del contacto";
        form.show(fields, validations);
        form.editText("tevoTextField", "B0001");
    }
    static PointOfSaleTexts words() {
        PointOfSaleTexts texts;
        texts.codeLabel = QStringLiteral("Código cliente*");
        texts.lookup.nobodyTitle = QStringLiteral("Atención");
        texts.lookup.nobodyText = QStringLiteral("El cliente introducido no existe");
        texts.lookup.nobodyButton = QStringLiteral("Aceptar");
        texts.lookup.failureTitle = QStringLiteral("Error al recuperar cliente");
        return texts;
    }
    [[nodiscard]] std::string alert() const { return (alerts.title() + " | " + alerts.text()).toStdString(); }
};

TEST_F(PointOfSaleFormTest, ASectionHasItsOwnFieldsAndWords) {
    auto& request = network.requests.getCustomerDataFromTevoCode;
    EXPECT_EQ(form.tevoLabel(), "Código cliente*");
    const auto* fields = form.contactFields();
    EXPECT_EQ(fields->rowCount(), 2);
    EXPECT_EQ(fields->data(fields->index(1, 0), CustomerFieldModel::LabelRole), "Nombre del contacto");
    EXPECT_EQ(form.placeFields()->rowCount(), 0);
    form.searchTEVOCodeAction();
    request.succeed({});
    EXPECT_EQ(alert(), "Atención | El cliente introducido no existe");
    alerts.answerButton(0);
    form.searchTEVOCodeAction();
    request.fail(failureWith({"motivo"}));
    EXPECT_EQ(alert(), "Error al recuperar cliente | motivo");
    EXPECT_EQ(form.fieldText("tevoTextField"), "B0001");
    alerts.answerButton(0);
    network.reachable = false;
    form.searchTEVOCodeAction();
    EXPECT_EQ(alert(), "Error | No hay conexión a internet.");
    EXPECT_EQ(request.calls.size(), 2U);
}

TEST_F(PointOfSaleFormTest, OfSeveralCustomersTheFirstOneIsTaken) {
    Customer first, second;
    first.name = "Bar Pino";
    second.name = "Bar Olmo";
    int edits = 0;
    QObject::connect(&form, &PointOfSaleForm::edited, [&] { ++edits; });
    form.searchTEVOCodeAction();
    network.requests.getCustomerDataFromTevoCode.succeed({first, second});
    EXPECT_EQ(form.fieldText("establishmentNameTextField"), "Bar Pino");
    EXPECT_EQ(form.texts().value("contactNameTextField"), std::nullopt);
    EXPECT_EQ(edits, 1);
}

} // namespace
} // namespace kavor
