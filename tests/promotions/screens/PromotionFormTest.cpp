#include "promotions/screens/PromotionScreensFixture.h"
#include "support/WaitFor.h"

#include <QSignalSpy>

namespace kavor {
namespace {

class PromotionOrderForm : public PromotionScreens {};

TEST_F(PromotionOrderForm, TellsEverythingThatIsMissingBeforeItLooksAtTheNetwork) {
    session.loginResult->customerCodeRequired = true;
    network.reachable = false;
    open(1, 1);
    form->attributeTable()->type(1, "mucho");
    for (const bool preview : {true, false}) {
        preview ? form->previewAction() : form->sendOrderAction();
        EXPECT_EQ(told(),
                  "Atención | El código cliente debe informarse.\nEl nombre del establecimiento es "
                  "obligatorio.\nNo hay ningún formato seleccionado, seleccione al menos uno.\nEl precio "
                  "no es válido.");
    }
    form->customer()->editText("tevoTextField", "77");
    form->attributeTable()->type(1, "");
    complete();
    form->sendOrderAction();
    EXPECT_EQ(told(), "Error | No hay conexión a internet.");
    EXPECT_TRUE(sends().calls.empty());
}

TEST_F(PromotionOrderForm, IsTheSameOrderAfterALostAnswerALeftVeilAndAnotherRunOfTheProgram) {
    open(1, 1);
    complete();
    form->sendOrderAction();
    ASSERT_TRUE(sends().fail(lostAnswer()));
    told();
    form->sendOrderAction();
    EXPECT_TRUE(form->veil()->isVisible());
    form->veil()->leave();
    EXPECT_FALSE(form->veil()->isVisible());
    EXPECT_NE(told().find("no se realizará dos veces"), std::string::npos);
    sends().succeed(answer(1)); // too late
    EXPECT_FALSE(alerts.isVisible());
    EXPECT_EQ(form->sentText(), "");
    open(1, 1);
    form->sendOrderAction();
    ASSERT_EQ(sends().calls.size(), 3U);
    EXPECT_TRUE(key(0) == key(1) && key(1) == key(2));
    form->veil()->leave();
    told();
    form->formatTable()->switchFormat(1, true);
    form->sendOrderAction();
    EXPECT_NE(key(3), key(2)) << "another order";
    sends().succeed({}); // of the one before, which nobody waits for
    sends().succeed(answer(5));
    EXPECT_EQ(told(), " | Pedido realizado correctamente");
}

TEST_F(PromotionOrderForm, StaysAsItIsWrittenOnceItIsOrderedAndAsksBeforeItIsOrderedAgain) {
    open(1, 1);
    complete();
    form->sendOrderAction();
    EXPECT_TRUE(order(0).save);
    sends().succeed(answer(2041, "http://127.0.0.1:9/2041.pdf"));
    ASSERT_NE(alerts.current(), nullptr);
    EXPECT_EQ(alerts.current()->buttons.first().text, "Ok");
    EXPECT_EQ(told(), " | Pedido realizado correctamente");
    EXPECT_EQ(form->sentText(), "Pedido 2041 realizado");
    EXPECT_EQ(form->customer()->fieldText("establishmentNameTextField"), "Bar Sol");
    form->showSentDocument();
    ASSERT_NE(form->preview(), nullptr);
    form->preview()->dismissAction();
    form->customer()->finishText("establishmentNameTextField", "Bar Sol"); // the field is left
    EXPECT_FALSE(isKept()) << "nothing to come back";
    form->sendOrderAction();
    EXPECT_EQ(shown(alerts), "Atención | Este pedido ya se ha realizado. ¿Desea realizarlo otra vez?");
    press(alerts, "No");
    EXPECT_EQ(sends().calls.size(), 1U);
    form->sendOrderAction();
    press(alerts, "Sí");
    EXPECT_EQ(sends().calls.size(), 2U);
    EXPECT_NE(key(0), key(1));
    sends().fail(failureWith({"no"}));
    told();
    form->editComment("Otro cartel");
    EXPECT_TRUE(isKept());
    form->sendOrderAction();
    EXPECT_EQ(sends().calls.size(), 3U) << "another content is not asked about";
}

TEST_F(PromotionOrderForm, APreviewWhoseAnswerIsLostDoesNotLetAnOrderThatWasMadeBeMadeTwice) {
    open(1, 1);
    complete();
    form->sendOrderAction();
    sends().succeed(answer(2041));
    told();
    form->previewAction();
    ASSERT_TRUE(sends().fail(lostAnswer()));
    told();
    EXPECT_FALSE(isKept()) << "nothing to come back";
    form->sendOrderAction();
    EXPECT_EQ(shown(alerts), "Atención | Este pedido ya se ha realizado. ¿Desea realizarlo otra vez?");
    press(alerts, "Sí");
    ASSERT_TRUE(sends().fail(lostAnswer()));
    told();
    open(1, 1); // the process ended
    complete();
    form->sendOrderAction();
    ASSERT_EQ(sends().calls.size(), 4U);
    EXPECT_EQ(key(3), key(2)) << "the second order, of which nobody knows";
}

TEST_F(PromotionOrderForm, ARefusalUnderAGoodStatusIsAFailureAndAPreviewNeedsItsDocument) {
    GenericOrderResponse refusal = answer(3, "http://127.0.0.1:9/3.pdf");
    refusal.errors.emplace();
    (*refusal.errors)["supports"] = {"Formato agotado", "Pide otro"};
    open(1, 2);
    complete();
    form->sendOrderAction();
    sends().succeed(refusal);
    EXPECT_EQ(told(), "El pedido no se puede generar | Formato agotado\nPide otro");
    EXPECT_EQ(form->sentText(), "");
    EXPECT_FALSE(form->veil()->isVisible());
    form->previewAction();
    EXPECT_FALSE(order(1).save);
    EXPECT_EQ(order(1).supports.front().languageId, 2) << "of the picture that was tapped";
    sends().succeed(refusal);
    EXPECT_EQ(told(), "El pedido no se puede previsualizar | Formato agotado\nPide otro");
    EXPECT_NE(key(0), key(1));
    form->previewAction();
    sends().succeed(answer(4));
    EXPECT_EQ(told(), "Error | No hay url que previsualizar. Contacte con soporte.");
    form->previewAction();
    sends().succeed(answer({}, "http://127.0.0.1:9/4.pdf"));
    EXPECT_NE(form->preview(), nullptr);
    EXPECT_FALSE(alerts.isVisible());
}

TEST_F(PromotionOrderForm, ALookUpFillsTheNameAloneAndAHandOnCodeOrNameForgetsWhoItIs) {
    open(1, 1);
    form->formatTable()->switchFormat(1, true);
    form->customer()->editText("tevoTextField", "77");
    form->customer()->searchTEVOCodeAction();
    Customer found;
    found.id = 9;
    found.name = "Bar Luna";
    found.imageLogo = "data:image/png;base64,AAAA";
    network.requests.getCustomerDataFromTevoCode.succeed({found});
    EXPECT_EQ(form->posterLogo(), "") << "the logo is the one of this form";
    form->sendOrderAction();
    EXPECT_TRUE(order(0).customer.id == 9 && order(0).customer.codTevo == "77");
    EXPECT_EQ(order(0).customer.name, "Bar Luna");
    EXPECT_FALSE(order(0).imageLogo);
    form->veil()->leave();
    told();
    form->customer()->editText("establishmentNameTextField", "Bar Lunas");
    form->sendOrderAction();
    EXPECT_FALSE(order(1).customer.id);
}

TEST_F(PromotionOrderForm, ComesBackWithEverythingAfterTheProcessEnded) {
    open(1, 1);
    EXPECT_EQ(form->recoveredMessage(), "");
    complete();
    form->attributeTable()->type(0, "De 18 a 2");
    form->attributeTable()->type(0, "De 18 a 20");
    form->attributeTable()->choose(2, 0);
    form->emailTextFieldList()->edit(0, "ana@sol.example");
    form->vigencia()->doneActionFrom("01-05-26");
    form->vigencia()->chooseWeekend();
    form->vigencia()->switchShowMenu(true);
    form->editComment("Urgente");
    open(1, 2);
    EXPECT_EQ(form->recoveredMessage(), "Se ha recuperado la promoción en curso");
    EXPECT_EQ(form->posterPhrase(), "De 18 a 20");
    EXPECT_EQ(form->language(), 1) << "of the picture that was tapped now";
    form->sendOrderAction();
    ASSERT_EQ(sends().calls.size(), 1U);
    EXPECT_EQ(order(0).attributes.size(), 2U);
    EXPECT_EQ(order(0).attributes.front().value, "Mediodía");
    EXPECT_EQ(order(0).emails.front().email, "ana@sol.example");
    EXPECT_TRUE(order(0).showMenu && !order(0).showPromotionDay5 && order(0).showPromotionDay6);
    EXPECT_TRUE(order(0).dateFrom == "01-05-26" && order(0).comment == "Urgente");
}

TEST_F(PromotionOrderForm, ShowsValidityAndLogoOnlyWhereThePromotionHasThem) {
    open(1, 1);
    EXPECT_TRUE(form->isVigenciaVisible() && form->isImageLogoVisible());
    EXPECT_EQ(form->attributeTable()->count(), 3) << "the logo has a card of its own";
    EXPECT_EQ(form->vigencia()->messageConfigurationDaysLabel(),
              "Días en los que se mostrará la promoción (para adaptarnos al horario de hostelería los días "
              "empiezan y "
              "terminan a las 6 de la mañana)");
    open(3, 1);
    EXPECT_FALSE(form->isVigenciaVisible() || form->isImageLogoVisible());
}

TEST_F(PromotionOrderForm, DrawsThePosterWhileOneTypes) {
    open(1, 2);
    EXPECT_NE(form->posterImage().indexOf("tapa-ca"), -1);
    const QSignalSpy drawn(form.get(), &PromotionViewController::posterChanged);
    form->attributeTable()->type(1, "2.5");
    form->attributeTable()->choose(2, 1);
    QImage photo(8, 8, QImage::Format_RGB32);
    photo.fill(Qt::red);
    photos.photo = photo;
    form->logo()->searchLogoInGallery();
    ASSERT_TRUE(waitFor([&] { return form->posterLogo().startsWith("data:image/png"); }));
    EXPECT_EQ(form->posterPrice(), "2,50\u00a0€");
    EXPECT_EQ(form->posterHours(), "Noche");
    EXPECT_EQ(drawn.count(), 3);
    form->chooseLanguage(0);
    EXPECT_NE(form->posterImage().indexOf("tapa-es"), -1);
}

TEST_F(PromotionOrderForm, TheDaysAreSevenAndSayWhichTheyAre) {
    open(1, 1);
    auto& days = *form->vigencia();
    EXPECT_EQ(days.daysText(), "Todos los días");
    days.toggleDay(5);
    days.toggleDay(6);
    EXPECT_EQ(days.daysText(), "Entre semana");
    days.toggleDay(0);
    days.toggleDay(1);
    days.toggleDay(2);
    EXPECT_EQ(days.daysText(), "jueves y viernes");
    days.toggleDay(3);
    days.toggleDay(4);
    EXPECT_EQ(days.daysText(), "Ningún día");
    days.doneActionFrom("02-01-27");
    days.doneActionTo("31-12-26");
    EXPECT_EQ(days.dateToError(), "Termina antes de empezar.");
}

TEST_F(PromotionOrderForm, AsksForAsManyAddressesAsThereAre) {
    auto& emails = *open(2, 1).emailTextFieldList();
    emails.add();
    EXPECT_EQ(emails.count(), 1) << "one empty field is enough";
    emails.edit(0, "ana@sol");
    EXPECT_EQ(emails.data(emails.index(0, 0), EmailListModel::ErrorRole), "Revisa esta dirección.");
    emails.edit(0, "ana@sol.example");
    EXPECT_EQ(emails.data(emails.index(0, 0), EmailListModel::ErrorRole), "");
    emails.add();
    emails.edit(1, "luis@sol.example");
    emails.remove(0);
    EXPECT_EQ(emails.texts(), std::vector<std::string>{"luis@sol.example"});
    emails.remove(0);
    EXPECT_EQ(emails.count(), 1);
}

class PromotionForMenu : public PromotionScreens {
protected:
    std::vector<MenuPromotion> attached;
    std::vector<PromotionValidity> validities;

