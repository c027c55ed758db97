#include "documents/Answers.h"

#include "base/json/Table.h"

namespace kavor::json {

template <>
struct Table<GenericOrderResponse> {
    using R = GenericOrderResponse;
    static constexpr auto fields = std::tuple{optional("errors", &R::errors), optional("url", &R::PDFURL),
                                              optional("order_id", &R::orderIdentifier)};
};

template <>
struct Table<MessageResponse> {
    static constexpr auto fields = std::tuple{required("msg", &MessageResponse::msg)};
};

// Any JSON document will do.
inline bool readValue(Element element, SimpleResponse&, Context& context) {
    return ignore(element, context);
}
inline bool writeValue(Writer& writer, const SimpleResponse&) {
    writer.open('{');
    writer.close('}');
    return true;
}

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(kavor::GenericOrderResponse)
KAVOR_JSON_DOCUMENT(kavor::MessageResponse)
KAVOR_JSON_DOCUMENT(kavor::SimpleResponse)
