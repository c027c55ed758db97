#include "pointofsale/CustomerForm.h"

#include "brochures/engine/SaveBrochuresOrder.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

constexpr auto name = "establishmentNameTextField";
constexpr auto email = "contactEmailTextField";

TEST(CustomerFormTest, AFieldEditedAndEmptiedIsNotOneThatNobodyTouched) {
    using Value = std::optional<std::string>;
    Customer known;
    known.email = "olmo@bar.example";
    for (const char* field : {name, email}) {
        CustomerForm form;
        form.fill(Customer());
        EXPECT_EQ(form.value(field), Value());
        EXPECT_FALSE(form.editText(field, "")); // the field is left as it was
        EXPECT_EQ(form.value(field), Value());
        EXPECT_TRUE(form.editText(field, "B"));
        EXPECT_TRUE(form.editText(field, ""));
        EXPECT_EQ(form.value(field), Value(""));
        form.editText("tevoTextField", "B0001");
        form.fillFromLookup(known);
        EXPECT_EQ(form.value(field), field == email ? Value("olmo@bar.example") : Value());
        EXPECT_EQ(form.value("tevoTextField"), Value("B0001"));
        form.setValue(field, "");
        EXPECT_EQ(form.value(field), Value("")) << "as a record has it";
        Customer written;
        form.apply(written);
        EXPECT_EQ(written.email, field == email ? Value() : Value("olmo@bar.example"));
    }
}

TEST(CustomerFormTest, EachFieldComesBackFromTheRecordThatItWentInto) {
    CustomerForm form;
    for (const CustomerField& field : CustomerForm::fields())
        form.editText(field.name, field.name);
    Customer written;
    written.commentImageLogo = "what the form doesn't know";
    form.apply(written);
    EXPECT_EQ(written.commentImageLogo, "what the form doesn't know");
    CustomerForm other;
    other.fill(written);
    for (const CustomerField& field : CustomerForm::fields())
        EXPECT_EQ(other.text(field.name), field.name);
}

} // namespace
} // namespace kavor