    MenuPromotionUse use(std::optional<MenuPromotion> edited = std::nullopt) {
        MenuPromotionUse use;
        use.request.menuPromotion = std::move(edited);
        use.attach = [this](const MenuPromotion& promotion, const PromotionValidity& validity) {
            attached.push_back(promotion);
            validities.push_back(validity);
        };
        return use;
    }
};

TEST_F(PromotionForMenu, GoesIntoTheMenuOnceAndNeverToTheServer) {
    open(1, 1, use());
    EXPECT_EQ(form->attributeTable()->count(), 4) << "its logo is one of its attributes";
    EXPECT_TRUE(form->isVigenciaVisible());
    const QSignalSpy closed(form.get(), &ScreenController::closed);
    form->attributeTable()->type(1, "x");
    form->appendByOrderAction();
    EXPECT_EQ(told(), "Atención | El precio no es válido.");
    EXPECT_TRUE(attached.empty() && !session.appendPromotionToMenu);
    form->attributeTable()->type(1, "3,5");
    form->attributeTable()->choose(2, 1);
    form->vigencia()->doneActionTo("31-05-26");
    form->appendByOrderAction();
    form->appendByOrderAction(); // a double tap
    ASSERT_EQ(attached.size(), 1U);
    EXPECT_EQ(attached.front(),
              (MenuPromotion{{}, 1, "Martes de tapa", "Encina", {{12, "Noche", 121}, {13, "3,5", {}}}}));
    EXPECT_EQ(validities.front().dateTo, "31-05-26");
    EXPECT_TRUE(session.appendPromotionToMenu);
    EXPECT_EQ(closed.count(), 1);
    EXPECT_TRUE(sends().calls.empty());
    EXPECT_FALSE(isKept());
}

TEST_F(PromotionForMenu, IsEditedWithWhatItHeldAndAsksBeforeChangesAreLost) {
    const MenuPromotion held{
        55, 1, "Martes", "Encina", {{11, "data:image/png;base64,AA", {}}, {14, "Hoy", {}}}};
    MenuPromotionUse given = use(held);
    given.validity = PromotionValidity{"01-05-26", "", true, {1}};
    open(1, 1, given);
    EXPECT_EQ(form->posterPhrase(), "Hoy");
    EXPECT_EQ(form->vigencia()->daysText(), "lunes");
    const QSignalSpy closed(form.get(), &ScreenController::closed);
    form->closeSceneAction();
    EXPECT_EQ(closed.count(), 1) << "nothing was changed";
    form->attributeTable()->type(0, "Mañana");
    form->closeSceneAction();
    EXPECT_EQ(shown(alerts), "Atención | ¿Salir sin guardar los cambios de la promoción?");
    press(alerts, "No");
    EXPECT_EQ(closed.count(), 1);
    form->attributeTable()->switchImage(3, false);
    form->appendByOrderAction();
    EXPECT_EQ(attached.front(), (MenuPromotion{55, 1, "Martes de tapa", "Encina", {{14, "Mañana", {}}}}));
}

class PromotionGalleryScreen : public PromotionForMenu {
protected:
    using Carousel = PromotionStyleSelectorViewController::Carousel;

