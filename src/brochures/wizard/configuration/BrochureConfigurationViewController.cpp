#include "brochures/wizard/configuration/BrochureConfigurationViewController.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "interaction/AlertPresenter.h"

#include <algorithm>
#include <iterator>

namespace kavor {

BrochureConfigurationViewController::BrochureConfigurationViewController(const WizardStepContext& context,
                                                                         QObject* parent)
    : WizardStepViewController(parent)
    , context_(context)
    , pointOfSale_({context.services.network, context.services.alerts, context.services.urls,
                    context.services.photos, context.services.location})
    , languages_(context_)
    , secondPrice_(context_)
    , formats_(context_)
    , chalkboard_(context_) {
    connect(this, &BrochureConfigurationViewController::committed, this,
            &WizardStepViewController::subtitleChanged);
    connect(this, &BrochureConfigurationViewController::previewSegueRequested, this,
            &WizardStepViewController::draftPreviewRequested);
    const auto commits = [this](auto* form) {
        using Form = std::remove_pointer_t<decltype(form)>;
        connect(form, &Form::edited, this, &BrochureConfigurationViewController::commit);
    };
    commits(&pointOfSale_);
    commits(&languages_);
    commits(&secondPrice_);
    commits(&formats_);
    commits(&chalkboard_);
}

BrochureConfigurationViewController::~BrochureConfigurationViewController() = default;

QUrl BrochureConfigurationViewController::view() const {
    return stepView(QStringLiteral("BrochureConfigurationView.qml"));
}

void BrochureConfigurationViewController::viewDidLoad() {
    pointOfSale_.show(pointOfSaleFields(), context_.catalogue->information().validations);
    languages_.load();
    secondPrice_.load();
    formats_.load();
    chalkboard_.load();
}

void BrochureConfigurationViewController::viewWillAppear() {
    formats_.serialize();
    chalkboard_.serialize();
    pointOfSale_.fill(context_.draft->customerInformation.value_or(Customer{}));
    emit languages_.changed();
    emit secondPrice_.changed();
    emit formats_.switchesChanged();
    emit formats_.formatsChanged();
    emit chalkboard_.changed();
}

PointOfSaleFields BrochureConfigurationViewController::pointOfSaleFields() const {
    using Group = CustomerFieldGroup;
    const auto freeTexts = std::size_t(std::max<Int>(0, context_.parameters().freeTextNumberOfFields));
    PointOfSaleFields fields{CustomerForm::fieldsOf(Group::contact), CustomerForm::fieldsOf(Group::place),
                             CustomerForm::fieldsOf(Group::online),
                             CustomerForm::fieldsOf(Group::freeText, freeTexts)};
    if (context_.parameters().isRRSSAvailable)
        std::ranges::copy(CustomerForm::fieldsOf(Group::social), std::back_inserter(fields.online));
    return fields;
}

void BrochureConfigurationViewController::serializeAutoSave() {
    Customer customer = context_.draft->customerInformation.value_or(Customer{});
    pointOfSale_.apply(customer);
    context_.draft->customerInformation = std::move(customer);
    formats_.serialize();
    chalkboard_.serialize();
    languages_.serialize();
}

void BrochureConfigurationViewController::commit() {
    serializeAutoSave();
    autosave(context_.draft);
    emit committed();
}

void BrochureConfigurationViewController::previewAction() {
    if (pointOfSale_.isCustomerCodeRequired() && pointOfSale_.tevo().isEmpty()) {
        // The title has no accent on purpose.
        context_.services.alerts.inform(QStringLiteral("Atencion"),
                                        QStringLiteral("Has de informar de un código cliente."));
        return;
    }
    commit();
    emit previewSegueRequested();
}

QString BrochureConfigurationViewController::freeTextLabel() const {
    return context_.kind == BrochureType::chalkboard || context_.kind == BrochureType::mantel
               ? QStringLiteral("Texto libre (se mostrará debajo del título)")
               : QStringLiteral("Texto Libre (esta información se mostrará en la contraportada)");
}

} // namespace kavor