    static std::vector<std::string> names(PromotionStyleSelectorViewController& gallery) {
        std::vector<std::string> result;
        for (int row = 0; row < gallery.visiblePromotions()->count(); ++row)
            result.emplace_back(gallery.visiblePromotions()->at(row)->promotionName);
        return result;
    }
};

TEST_F(PromotionGalleryScreen, IsNarrowedByItsTwoCarouselsAndSaysWhenNothingIsLeft) {
    PromotionStyleSelectorViewController gallery(services);
    EXPECT_EQ(gallery.titleLabel(), "Promociones");
    EXPECT_EQ(gallery.countText(), "4 promociones");
    EXPECT_EQ(gallery.classifications(), (QStringList{"Todos", "Entre semana", "De temporada"}));
    EXPECT_EQ(gallery.brandList().size(), 3);
    gallery.carouselCurrentItemIndexDidChange(Carousel::Brands, 2);
    EXPECT_EQ(names(gallery), std::vector<std::string>{"Mundial"});
    EXPECT_EQ(gallery.countText(), "1 de 4 promociones");
    gallery.carouselCurrentItemIndexDidChange(Carousel::Classifications, 1);
    EXPECT_EQ(gallery.emptyAction(), "Quitar filtros");
    gallery.carouselCurrentItemIndexDidChange(Carousel::Classifications, 9);
    gallery.removeFilters();
    EXPECT_EQ(names(gallery).size(), 4U);
    EXPECT_TRUE(gallery.emptyTitle().isEmpty());
    session.actualSection = SectionIdentifier::promotion(PromotionType::carteleria);
    EXPECT_EQ(gallery.titleLabel(), "Cartelería promocional");
    builder.information.promotion.reset();
    session.applicationInformation = builder.take();
    EXPECT_EQ(PromotionStyleSelectorViewController(services).emptyTitle(), "No hay promociones");
}

TEST_F(PromotionGalleryScreen, OpensOneFormForADoubleTapAndClosesWithThePromotionThatItAttached) {
    session.actualSection = SectionIdentifier::brochure(BrochureType::beer);
    ScreenStack stack;
    stack.push({});
    auto given = use();
    given.request.promotionSelectIds = {1};
    auto* gallery = new PromotionStyleSelectorViewController(services, given);
    EXPECT_EQ(gallery->titleLabel(), "Promociones");
    EXPECT_EQ(gallery->kavorLabel(), "Volver");
    EXPECT_EQ(names(*gallery), std::vector<std::string>{"Mundial"}) << "of this menu's promotions none twice";
    QObject::connect(gallery, &PromotionStyleSelectorViewController::screenRequested, &stack,
                     &ScreenStack::push);
    stack.push({{}, gallery});
    for (int round = 0; round < 2; ++round) {
        gallery->choosePromotion(0);
        gallery->choosePromotion(0);
        ASSERT_EQ(stack.rowCount(), 3);
        auto* opened = qobject_cast<PromotionViewController*>(stack.top()->controller);
        ASSERT_NE(opened, nullptr);
        round == 0 ? opened->closeSceneAction() : opened->appendByOrderAction();
    }
    EXPECT_EQ(stack.rowCount(), 1);
    EXPECT_EQ(attached.size(), 1U);
}

} // namespace
} // namespace kavor
